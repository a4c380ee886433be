#include "sections/activity_io/clsOSStatistics.h"

namespace kestrelix {
namespace {

struct Word {
  const char* word;
  int weight;
};

/// Names are sorted by what they are about; one that holds two of the words sorts by the sum of their
/// weights.
std::string sortWeight(const std::vector<Word>& words) {
  std::string sum;
  for (const auto& [word, weight] : words)
    sum += std::string(sum.empty() ? "" : " + ") + "to_number(decode(sign(instrb(osn.stat_name, '" + word +
           "')), 1, " + std::to_string(weight) + ", 0))";
  return sum;
}

struct Release {
  std::string total;
  std::vector<Word> words;
  std::string names;
};

/// Up to release 10 nothing tells levels from counters but their ids.
const Release kByIds{
    "decode(osn.osstat_id, 0, e.value, 15, e.value, 16, e.value, 17, e.value, 1008, e.value, e.value - "
    "b.value)",
    {{"TIME", 1}, {"LOAD", 2}, {"CPU_WAIT", 3}, {"VM_", 4}, {"PHYSICAL_MEMORY", 5}, {"NUM_CPU", 6}},
    "osn.stat_name not like 'AVG_%'"};
const Release kByName{"decode(osn.cumulative, 'NO', e.value, e.value - b.value)",
                      {{"TIME", 1},
                       {"LOAD", 2},
                       {"CPU_WAIT", 3},
                       {"VM_", 4},
                       {"PHYSICAL_MEMORY", 5},
                       {"NUM_CPU", 6},
                       {"TCP", 7},
                       {"GLOBAL", 7}},
                      "(osn.stat_name not like 'AVG_%' and osn.stat_name not like '%LOAD%')"};

std::string statement(const Release& release, const std::string& key, const std::string& sort) {
  return fold(R"sql(
    select Z.STATISTIC AS STATISTIC, ROUND(Z.TOTAL) AS TOTAL
      from
     (select osn.stat_name AS STATISTIC, )sql" +
              release.total + " AS TOTAL, " + sortWeight(release.words) + R"sql( AS STYP
        from stats$osstat b, stats$osstat e, stats$osstatname osn
       where b.snap_id = :B3
         and e.snap_id = :B4
         and b.dbid = :B1
         and e.dbid = :B1
         and b.instance_number = :B2
         and e.instance_number = :B2
         and b.osstat_id = e.osstat_id
         and osn.osstat_id = e.osstat_id
         and )sql" +
              release.names + " and e.value >= b.value and e.value > 0 " + key + ") Z " + sort);
}

}  // namespace

clsOSStatistics::clsOSStatistics()
    : ListSectionObject("clsOSStatistics", fieldNames(), {argument("B5", ServerType::String)}) {
  const std::string key = "and osn.stat_name = :B5";
  const std::string sort = "order by STYP, STATISTIC";
  all("getOS_STATISTICS_ALL", statement(kByIds, "", sort)).only(V9_10);
  col("getOS_STATISTICS_COL", statement(kByIds, key, "")).only(V9_10);
  all("getOS_STATISTICS_ALL", statement(kByName, "", sort)).only(V11);
  col("getOS_STATISTICS_COL", statement(kByName, key, "")).only(V11);
}

}  // namespace kestrelix
