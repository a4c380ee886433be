#include "sections/summary/clsTimeModelSystemStats.h"

namespace kestrelix {
namespace {

/// The statistics at one snapshot, or that one alone which `condition` tells.
std::string timesAt(const std::string& snapshot, const std::string& condition) {
  return R"sql(
    (select sn.DBID, sn.INSTANCE_NUMBER, sn.SNAP_ID, sn.SNAP_TIME, na.STAT_NAME, tm.VALUE
       from stats$snapshot sn, stats$sys_time_model tm, stats$time_model_statname na
      where sn.DBID = :B1
        and sn.INSTANCE_NUMBER = :B2
        and sn.SNAP_ID = )sql" +
         snapshot + R"sql(
        and tm.DBID = sn.DBID
        and tm.INSTANCE_NUMBER = sn.INSTANCE_NUMBER
        and tm.SNAP_ID = sn.SNAP_ID
        and na.STAT_ID = tm.STAT_ID)sql" +
         condition + ")";
}

/// What `columns` makes of each statistic's start s and end e.
std::string times(const std::string& columns, const std::string& condition = {}) {
  return "(select s.DBID, s.INSTANCE_NUMBER, s.SNAP_ID AS START_ID, " + columns + " from " +
         timesAt(":B3", condition) + " s, " + timesAt(":B4", condition) + R"sql( e
      where s.DBID = e.DBID
        and s.INSTANCE_NUMBER = e.INSTANCE_NUMBER
        and s.STAT_NAME = e.STAT_NAME))sql";
}

/// Statistics with time in the pair: first the parts of DB time, the largest share first, then DB time
/// itself, then the background's, which aren't part of it. `key` narrows them to one.
std::string timeModelStatement(const std::string& key) {
  return fold(R"sql(
    select DBID, INSTANCE_NUMBER, START_TIME, START_ID, END_TIME, END_ID,
           STATISTIC,
           ROUND(TIME_VALUE,1) AS TIME_VALUE,
           DECODE(PER_DBTIME_VALUE,null,' ',ROUND(PER_DBTIME_VALUE,1)) AS PER_DBTIME_VALUE
      from (select AA.DBID, AA.INSTANCE_NUMBER, AA.START_TIME, AA.START_ID, AA.END_TIME, AA.END_ID,
                   AA.STATISTIC,
                   AA.TIMES / 1000000 AS TIME_VALUE,
                   decode(AA.ORDER_COL, 0, 100 * AA.TIMES / BB.VALUE, to_number(null)) AS PER_DBTIME_VALUE
              from )sql" +
              times(R"sql(s.SNAP_TIME AS START_TIME, e.SNAP_TIME AS END_TIME, e.SNAP_ID AS END_ID,
                          s.STAT_NAME AS STATISTIC,
                          e.VALUE - s.VALUE AS TIMES,
                          decode(s.STAT_NAME, 'DB time', 1, 'background cpu time', 2,
                                 'background elapsed time', 2, 0) AS ORDER_COL)sql") +
              " AA, " + times("e.VALUE - s.VALUE AS VALUE", " and na.STAT_NAME = 'DB time'") + R"sql( BB
             where AA.DBID = BB.DBID
               and AA.INSTANCE_NUMBER = BB.INSTANCE_NUMBER
               and AA.START_ID = BB.START_ID
               and AA.TIMES > 0 )sql" +
              key + R"sql(
             order by AA.DBID, AA.INSTANCE_NUMBER, AA.START_ID, AA.ORDER_COL,
                      decode(PER_DBTIME_VALUE, null, TIME_VALUE, PER_DBTIME_VALUE) desc))sql");
}

}  // namespace

clsTimeModelSystemStats::clsTimeModelSystemStats()
    : ListSectionObject("clsTimeModelSystemStats", fieldNames(), {argument("B5", ServerType::String)}) {
  all("getTIME_MODEL_SYSTEM_STATS_ALL", timeModelStatement(""));
  col("getTIME_MODEL_SYSTEM_STATS_COL", timeModelStatement("and   AA.STATISTIC = :B5"));
}

}  // namespace kestrelix
