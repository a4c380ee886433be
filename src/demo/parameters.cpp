// The initialisation parameters.
#include <array>

#include "demo/memory_layout.h"
#include "demo/topic.h"

namespace kestrelix::demo {

namespace {

struct Parameter {
  const char* name;
  const char* value;  // empty for none
  bool isDefault;
  int first = 9;
  int last = 11;
};

// Those that say the same in every database and hour.
constexpr auto kFixed = std::to_array<Parameter>({
    {"O7_DICTIONARY_ACCESSIBILITY", "FALSE", true},
    {"active_instance_count", "", true},
    {"aq_tm_processes", "0", false},
    {"archive_lag_target", "0", true},
    {"asm_diskstring", "", true, 10},
    {"audit_sys_operations", "FALSE", true},
    {"audit_trail", "NONE", true, 9, 10},
    {"audit_trail", "DB", false, 11},
    {"background_core_dump", "partial", true},
    {"backup_tape_io_slaves", "FALSE", true},
    {"bitmap_merge_area_size", "1048576", true},
    {"blank_trimming", "FALSE", true},
    {"buffer_pool_keep", "", true},
    {"buffer_pool_recycle", "", true},
    {"commit_point_strength", "1", true},
    {"commit_write", "", true, 10},
    {"control_file_record_keep_time", "14", false},
    {"control_management_pack_access", "NONE", false, 11},
    {"core_dump_dest", "/u01/app/oracle/admin/cdump", false},
    {"cursor_sharing", "EXACT", true},
    {"cursor_space_for_time", "FALSE", true},
    {"db_16k_cache_size", "0", true},
    {"db_2k_cache_size", "0", true},
    {"db_32k_cache_size", "0", true},
    {"db_4k_cache_size", "0", true},
    {"db_8k_cache_size", "0", true},
    {"db_block_buffers", "0", true},
    {"db_block_checking", "FALSE", true},
    {"db_block_checksum", "TRUE", true, 9, 10},
    {"db_block_checksum", "TYPICAL", true, 11},
    {"db_cache_advice", "ON", true},
    {"db_create_file_dest", "+DATA", false, 10},
    {"db_domain", "", false},
    {"db_file_name_convert", "", true},
    {"db_files", "500", false},
    {"db_flashback_retention_target", "1440", true, 10},
    {"db_recovery_file_dest", "+FRA", false, 10},
    {"db_recovery_file_dest_size", "214748364800", false, 10},
    {"db_recycle_cache_size", "0", true},
    {"db_writer_processes", "2", false},
    {"dbwr_io_slaves", "0", true},
    {"ddl_wait_for_locks", "FALSE", true, 10, 10},
    {"deferred_segment_creation", "TRUE", true, 11},
    {"diagnostic_dest", "/u01/app/oracle", false, 11},
    {"disk_asynch_io", "TRUE", true},
    {"distributed_lock_timeout", "60", true},
    {"dml_locks", "2440", false},
    {"enqueue_resources", "2660", true, 9, 9},
    {"event", "", true},
    {"fast_start_mttr_target", "300", false},
    {"fast_start_parallel_rollback", "LOW", true},
    {"filesystemio_options", "setall", false},
    {"global_names", "FALSE", true},
    {"hash_area_size", "131072", true},
    {"hash_join_enabled", "TRUE", true, 9, 9},
    {"hs_autoregister", "TRUE", true},
    {"java_max_sessionspace_size", "0", true},
    {"java_soft_sessionspace_limit", "0", true},
    {"job_queue_processes", "10", false, 9, 10},
    {"job_queue_processes", "1000", true, 11},
    {"ldap_directory_access", "NONE", true},
    {"license_max_sessions", "0", true},
    {"local_listener", "", true},
    {"lock_sga", "FALSE", true},
    {"log_archive_dest_1", "LOCATION=/arch", false, 9, 9},
    {"log_archive_dest_1", "LOCATION=USE_DB_RECOVERY_FILE_DEST", false, 10},
    {"log_archive_dest_state_1", "enable", true},
    {"log_archive_format", "%t_%s_%r.arc", false, 10},
    {"log_archive_max_processes", "4", false},
    {"log_archive_start", "TRUE", false, 9, 9},
    {"log_checkpoint_interval", "0", true},
    {"log_checkpoint_timeout", "1800", true},
    {"log_checkpoints_to_alert", "TRUE", false},
    {"max_dispatchers", "5", true, 9, 9},
    {"max_dump_file_size", "20480", false},
    {"nls_date_format", "", true},
    {"nls_language", "JAPANESE", false},
    {"nls_length_semantics", "BYTE", true},
    {"nls_nchar_conv_excp", "FALSE", true},
    {"nls_sort", "", true},
    {"nls_territory", "JAPAN", false},
    {"object_cache_optimal_size", "102400", true},
    {"open_links", "16", false},
    {"optimizer_capture_sql_plan_baselines", "FALSE", true, 11},
    {"optimizer_dynamic_sampling", "1", true, 9, 9},
    {"optimizer_dynamic_sampling", "2", true, 10},
    {"optimizer_features_enable", "9.2.0", true, 9, 9},
    {"optimizer_features_enable", "10.2.0.5", true, 10, 10},
    {"optimizer_features_enable", "11.2.0.4", true, 11},
    {"optimizer_index_caching", "0", true},
    {"optimizer_max_permutations", "2000", true, 9, 9},
    {"optimizer_mode", "CHOOSE", true, 9, 9},
    {"optimizer_mode", "ALL_ROWS", true, 10},
    {"optimizer_use_sql_plan_baselines", "TRUE", true, 11},
    {"os_authent_prefix", "ops$", true},
    {"parallel_adaptive_multi_user", "TRUE", true},
    {"parallel_degree_policy", "MANUAL", true, 11},
    {"parallel_execution_message_size", "2152", true, 9, 10},
    {"parallel_execution_message_size", "16384", true, 11},
    {"parallel_min_servers", "0", true},
    {"partition_view_enabled", "FALSE", true, 9, 9},
    {"plsql_code_type", "INTERPRETED", true, 10},
    {"plsql_optimize_level", "2", true, 10},
    {"pre_page_sga", "FALSE", true},
    {"query_rewrite_enabled", "FALSE", true, 9, 9},
    {"query_rewrite_enabled", "TRUE", true, 10},
    {"read_only_open_delayed", "FALSE", true},
    {"recovery_parallelism", "0", true},
    {"recyclebin", "on", true, 10},
    {"remote_login_passwordfile", "EXCLUSIVE", false},
    {"replication_dependency_tracking", "TRUE", true},
    {"resource_limit", "TRUE", false},
    {"result_cache_mode", "MANUAL", true, 11},
    {"row_locking", "always", true, 9, 10},
    {"sec_case_sensitive_logon", "FALSE", false, 11},
    {"serial_reuse", "disable", true},
    {"session_max_open_files", "10", true},
    {"sga_target", "0", true, 11},
    {"skip_unusable_indexes", "TRUE", true, 10},
    {"sort_area_retained_size", "0", true},
    {"sort_area_size", "65536", true},
    {"sql92_security", "FALSE", true},
    {"sql_trace", "FALSE", true},
    {"sqltune_category", "DEFAULT", true, 10},
    {"standby_file_management", "MANUAL", true},
    {"star_transformation_enabled", "FALSE", true},
    {"statistics_level", "TYPICAL", true},
    {"tape_asynch_io", "TRUE", true},
    {"timed_os_statistics", "0", true},
    {"timed_statistics", "TRUE", true},
    {"trace_enabled", "TRUE", true},
    {"transactions_per_rollback_segment", "5", true},
    {"undo_management", "AUTO", false},
    {"undo_retention", "10800", false},
    {"use_large_pages", "TRUE", true, 11},
    {"utl_file_dir", "/tmp", false},
    {"workarea_size_policy", "AUTO", true},
    {"_b_tree_bitmap_plans", "FALSE", false, 9, 10},
    {"_gc_undo_affinity", "FALSE", false, 10},
    {"_optimizer_cost_based_transformation", "OFF", false, 10, 10},
});

class Parameters : public Topic {
 public:
  explicit Parameters(const Setting& setting)
      : instance_(setting.instance),
        rows_(setting.tables.perSnapshot(setting.database(), "stats$parameter",
                                         "name value isdefault ismodified")) {}

