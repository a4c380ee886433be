#include "statspack/facts.h"

namespace kestrelix::statspack {

// One table a paragraph: its name, the releases that have it, and its columns. A column is
//   name [=type] [*place in the primary key] [?] [!] [@releases]
// with the types s<bytes> (VARCHAR2), r<bytes> (RAW), d (DATE) and NUMBER where none is told. Columns of the
// key are not null unless they bear "?", the others are null unless they bear "!". "@9-10" keeps a table or
// column to these releases; a column that changed stands once for each form. "~" stands for the three columns
// snap_id, dbid and instance_number that begin most keys, "view" for a view.
const std::string_view kTables = R"(
stats$bg_event_summary@9-10: ~ event=s64*4 total_waits total_timeouts time_waited_micro
stats$bg_event_summary@11: view snap_id! dbid! instance_number! event=s64! total_waits total_timeouts
  time_waited_micro
stats$buffer_pool_statistics: ~ id*4 name=s20 block_size set_msize cnum_repl cnum_write cnum_set buf_got
  sum_write sum_scan free_buffer_wait write_complete_wait buffer_busy_wait free_buffer_inspected
  dirty_buffers_inspected db_block_change db_block_gets consistent_gets physical_reads physical_writes
stats$buffered_queues@10-11: ~ queue_schema=s30*4 queue_name=s30*5 startup_time=d! num_msgs cnum_msgs
  cspill_msgs
stats$buffered_subscribers@10-11: ~ queue_schema=s30*4 queue_name=s30*5 subscriber_id*6
  subscriber_name=s30 subscriber_address=s1024 subscriber_type=s30 startup_time=d! num_msgs cnum_msgs
  total_spilled_msg
stats$cr_block_server@10-11: ~ cr_requests current_requests data_requests undo_requests tx_requests
  current_results private_results zero_results disk_read_results fail_results fairness_down_converts
  fairness_clears free_gc_elements flushes flushes_queued flush_queue_full flush_max_time light_works
  errors
stats$current_block_server@10-11: ~ pin1 pin10 pin100 pin1000 pin10000 flush1 flush10 flush100 flush1000
  flush10000 write1 write10 write100 write1000 write10000
stats$database_instance: dbid*1 instance_number*2 startup_time=d*3 snap_id! parallel=s3! version=s17!
  db_name=s9! instance_name=s16! host_name=s64 platform_name=s101@11
stats$db_cache_advice: ~ id*4 name=s20! block_size! buffers_for_estimate*5 advice_status=s3
  size_for_estimate size_factor estd_physical_read_factor estd_physical_reads
  estd_physical_read_time@10-11 estd_pct_of_db_time_for_reads@10-11 estd_cluster_reads@10-11
  estd_cluster_read_time@10-11
stats$dlm_misc: ~ statistic#*4 name=s38 value
stats$dynamic_remaster_stats@10-11: ~ remaster_ops remaster_time remastered_objects quiesce_time
  freeze_time cleanup_time replay_time fixwrite_time sync_time resources_cleaned replayed_locks_sent
  replayed_locks_received current_objects
stats$enqueue_stat@9: ~ eq_type=s2*4 total_req# total_wait# succ_req# failed_req# cum_wait_time
stats$enqueue_statistics@10-11: ~ eq_type=s2*4 req_reason=s64*5 total_req# total_wait# succ_req#
  failed_req# cum_wait_time event#
stats$event_histogram@10-11: ~ event_id*4 wait_time_milli*5 wait_count
stats$file_histogram@10-11: ~ file#*4 singleblkrdtim_milli*5 singleblkrds
stats$filestatxs: ~ tsname=s30*4 filename=s513*5 phyrds phywrts singleblkrds readtim writetim
  singleblkrdtim phyblkrd phyblkwrt wait_count time file#@10-11
stats$idle_event: event=s64*1
stats$instance_cache_transfer@10-11: ~ instance*4 class=s18*5 cr_block cr_busy cr_congested
  current_block current_busy current_congested
stats$instance_recovery: ~ recovery_estimated_ios actual_redo_blks target_redo_blks
  log_file_size_redo_blks log_chkpt_timeout_redo_blks log_chkpt_interval_redo_blks
  fast_start_io_target_redo_blks target_mttr estimated_mttr ckpt_block_writes
stats$interconnect_pings@11: ~ target_instance*4 iter_500b wait_500b waitsq_500b iter_8k wait_8k
  waitsq_8k
stats$iostat_function@11: ~ function_id*4 small_read_megabytes small_write_megabytes
  large_read_megabytes large_write_megabytes small_read_reqs small_write_reqs large_read_reqs
  large_write_reqs number_of_waits wait_time
stats$iostat_function_name@11: function_id*1 function_name=s18!
stats$java_pool_advice@10-11: ~ java_pool_size_for_estimate*4 java_pool_size_factor estd_lc_size
  estd_lc_memory_objects estd_lc_time_saved estd_lc_time_saved_factor estd_lc_load_time
  estd_lc_load_time_factor estd_lc_memory_object_hits
stats$latch: ~ name=s64*4 latch#! level# gets misses sleeps immediate_gets immediate_misses spin_gets
  sleep1 sleep2 sleep3 sleep4 wait_time
stats$latch_children: ~ latch#*4 child#*5 gets misses sleeps immediate_gets immediate_misses spin_gets
  sleep1 sleep2 sleep3 sleep4 wait_time
stats$latch_misses_summary: ~ parent_name=s50*4? where_in_code=s64*5? nwfail_count sleep_count
  wtr_slp_count
stats$latch_parent: ~ latch#*4 level#! gets misses sleeps immediate_gets immediate_misses spin_gets
  sleep1 sleep2 sleep3 sleep4 wait_time
stats$level_description: snap_level*1 description=s300
stats$librarycache: ~ namespace=s15*4 gets gethits pins pinhits reloads invalidations dlm_lock_requests
  dlm_pin_requests dlm_pin_releases dlm_invalidation_requests dlm_invalidations
stats$memory_dynamic_comps@11: ~ component=s64*4 current_size min_size max_size user_specified_size
  oper_count last_oper_type=s13 last_oper_mode=s9 last_oper_time=d granule_size
stats$memory_resize_ops@11: ~ component=s64*4 oper_type=s13*5 oper_mode=s9*7 start_time=d*6
  initial_size*8 target_size*9 final_size*10 status=s9*11 end_time=d*12 parameter=s80 num_ops
stats$memory_target_advice@11: ~ memory_size*4 memory_size_factor estd_db_time estd_db_time_factor
  version
stats$mutex_sleep@10-11: ~ mutex_type=s32*4 location=s40*5 sleeps wait_time
stats$osstat@10-11: ~ osstat_id*4 value
stats$osstatname@10-11: osstat_id*1 stat_name=s64! cumulative=s3@11
stats$parameter: ~ name=s64*4 value=s512@9-10 value=s4000@11 isdefault=s9 ismodified=s10
stats$pga_target_advice: ~ pga_target_for_estimate*4 pga_target_factor advice_status=s3 bytes_processed
  estd_time@11 estd_extra_bytes_rw estd_pga_cache_hit_percentage estd_overalloc_count
stats$pgastat: ~ name=s64*4 value
stats$process_memory_rollup@10-11: ~ pid*4 serial#*5 category=s15*6 allocated used max_allocated
  max_max_allocated avg_allocated stddev_allocated non_zero_allocations
stats$process_rollup@10-11: ~ pid*4 serial#*5 spid=s12 program=s48 background=s1 pga_used_mem
  pga_alloc_mem pga_freeable_mem max_pga_alloc_mem max_pga_max_mem avg_pga_alloc_mem
  stddev_pga_alloc_mem num_processes
stats$propagation_receiver@10-11: ~ src_queue_schema=s30*4 src_queue_name=s30*5 src_dbname=s128*6
  dst_queue_schema=s30*7 dst_queue_name=s30*8 startup_time=d! elapsed_unpickle_time elapsed_rule_time
  elapsed_enqueue_time
stats$propagation_sender@10-11: ~ queue_schema=s30*4 queue_name=s30*5 dblink=s128*6
  dst_queue_schema=s30*7 dst_queue_name=s30*8 startup_time=d total_msgs total_bytes elapsed_dequeue_time
  elapsed_pickle_time elapsed_propagation_time
stats$resource_limit: ~ resource_name=s30*4 current_utilization max_utilization initial_allocation=s10
  limit_value=s10
stats$rollstat: ~ usn*4 extents rssize writes xacts gets waits optsize hwmsize shrinks wraps extends
  aveshrink aveactive
stats$rowcache_summary: ~ parameter=s32*4? total_usage usage gets getmisses scans scanmisses
  scancompletes modifications flushes dlm_requests dlm_conflicts dlm_releases
stats$rule_set@10-11: ~ owner=s30*4 name=s30*5 startup_time=d! cpu_time elapsed_time evaluations
  sql_free_evaluations sql_executions reloads
stats$seg_stat: ~ dataobj#*4 obj#*5 ts#!@9 ts#*6@10-11 logical_reads buffer_busy_waits db_block_changes
  physical_reads physical_writes direct_physical_reads direct_physical_writes
  gc_cr_blocks_received@10-11 gc_current_blocks_received@10-11 gc_buffer_busy@10-11 itl_waits
  row_lock_waits global_cache_cr_blocks_served global_cache_cu_blocks_served
stats$seg_stat_obj: dataobj#*1 obj#*2 ts#!@9 ts#*3@10-11 dbid*3@9 dbid*4@10-11 owner=s30!
  object_name=s30! subobject_name=s30 object_type=s18 tablespace_name=s30!
stats$sess_time_model@10-11: ~ stat_id*4 value!
stats$session_event: ~ event=s64*4 total_waits total_timeouts time_waited_micro max_wait
stats$sesstat: ~ statistic#*4 value
stats$sga: ~ name=s64*4 value! startup_time=d parallel=s3 version=s17
stats$sga_target_advice@10-11: ~ sga_size*4 sga_size_factor estd_db_time estd_db_time_factor
  estd_physical_reads
stats$sgastat: snap_id! dbid! instance_number! name=s64! pool=s11@9 pool=s12@10-11 bytes
stats$shared_pool_advice: ~ shared_pool_size_for_estimate*4 shared_pool_size_factor estd_lc_size
  estd_lc_memory_objects estd_lc_time_saved estd_lc_time_saved_factor estd_lc_load_time@10-11
  estd_lc_load_time_factor@10-11 estd_lc_memory_object_hits
stats$snapshot: ~ snap_time=d! startup_time=d! session_id! serial# snap_level ucomment=s160
  executions_th parse_calls_th disk_reads_th buffer_gets_th sharable_mem_th version_count_th
  seg_phy_reads_th! seg_log_reads_th! seg_buff_busy_th! seg_rowlock_w_th! seg_itl_waits_th!
  seg_cr_bks_rc_th@10-11 seg_cu_bks_rc_th@10-11 seg_cr_bks_sd_th!@9 seg_cr_bks_sd_th@10-11
  seg_cu_bks_sd_th!@9 seg_cu_bks_sd_th@10-11 snapshot_exec_time_s@10-11 all_init=s5 baseline=s1@10-11
stats$sql_plan: plan_hash_value*1 id*2 operation=s30 options=s30 object_node=s10@9 object_node=s40@10-11
  object# object_owner=s30@9 object_owner=s31@10-11 object_name=s30@9 object_name=s31@10-11
  object_alias=s65@10-11 object_type=s20@10-11 optimizer=s20 parent_id depth position search_columns
  cost cardinality bytes other_tag=s35 partition_start=s5@9-10 partition_start=s64@11
  partition_stop=s5@9-10 partition_stop=s64@11 partition_id other=s4000 distribution=s20 cpu_cost
  io_cost temp_space access_predicates=s4000 filter_predicates=s4000 projection=s4000@10-11 time@10-11
  qblock_name=s31@10-11 remarks=s4000@10-11 snap_id
stats$sql_plan_usage: ~ old_hash_value*4@10-11 text_subset=s31*5 plan_hash_value*6 hash_value*4@9
  hash_value@10-11 sql_id=s13@10-11 cost*7? address=r8 optimizer=s20 last_active_time=d@10-11
stats$sql_statistics: ~ total_sql! total_sql_mem! single_use_sql! single_use_sql_mem!
  total_cursors@10-11
stats$sql_summary: ~ text_subset=s31*5 old_hash_value*4@10-11 sql_text=s1000 sql_id=s13@10-11
  sharable_mem sorts module=s64 loaded_versions fetches executions px_servers_executions@10-11
  end_of_fetch_count@10-11 loads invalidations parse_calls disk_reads direct_writes@10-11 buffer_gets
  application_wait_time@10-11 concurrency_wait_time@10-11 cluster_wait_time@10-11
  user_io_wait_time@10-11 plsql_exec_time@10-11 java_exec_time@10-11 rows_processed command_type
  address=r8 hash_value*4?@9 hash_value@10-11 version_count cpu_time elapsed_time avg_hard_parse_time@11
  outline_sid outline_category=s64 child_latch sql_profile=s64@10-11 program_id@10-11
  program_line#@10-11 exact_matching_signature@10-11 force_matching_signature@10-11
  last_active_time=d@10-11
stats$sql_workarea_histogram: ~ low_optimal_size*4 high_optimal_size*5 optimal_executions
  onepass_executions multipasses_executions total_executions
stats$sqltext: hash_value*1@9 old_hash_value*1@10-11 text_subset=s31*2 piece*3 sql_id=s13@10-11
  sql_text=s64 address=r8 command_type last_snap_id
stats$statspack_parameter: dbid*1 instance_number*2 session_id! snap_level! num_sql! executions_th!
  parse_calls_th! disk_reads_th! buffer_gets_th! sharable_mem_th! version_count_th! pin_statspack=s10!
  all_init=s5! last_modified=d ucomment=s160 job seg_phy_reads_th! seg_log_reads_th! seg_buff_busy_th!
  seg_rowlock_w_th! seg_itl_waits_th! seg_cr_bks_sd_th!@9 seg_cu_bks_sd_th!@9 seg_cr_bks_rc_th!@10-11
  seg_cu_bks_rc_th!@10-11 old_sql_capture_mth=s10!@10-11
stats$streams_apply_sum@10-11: ~ apply_name=s30*4 startup_time=d! reader_total_messages_dequeued
  reader_elapsed_dequeue_time reader_elapsed_schedule_time coord_total_received coord_total_applied
  coord_total_wait_deps coord_total_wait_commits coord_elapsed_schedule_time
  server_total_messages_applied server_elapsed_dequeue_time server_elapsed_apply_time
stats$streams_capture@10-11: ~ capture_name=s30*4 startup_time=d! total_messages_captured
  total_messages_enqueued elapsed_capture_time elapsed_rule_time elapsed_enqueue_time elapsed_lcr_time
  elapsed_redo_wait_time elapsed_pause_time
stats$streams_pool_advice@10-11: ~ streams_pool_size_for_estimate*4 streams_pool_size_factor
  estd_spill_count estd_spill_time estd_unspill_count estd_unspill_time
stats$sys_time_model@10-11: ~ stat_id*4 value!
stats$sysstat: ~ statistic#! name=s64*4 value
stats$system_event: ~ event=s64*4 total_waits total_timeouts time_waited_micro total_waits_fg@11
  total_timeouts_fg@11 time_waited_micro_fg@11 event_id@10-11
stats$temp_histogram@10: ~ file#*4 singleblkrdtim_milli*5 singleblkrds
stats$temp_sqlstats@11: old_hash_value text_subset=s31 module=s64 delta_buffer_gets delta_executions
  delta_cpu_time delta_elapsed_time avg_elapsed_time avg_hard_parse_time delta_disk_reads
  delta_parse_calls max_sharable_mem last_sharable_mem delta_version_count max_version_count
  last_version_count delta_cluster_wait_time delta_rows_processed
stats$tempstatxs: ~ tsname=s30*4 filename=s513*5 phyrds phywrts singleblkrds readtim writetim
  singleblkrdtim phyblkrd phyblkwrt wait_count time file#@10-11
stats$thread@10-11: ~ thread#*4 thread_instance_number status=s6 open_time=d current_group# sequence#
stats$time_model_statname@10-11: stat_id*1 stat_name=s64!
stats$undostat: begin_time=d*1 end_time=d*2 snap_id!@9 snap_id*3@10-11 dbid*3@9 dbid*4@10-11
  instance_number*4@9 instance_number*5@10-11 undotsn! undoblks txncount maxquerylen
  maxqueryid=s13@10-11 maxconcurrency unxpstealcnt unxpblkrelcnt unxpblkreucnt expstealcnt expblkrelcnt
  expblkreucnt ssolderrcnt nospaceerrcnt activeblks@10-11 unexpiredblks@10-11 expiredblks@10-11
  tuned_undoretention@10-11
stats$waitstat: ~ class=s18*4?@9 class=s22*4?@10-11 wait_count time
v$lock_type@10-11: view type=s64 name=s64 id1_tag=s64 id2_tag=s64 is_user=s3 description=s4000
)";

}  // namespace kestrelix::statspack
