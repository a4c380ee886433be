#include "sections/activity_io/clsOSStatisticsdetail.h"

namespace kestrelix {
namespace {

struct Counter {
  const char* raw;    ///< the pivoted column
  const char* delta;  ///< its growth since the snapshot before
};
constexpr Counter kCounters[] = {{"busyt", "busy_time"}, {"idlet", "idle_time"}, {"usert", "user_time"},
                                 {"syst", "sys_time"},   {"iowt", "iowt_time"},  {"cpuwt", "cpuwt_time"}};

/// Share of a time in busy and idle time together. The sum in the DECODE is only a null test.
std::string share(const std::string& time, const std::string& alias) {
  return ", DECODE(" + time + " + busy_time + idle_time,null,' ',ROUND(100 * " + time +
         " / (busy_time + idle_time),1)) AS " + alias;
}

std::string statement() {
  std::string previous;
  std::string deltas;
  for (const auto& [raw, delta] : kCounters) {
    const std::string r = raw;
    previous += ", " + r + ", lag(" + r + ", 1, -1) over (order by snap_id asc) AS prev_" + r;
    deltas += ", DECODE(prev_" + r + ", -1, to_number(null), " + r + " - prev_" + r + ") AS " + delta;
  }
  return "select SNAP_ID AS SNAP_ID, SNAP_TIME AS SNAP_TIME, DECODE(load,null,' ',ROUND(load,1)) AS LOAD" +
         share("busy_time", "PCT_BUSY") + share("user_time", "PCT_USER") + share("sys_time", "PCT_SYS") +
         share("iowt_time", "PCT_IOWT") + share("cpuwt_time", "PCT_CPUWT") +
         " from (select snap_id, snap_time, load" + deltas + " from (select snap_id, snap_time, load" +
         previous + R"sql(
      from (select s.snap_id, sn.stat_name, to_char(ss.snap_time, 'Dy DD HH24:MI:SS') AS snap_time, s.value
              from stats$osstat s, stats$osstatname sn, stats$snapshot ss
             where s.snap_id between :B3 and :B4
               and s.dbid = :B1
               and s.instance_number = :B2
               and sn.osstat_id = s.osstat_id
               and sn.stat_name in ('LOAD','IDLE_TIME','BUSY_TIME','USER_TIME','SYS_TIME','IOWAIT_TIME','CPU_WAIT_TIME')
               and ss.snap_id = s.snap_id
               and ss.dbid = s.dbid
               and ss.instance_number = ss.instance_number)
     PIVOT (sum(value) FOR stat_name IN ('LOAD' AS load, 'IDLE_TIME' AS idlet, 'BUSY_TIME' AS busyt,
                                         'USER_TIME' AS usert, 'SYS_TIME' AS syst, 'IOWAIT_TIME' AS iowt,
                                         'CPU_WAIT_TIME' AS cpuwt))))
     order by SNAP_ID)sql";
}

}  // namespace

clsOSStatisticsdetail::clsOSStatisticsdetail()
    : ListSectionObject("clsOSStatisticsdetail", fieldNames(), {}) {
  all("getOS_STATISTICS_DETAIL_ALL", fold(statement()));
  col("getOS_STATISTICS_DETAIL_COL", fold("select * from (" + statement() + ") Z where Z.SNAP_ID = :B4"));
}

}  // namespace kestrelix