  void restart() override { ++starts_; }
  void advance(const Work& work) override { sinceBad_ = sinceBad_ || work.bad; }

  void write(const Snapshot& snapshot) override {
    const Database& database = *instance_.database;
    const int release = std::stoi(database.major);
    for (const Parameter& parameter : kFixed)
      if (parameter.first <= release && release <= parameter.last)
        row(snapshot, parameter.name, parameter.value, parameter.isDefault);
    writeSizes(snapshot, memoryAt(database, snapshot.time));

    const std::string number = std::to_string(instance_.number);
    row(snapshot, "cluster_database", database.cluster() ? "TRUE" : "FALSE", !database.cluster());
    row(snapshot, "cluster_database_instances", std::to_string(database.instances), !database.cluster());
    row(snapshot, "compatible",
        release == 9    ? "9.2.0.0.0"
        : release == 10 ? "10.2.0.5.0"
                        : "11.2.0.4.0",
        false);
    row(snapshot, "cpu_count", std::to_string(database.cpus), true);
    row(snapshot, "db_block_size", std::to_string(database.blockSize), false);
    row(snapshot, "db_file_multiblock_read_count", release == 9 ? "16" : "128", release != 9);
    row(snapshot, "db_name", database.name, false);
    if (release >= 10) row(snapshot, "db_unique_name", database.name, true);
    row(snapshot, "instance_name", instance_.name, false);
    row(snapshot, "instance_number", database.cluster() ? number : "0", !database.cluster());
    row(snapshot, "service_names", database.name, true);
    row(snapshot, "thread", database.cluster() ? number : "0", !database.cluster());
    row(snapshot, "undo_tablespace", "UNDOTBS" + number, false);
    row(snapshot, "processes", std::to_string(150 + database.cpus * 50), false);
    row(snapshot, "sessions", std::to_string(170 + database.cpus * 55), true);
    row(snapshot, "session_cached_cursors", release == 9 ? "100" : "50", release != 9);
    row(snapshot, "parallel_max_servers", std::to_string(database.cpus * 5), false);
    // Changed at a restart, and on the fly after a bad hour.
    row(snapshot, "open_cursors", starts_ > 1 ? "500" : "300", false);
    row(snapshot, "optimizer_index_cost_adj", sinceBad_ ? "30" : "100", !sinceBad_,
        sinceBad_ ? "SYSTEM_MOD" : "FALSE");
  }

