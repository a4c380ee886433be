#include "sections/sql/twoSnapshotStatement.h"

#include <map>
#include <vector>

#include "report/statement.h"
#include "sections/sql/sqlTotals.h"

namespace kestrelix {
namespace {

/// A counter of stats$sql_summary with a value per execution in the report.
struct Counter {
  std::string column;
  std::string alias;
};

std::vector<Counter> counters(const SqlRanking& ranking, Versions version) {
  std::vector<Counter> list{{"CPU_TIME", "CPU_TIME"},
                            {"ELAPSED_TIME", "ELAPSED_TIME"},
                            {"BUFFER_GETS", "BUFFER_GETS"},
                            {"DISK_READS", "DISK_READS"},
                            {"ROWS_PROCESSED", "ROWS_PROCESSED"}};
  if (version != V9) list.push_back({"USER_IO_WAIT_TIME", "IO_WAIT_TIME"});
  if (ranking.showsClusterWaits()) list.push_back({"CLUSTER_WAIT_TIME", "CLUSTER_WAIT_TIME"});
  return list;
}

/// The column that tells statements apart.
std::string hashColumn(Versions version) { return version == V9 ? "HASH_VALUE" : "OLD_HASH_VALUE"; }

std::vector<std::string> identity(Versions version) {
  if (version == V9) return {"HASH_VALUE", "TEXT_SUBSET", "ADDRESS"};
  return {"OLD_HASH_VALUE", "TEXT_SUBSET", "ADDRESS"};
}

/// The statements captured by the snapshot of that bind.
std::string captured(const std::string& bind, const SqlRanking& ranking, Versions version) {
  std::string text =
      "(select st.DBID, st.INSTANCE_NUMBER, st.SNAP_ID, sm.HASH_VALUE, sm.TEXT_SUBSET, "
      "sm.ADDRESS, sm.MODULE, sm.EXECUTIONS, sm.PARSE_CALLS, sm.SHARABLE_MEM, sm.VERSION_COUNT";
  if (version != V9) text += ", sm.OLD_HASH_VALUE";
  for (const Counter& counter : counters(ranking, version)) text += ", sm." + counter.column;
  return text + R"sql(
      from stats$snapshot st, stats$sql_summary sm
     where st.DBID = sm.DBID
       and st.INSTANCE_NUMBER = sm.INSTANCE_NUMBER
       and st.SNAP_ID = sm.SNAP_ID
       and st.SNAP_ID = )sql" +
         bind + " and sm.DBID = :B1 and sm.INSTANCE_NUMBER = :B2)";
}

std::string delta(const std::string& column) { return "(b." + column + " - nvl(a." + column + ",0))"; }

/// The statements that ran in the pair, or, ranked by cluster waits, that waited: AA.
std::string statements(const SqlRanking& ranking, Versions version) {
  std::string text =
      "(select b.DBID, b.INSTANCE_NUMBER, b.SNAP_ID AS END_SNAP_ID, b.HASH_VALUE, b.ADDRESS, "
      "b.MODULE, b.SHARABLE_MEM, b.VERSION_COUNT, ";
  if (version != V9) text += "b.OLD_HASH_VALUE, ";
  text += delta("EXECUTIONS") + " AS EXECUTIONS, " + delta("PARSE_CALLS") + " AS PARSE_CALLS";
  for (const Counter& counter : counters(ranking, version))
    text += ", " + delta(counter.column) + " AS " + counter.alias + ", DECODE(" + delta("EXECUTIONS") +
            ",0,0," + delta(counter.column) + " / " + delta("EXECUTIONS") + ") AS " + counter.alias +
            "_PEXEC";
  text += " from " + captured(":B3", ranking, version) + " a, " + captured(":B4", ranking, version) +
          " b where a.DBID(+) = b.DBID and a.INSTANCE_NUMBER(+) = b.INSTANCE_NUMBER";
  for (const std::string& column : identity(version)) text += " and a." + column + "(+) = b." + column;
  const std::string grown = ranking.showsClusterWaits() ? "CLUSTER_WAIT_TIME" : "EXECUTIONS";
  return text + " and b." + grown + " > nvl(a." + grown + ",0)) AA";
}

/// TOTAL_PHYSICAL_READS of the report is PHYSICAL_READS here.
std::string totalName(const SqlTotal& total) {
  const std::string prefix = "TOTAL_";
  return total.column.starts_with(prefix) ? total.column.substr(prefix.size()) : total.column;
}

/// The system's total in the pair: BB.
std::string total(const SqlTotal& total) {
  if (total.source == SqlTotal::Source::Parameter) return sqlTotalAt(total, ":B4", totalName(total)) + " BB";
  return "(select b.DBID, b.INSTANCE_NUMBER, b.SNAP_ID, b.VALUE - a.VALUE AS " + totalName(total) + " from " +
         sqlTotalAt(total, ":B3", "VALUE") + " a, " + sqlTotalAt(total, ":B4", "VALUE") +
         " b where a.DBID = b.DBID and a.INSTANCE_NUMBER = b.INSTANCE_NUMBER) BB";
}

/// What each column of the report shows. No divisor is guarded: a total of zero is the server's error.
std::map<std::string, std::string> expressions(const SqlRanking& ranking) {
  std::map<std::string, std::string> is{{"ADDRESS", "RAWTOHEX(AA.ADDRESS)"},
                                        {"MODULE", "DECODE(AA.MODULE,null, ' ',AA.MODULE)"}};
  for (const char* time : {"CPU_TIME", "ELAPSED_TIME", "IO_WAIT_TIME", "CLUSTER_WAIT_TIME"})
    for (const std::string& name : {std::string(time), std::string(time) + "_PEXEC"})
      is[name] = "ROUND(AA." + name + " / 1000000,2)";
  for (const std::string name : {"BUFFER_GETS_PEXEC", "DISK_READS_PEXEC", "ROWS_PROCESSED_PEXEC"})
    is[name] = "ROUND(AA." + name + ",2)";
  is["CLUSTER_WAIT_PRE_ELAPSED"] = "ROUND(AA.CLUSTER_WAIT_TIME / AA.ELAPSED_TIME * 100,1)";
  if (ranking.hasTotal()) {
    const std::string name = "BB." + totalName(ranking.total);
    const bool inSeconds = ranking.total.source == SqlTotal::Source::TimeModel;
    is[ranking.total.column] = inSeconds ? "ROUND((" + name + " / 1000000),2)" : name;
    is["TOTAL_PRE"] = "ROUND(AA." + ranking.share.pair + " / " + name + " * 100,1)";
  }
  return is;
}

std::string shownColumns(const SqlRanking& ranking, Versions version) {
  const auto is = expressions(ranking);
  std::string text;
  for (const SqlColumn& column : sqlColumns(ranking, version)) {
    const auto found = is.find(sqlAlias(column));
    text += (text.empty() ? "" : ", ") + (found == is.end() ? "AA." + sqlAlias(column) : found->second) +
            " AS " + sqlAlias(column);
  }
  return text;
}

/// How the totals are joined, and what the list leaves out, in All and Col statements alike.
std::vector<std::string> joinConditions(const SqlRanking& ranking) {
  if (!ranking.hasTotal()) return {};
  std::vector<std::string> conditions{"AA.DBID = BB.DBID", "AA.INSTANCE_NUMBER = BB.INSTANCE_NUMBER",
                                      "AA.END_SNAP_ID = BB.SNAP_ID"};
  if (ranking.total.mustBePositive) conditions.push_back("BB." + totalName(ranking.total) + " > 0");
  return conditions;
}

std::string query(const SqlRanking& ranking, Versions version, const std::vector<std::string>& more) {
  std::string text = "select " + shownColumns(ranking, version) + " from " + statements(ranking, version);
  if (ranking.hasTotal()) text += ", " + total(ranking.total);
  std::vector<std::string> conditions = joinConditions(ranking);
  conditions.insert(conditions.end(), more.begin(), more.end());
  for (std::size_t i = 0; i < conditions.size(); ++i) text += (i == 0 ? " where " : " and ") + conditions[i];
  return text;
}

/// Statements that did not wait are left out of AA already.
std::vector<std::string> cutOff(const SqlRanking& ranking) {
  switch (ranking.cutOff) {
    case SqlCutOff::LeastShare:
      return {"AA." + ranking.share.pair + " / BB." + totalName(ranking.total) + " * 100 >= :PAR"};
    case SqlCutOff::Waited:
      return {};
    case SqlCutOff::Threshold:
      return {"AA." + ranking.sort.pair + " > " + sqlThreshold(ranking.threshold)};
  }
  return {};
}

}  // namespace

std::string twoSnapshotList(const SqlRanking& ranking, Versions version, SqlSort sort) {
  const std::string key = "AA." + ranking.sort.pair + (sort == SqlSort::PerExecution ? "_PEXEC" : "");
  return fold("select * from (" + query(ranking, version, cutOff(ranking)) + " order by " + key +
              " desc,AA." + hashColumn(version) + ") where rownum < :TOP_NUM");
}

std::string twoSnapshotOne(const SqlRanking& ranking, Versions version) {
  return fold(query(ranking, version, {"AA." + hashColumn(version) + " = :B5"}));
}

}  // namespace kestrelix
