// The snapshots themselves, their instance and its redo threads.
#include "demo/topic.h"

namespace kestrelix::demo {

namespace {

constexpr std::int64_t kLogFileBytes = 209715200;

class Snapshots : public Topic {
 public:
  explicit Snapshots(const Setting& setting)
      : instance_(setting.instance),
        random_(setting.random),
        snapshots_(setting.tables.perSnapshot(
            setting.database(), "stats$snapshot",
            "snap_time startup_time session_id serial# snap_level ucomment executions_th parse_calls_th "
            "disk_reads_th buffer_gets_th sharable_mem_th version_count_th seg_phy_reads_th seg_log_reads_th "
            "seg_buff_busy_th seg_rowlock_w_th seg_itl_waits_th seg_cr_bks_rc_th seg_cu_bks_rc_th "
            "seg_cr_bks_sd_th seg_cu_bks_sd_th snapshot_exec_time_s all_init baseline")),
        instances_(setting.tables.rows(setting.database(), "stats$database_instance",
                                       "dbid instance_number startup_time snap_id parallel version db_name "
                                       "instance_name host_name platform_name")),
        threads_(setting.tables.perSnapshot(
            setting.database(), "stats$thread",
            "thread# thread_instance_number status open_time current_group# sequence#")) {
    for (int i = 0; i < database().instances; ++i)
      redo_.push_back(random_.between(2000, 9000) * kLogFileBytes);
    writeShared(setting.tables);
  }

  void advance(const Work& work) override {
    for (std::size_t i = 0; i < redo_.size(); ++i)
      redo_[i] +=
          static_cast<int>(i) + 1 == instance_.number ? work.redoBytes : random_.around(work.redoBytes, 80);
  }

  void write(const Snapshot& snapshot) override {
    const Cell served = database().has(10) ? Cell() : Cell(1000);
    snapshots_.at(snapshot, snapshot.time, snapshot.startup, 0, 0, snapshot.level, snapshot.comment, 100,
                  1000, 1000, 10000, 1048576, 20, 1000, 10000, 100, 100, 100, 1000, 1000, served, served,
                  random_.between(2, 6), "FALSE", snapshot.comment.empty() ? "" : "Y");
    if (snapshot.startup != startup_) {
      startup_ = snapshot.startup;
      instances_.add(snapshot.dbid, snapshot.instance, startup_, snapshot.id,
                     database().cluster() ? "YES" : "NO", database().version, database().name, instance_.name,
                     instance_.host, database().platform);
    }
    for (std::size_t i = 0; i < redo_.size(); ++i) {
      const std::int64_t sequence = redo_[i] / kLogFileBytes;
      threads_.at(snapshot, i + 1, i + 1, "OPEN", startup_,
                  sequence % 4 + 1 + 4 * static_cast<std::int64_t>(i), sequence);
    }
  }

 private:
  const Database& database() const { return *instance_.database; }

  void writeShared(Tables& tables) {
    if (tables.first("levels")) {
      Rows levels = tables.rows(database(), "stats$level_description", "snap_level description");
      levels.add(0,
                 "General statistics: waits, rollback, rows cache, locks, latches, parameters, SGA, system");
      levels.add(5, "Level 0 and SQL statements that exceed a threshold");
      levels.add(6, "Level 5 and the plans and plan usage of these statements");
      levels.add(7, "Level 6 and segments that exceed a threshold");
      levels.add(10, "Level 7 and the children of latches");
    }
    // The newest release's list holds those of the older ones.
    if (tables.first("idle events")) {
      Rows events = tables.rows(database(), "stats$idle_event", "event");
      for (const std::string& event : statspack::everyRelease().idleEvents()) events.add(event);
    }
    Rows settings = tables.rows(
        database(), "stats$statspack_parameter",
        "dbid instance_number session_id snap_level num_sql executions_th parse_calls_th disk_reads_th "
        "buffer_gets_th sharable_mem_th version_count_th pin_statspack all_init seg_phy_reads_th "
        "seg_log_reads_th seg_buff_busy_th seg_rowlock_w_th seg_itl_waits_th seg_cr_bks_sd_th "
        "seg_cu_bks_sd_th seg_cr_bks_rc_th seg_cu_bks_rc_th old_sql_capture_mth");
    settings.add(database().dbid, instance_.number, 0, 7, 50, 100, 1000, 1000, 10000, 1048576, 20, "TRUE",
                 "FALSE", 1000, 10000, 100, 100, 100, 1000, 1000, 1000, 1000, "FALSE");
  }

  const Instance& instance_;
  Random random_;
  Rows snapshots_;
  Rows instances_;
  Rows threads_;
  std::int64_t startup_ = 0;
  std::vector<std::int64_t> redo_;  // bytes ever written, by thread
};

}  // namespace

TopicPtr makeSnapshots(const Setting& setting) { return std::make_unique<Snapshots>(setting); }

}  // namespace kestrelix::demo