 private:
  void row(const Snapshot& snapshot, std::string_view name, std::string_view value, bool isDefault,
           std::string_view modified = "FALSE") {
    rows_.at(snapshot, name, value, isDefault ? "TRUE" : "FALSE", modified);
  }

  void writeSizes(const Snapshot& snapshot, const MemoryLayout& layout) {
    const Database& database = *instance_.database;
    const auto size = [&](const char* name, std::int64_t bytes, bool isDefault) {
      row(snapshot, name, std::to_string(bytes), isDefault);
    };
    size("db_keep_cache_size", 0, true);
    size("log_buffer", database.has(10) ? layout.logBuffer : 10485760, false);
    size("pga_aggregate_target", layout.pgaTarget, false);
    if (!database.has(10)) {
      size("db_cache_size", layout.cache, false);
      size("shared_pool_size", layout.sharedPool, false);
      size("large_pool_size", layout.largePool, false);
      size("java_pool_size", layout.javaPool, false);
      size("sga_max_size", layout.all(), true);
      size("shared_pool_reserved_size", layout.sharedPool / 20, true);
      return;
    }
    size("__db_cache_size", layout.cache, false);
    size("__shared_pool_size", layout.sharedPool, false);
    size("__large_pool_size", layout.largePool, false);
    size("__java_pool_size", layout.javaPool, false);
    size("__streams_pool_size", layout.streamsPool, false);
    for (const char* name :
         {"db_cache_size", "shared_pool_size", "large_pool_size", "java_pool_size", "streams_pool_size"})
      size(name, 0, true);
    size("sga_max_size", layout.all(), false);
    size("shared_pool_reserved_size", layout.sharedPool / 20, true);
    if (!database.has(11)) {
      size("sga_target", layout.all() / layout.granule * layout.granule, false);
      return;
    }
    size("__pga_aggregate_target", layout.pgaTarget, false);
    size("__sga_target", layout.all() / layout.granule * layout.granule, false);
    size("memory_target", (layout.all() + layout.pgaTarget) / layout.granule * layout.granule, false);
    size("memory_max_target", (layout.all() + layout.pgaTarget) / layout.granule * layout.granule, false);
  }

  const Instance& instance_;
  Rows rows_;
  int starts_ = 0;
  bool sinceBad_ = false;
};

}  // namespace

TopicPtr makeParameters(const Setting& setting) { return std::make_unique<Parameters>(setting); }

}  // namespace kestrelix::demo
