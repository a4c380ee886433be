#include "sections/summary/clsSnapshot.h"

namespace kestrelix {
namespace {

/// One end of the pair: its aliases begin with `prefix`, its snapshot is in `bind`.
std::string snapshotStatement(const std::string& prefix, const std::string& bind) {
  return fold(R"sql(
    select st.SNAP_ID AS )sql" +
              prefix + R"sql(_SNAP_ID,
           TO_CHAR(st.SNAP_TIME,'YYYY-MM-DD HH24:MI:SS') AS )sql" +
              prefix + R"sql(_SNAP_TIME,
           lo.VALUE AS )sql" +
              prefix + R"sql(_SESSIONS,
           DECODE(lo.VALUE,0,' ',ROUND(oc.VALUE/lo.VALUE,1)) AS )sql" +
              prefix + R"sql(_CURSOR_PER_SESSION,
           st.SNAP_LEVEL AS )sql" +
              prefix + R"sql(_LEVEL,
           DECODE(st.UCOMMENT,null,' ',st.UCOMMENT) AS )sql" +
              prefix + R"sql(_COMMENT
      from stats$snapshot st, stats$sysstat lo, stats$sysstat oc
     where st.DBID = lo.DBID
       and st.INSTANCE_NUMBER = lo.INSTANCE_NUMBER
       and st.SNAP_ID = lo.SNAP_ID
       and st.DBID = oc.DBID
       and st.INSTANCE_NUMBER = oc.INSTANCE_NUMBER
       and st.SNAP_ID = oc.SNAP_ID
       and st.DBID = :B1
       and st.INSTANCE_NUMBER = :B2
       and st.SNAP_ID = )sql" +
              bind + R"sql(
       and lo.NAME = 'logons current'
       and oc.NAME = 'opened cursors current')sql");
}

/// Whole seconds first, then minutes with two decimals.
const char* const kElapsed = R"sql(
    select ROUND(round(((e.snap_time - s.snap_time) * 1440 * 60), 0)/60,2) AS ELAPSED
      from stats$snapshot s,stats$snapshot e
     where s.DBID = e.DBID
       and s.INSTANCE_NUMBER = e.INSTANCE_NUMBER
       and s.DBID = :B1
       and s.INSTANCE_NUMBER = :B2
       and s.SNAP_ID = :B3
       and e.SNAP_ID = :B4)sql";

}  // namespace

clsSnapshot::clsSnapshot() : MetricSectionObject("clsSnapshot", fieldNames()) {
  metric("getSTART_SNAPSHOT",
         {Field::START_SNAP_ID, Field::START_SNAP_TIME, Field::START_SESSIONS,
          Field::START_CURSOR_PER_SESSION, Field::START_LEVEL, Field::START_COMMENT},
         snapshotStatement("START", ":B3"))
      .acrossRestarts();
  metric("getEND_SNAPSHOT",
         {Field::END_SNAP_ID, Field::END_SNAP_TIME, Field::END_SESSIONS, Field::END_CURSOR_PER_SESSION,
          Field::END_LEVEL, Field::END_COMMENT},
         snapshotStatement("END", ":B4"))
      .acrossRestarts();
  metric("getELAPSED", {Field::ELAPSED}, fold(kElapsed));
}

}  // namespace kestrelix
