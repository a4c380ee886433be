#include "sections/activity_io/clsInstanceActivityStats.h"

#include "sections/shared/totals.h"

namespace kestrelix {
namespace {

/// Statistics that are levels: their difference says nothing.
const char* const kLevels =
    "('logons current', 'opened cursors current', 'workarea memory allocated', 'session cursor cache count')";

const char* const kKey = " and b.name = :B5";

/// Both ends of the pair; `columns` and `which` tell what is shown of which statistics.
std::string sysstat(const std::string& columns, const std::string& which) {
  return "select b.name AS STATISTIC, " + columns + R"sql(
      from stats$sysstat b, stats$sysstat e
     where b.snap_id = :B3
       and e.snap_id = :B4
       and b.dbid = :B1
       and e.dbid = :B1
       and b.instance_number = :B2
       and e.instance_number = :B2
       and b.name = e.name
       and )sql" +
         which;
}

std::string cumulative(const std::string& tail) {
  return fold(sysstat(R"sql(
           e.value - b.value AS TOTAL,
           DECODE(:ela,0,' ',ROUND((e.value - b.value) / :ela,1)) AS PER_SECOND,
           DECODE(:tran,0,' ',ROUND((e.value - b.value) / :tran,1)) AS PER_TRANS)sql",
                      std::string("e.name not in ") + kLevels + " and e.value >= b.value and e.value > 0") +
              tail);
}

std::string levels(const std::string& tail) {
  return fold(sysstat("b.value AS START_VALUE, e.value AS END_VALUE",
                      std::string("e.name in ") + kLevels + " and (b.value > 0 or e.value > 0)") +
              tail);
}

/// One statistic only, so that the Col view needs no key.
const char* const kLogSwitches = R"sql(
    select 'log switches (derived)' AS STATISTIC,
           e.sequence# - b.sequence# AS TOTAL,
           DECODE(:ela,0,' ',ROUND((e.sequence# - b.sequence#) / (:ela / 3600),2)) AS PER_HOUR
      from stats$thread e, stats$thread b
     where b.snap_id = :B3
       and e.snap_id = :B4
       and b.dbid = :B1
       and e.dbid = :B1
       and b.instance_number = :B2
       and e.instance_number = :B2
       and b.thread# = e.thread#
       and b.thread_instance_number = e.thread_instance_number
       and e.thread_instance_number = :B2)sql";

}  // namespace

clsInstanceActivityStats::clsInstanceActivityStats()
    : ListSectionObject("clsInstanceActivityStats", fieldNames(),
                        {argument("B5", ServerType::String), elapsed(), transactions()}) {
  const auto main1 = {Field::STATISTIC, Field::TOTAL, Field::PER_SECOND, Field::PER_TRANS};
  all("getMAIN1_ALL", cumulative(" order by STATISTIC")).reading(main1);
  col("getMAIN1_COL", cumulative(kKey)).reading(main1);
  const auto main2 = {Field::STATISTIC, Field::START_VALUE, Field::END_VALUE};
  all("getMAIN2_ALL", levels("")).reading(main2).only(V10_11);
  col("getMAIN2_COL", levels(kKey)).reading(main2).only(V10_11);
  const auto main3 = {Field::STATISTIC, Field::TOTAL, Field::PER_HOUR};
  all("getMAIN3_ALL", fold(kLogSwitches)).reading(main3).only(V10_11);
  col("getMAIN3_COL", fold(kLogSwitches)).reading(main3).only(V10_11);
}

}  // namespace kestrelix
