#include "sections/cluster/clsDynamicRemasteringStats.h"

namespace kestrelix {
namespace {

/// One row whatever happened: the end snapshot keeps it, with a blank where no remaster operation took place.
std::string remasterStatement(const std::string& metric, const std::string& alias) {
  return fold("select DECODE(b." + alias + ",null,' ',b." + alias + ") AS " + alias + R"sql(
      from (select st.DBID, st.INSTANCE_NUMBER, st.SNAP_ID
              from stats$snapshot st
             where st.DBID = :B1
               and st.INSTANCE_NUMBER = :B2
               and st.SNAP_ID = :B4) a,
           (select e.dbid, e.instance_number, e.snap_id, )sql" +
              metric + " AS " + alias + R"sql(
              from stats$dynamic_remaster_stats b, stats$dynamic_remaster_stats e
             where b.snap_id(+) = :B3
               and e.snap_id = :B4
               and e.dbid = :B1
               and b.dbid(+) = e.dbid
               and e.instance_number = :B2
               and b.instance_number(+) = e.instance_number
               and e.remaster_ops - nvl(b.remaster_ops, 0) > 0) b
     where a.DBID = b.DBID(+)
       and a.INSTANCE_NUMBER = b.INSTANCE_NUMBER(+)
       and a.SNAP_ID = b.SNAP_ID(+))sql");
}

}  // namespace

clsDynamicRemasteringStats::clsDynamicRemasteringStats()
    : MetricSectionObject("clsDynamicRemasteringStats", fieldNames()) {
  metric("getREMASTER_OPERATIONS", {Field::REMASTER_OPERATIONS},
         remasterStatement("e.remaster_ops - nvl(b.remaster_ops, 0)", "REMASTER_OPERATIONS"));
  metric(
      "getREMASTER_TIME_SEC", {Field::REMASTER_TIME_SEC},
      remasterStatement("ROUND((e.remaster_time - nvl(b.remaster_time, 0)) / 100,1)", "REMASTER_TIME_SEC"));
  metric("getREMASTERD_OBJECTS", {Field::REMASTERD_OBJECTS},
         remasterStatement("e.remastered_objects - nvl(b.remastered_objects, 0)", "REMASTERD_OBJECTS"));
  metric("getQUIESCE_TIME_SEC", {Field::QUIESCE_TIME_SEC},
         remasterStatement("ROUND((e.quiesce_time - nvl(b.quiesce_time, 0)) / 100,1)", "QUIESCE_TIME_SEC"));
  metric("getAFFINITY_OBJECTS_BEG", {Field::AFFINITY_OBJECTS_BEG},
         remasterStatement("b.current_objects", "AFFINITY_OBJECTS_BEG"));
  metric("getFREEZE_TIME_SEC", {Field::FREEZE_TIME_SEC},
         remasterStatement("ROUND((e.freeze_time - nvl(b.freeze_time, 0)) / 100,1)", "FREEZE_TIME_SEC"));
  metric("getAFFINITY_OBJECTS_END", {Field::AFFINITY_OBJECTS_END},
         remasterStatement("e.current_objects", "AFFINITY_OBJECTS_END"));
  metric("getCLEANUP_TIME_SEC", {Field::CLEANUP_TIME_SEC},
         remasterStatement("ROUND((e.cleanup_time - nvl(b.cleanup_time, 0)) / 100,1)", "CLEANUP_TIME_SEC"));
  metric("getREPLAYED_LOCKS_SENT", {Field::REPLAYED_LOCKS_SENT},
         remasterStatement("e.replayed_locks_sent - nvl(b.replayed_locks_sent, 0)", "REPLAYED_LOCKS_SENT"));
  metric("getREPLAY_TIME_SEC", {Field::REPLAY_TIME_SEC},
         remasterStatement("ROUND((e.replay_time - nvl(b.replay_time, 0)) / 100,1)", "REPLAY_TIME_SEC"));
  metric("getREPLAYED_LOCKS_RECVD", {Field::REPLAYED_LOCKS_RECVD},
         remasterStatement("e.replayed_locks_received - nvl(b.replayed_locks_received, 0)",
                           "REPLAYED_LOCKS_RECVD"));
  metric(
      "getFIXWRITE_TIME_SEC", {Field::FIXWRITE_TIME_SEC},
      remasterStatement("ROUND((e.fixwrite_time - nvl(b.fixwrite_time, 0)) / 100,1)", "FIXWRITE_TIME_SEC"));
  metric("getRESOURCES_CLEANED", {Field::RESOURCES_CLEANED},
         remasterStatement("e.resources_cleaned - nvl(b.resources_cleaned, 0)", "RESOURCES_CLEANED"));
  metric("getSYNC_TIME_SEC", {Field::SYNC_TIME_SEC},
         remasterStatement("ROUND((e.sync_time - nvl(b.sync_time, 0)) / 100,1)", "SYNC_TIME_SEC"));
}

}  // namespace kestrelix
