#include "sections/sql/lagWindowStatement.h"

#include "report/statement.h"
#include "sections/sql/sqlTotals.h"

namespace kestrelix {
namespace {

/// Each row of the range with its predecessor's figures. Counters begin at nothing: a statement's first row
/// has a predecessor of snapshot -1, of an address of zero bytes and of zero counters. The figures of hard
/// parses, the following snapshot and the earlier memory are part of the text though no ranking shows them.
std::string rowLevel() {
  const std::string window = " over (partition by old_hash_value,dbid,instance_number order by snap_id)";
  std::string text = R"sql(
    select /*+ first_rows */ snap_id, old_hash_value, hash_value, text_subset, module,
           lag(snap_id, 1, -1))sql" +
                     window + " AS prev_snap_id, lead(snap_id, 1, -1)" + window +
                     " AS next_snap_id, address, lag(address, 1, hextoraw(0))" + window + " AS prev_address";
  for (const char* counter :
       {"buffer_gets", "cpu_time", "executions", "elapsed_time", "disk_reads", "user_io_wait_time",
        "parse_calls", "sharable_mem", "version_count", "cluster_wait_time", "rows_processed"}) {
    const std::string name = counter;
    text += ", " + name + ", lag(" + name + ", 1, 0)" + window + " AS prev_" + name;
  }
  text += ", avg_hard_parse_time, last_value(sharable_mem)" + window +
          " AS last_sharable_mem, last_value(version_count)" + window + " AS last_version_count";
  return text + R"sql(
      from stats$sql_summary s
     where s.snap_id between :B3 and :B4
       and s.dbid = :B1
       and s.instance_number = :B2)sql";
}

/// The first row at the start of the range only sets the base.
const std::string kBaseRow = "snap_id = :B3 and prev_snap_id = -1";

/// Another address, or a counter that fell, tells of a reloaded cursor: its whole value is new.
std::string delta(const std::string& counter) {
  return "sum(case when " + kBaseRow + " then 0 when address != prev_address or " + counter + " < prev_" +
         counter + " then " + counter + " else " + counter + " - prev_" + counter + " end) AS delta_" +
         counter;
}

std::string deltaLevel() {
  std::string text = "select old_hash_value, text_subset, module, hash_value, address";
  for (const char* counter :
       {"buffer_gets", "executions", "cpu_time", "elapsed_time", "disk_reads", "user_io_wait_time",
        "parse_calls", "version_count", "cluster_wait_time", "rows_processed"})
    text += ", " + delta(counter);
  return text + ", avg(case when " + kBaseRow +
         R"sql( then 0 else avg_hard_parse_time end) AS avg_hard_parse_time,
           max(sharable_mem) AS max_sharable_mem,
           max(version_count) AS max_version_count,
           sum(case when snap_id = :B4 then last_sharable_mem else 0 end) AS last_sharable_mem,
           sum(case when snap_id = :B4 then last_version_count else 0 end) AS last_version_count
      from ()sql" +
         rowLevel() + ") group by old_hash_value,text_subset,module,hash_value,address";
}

/// The groups that did anything or are large: BB.
std::string activeStatements() {
  return "(select * from (" + deltaLevel() + R"sql()
     where delta_buffer_gets > 0
        or delta_executions > 0
        or delta_cpu_time > 0
        or delta_disk_reads > 0
        or delta_parse_calls > 0
        or max_sharable_mem >= )sql" +
         sqlThreshold("SHARABLE_MEM_TH") + " or max_version_count >= " + sqlThreshold("VERSION_COUNT_TH") +
         " or delta_cluster_wait_time > 0) BB";
}

/// The one row of the system's total: AA.
std::string total(const SqlTotal& total) {
  if (total.source == SqlTotal::Source::Parameter) return sqlTotalAt(total, ":B4", "TOTAL") + " AA";
  return "(select b.END_VALUE - a.START_VALUE AS TOTAL from " + sqlTotalAt(total, ":B3", "START_VALUE") +
         " a, " + sqlTotalAt(total, ":B4", "END_VALUE") + " b) AA";
}

std::string perExecution(const std::string& figure) {
  return "decode(delta_executions, 0, ' ',ROUND(" + figure + "/delta_executions,2))";
}

/// Microseconds as seconds, and per execution.
std::string seconds(const std::string& delta, const std::string& name) {
  return delta + " AS DELTA_" + name + ", ROUND(" + delta + "/1000000,2) AS " + name + ", " +
         perExecution(delta + "/1000000") + " AS " + name + "_PEXEC, ";
}

std::string count(const std::string& delta, const std::string& name) {
  return delta + " AS " + name + ", " + perExecution(delta) + " AS " + name + "_PEXEC, ";
}

/// TOTAL stays beside the shown total, unrounded, for the cut-off.
std::string totalColumns(const SqlRanking& ranking) {
  if (!ranking.hasTotal()) return {};
  const bool inSeconds = ranking.total.source == SqlTotal::Source::TimeModel;
  return "AA.TOTAL, " + std::string(inSeconds ? "ROUND(AA.TOTAL/1000000,2)" : "AA.TOTAL") + " AS " +
         ranking.total.column + ", decode(AA.TOTAL, 0, ' ',ROUND(100*" + ranking.share.delta +
         "/AA.TOTAL,1)) AS TOTAL_PRE, ";
}

std::string clusterColumns(const SqlRanking& ranking) {
  if (!ranking.showsClusterWaits()) return {};
  return "decode(delta_elapsed_time, 0, ' ',ROUND(100*delta_cluster_wait_time/delta_elapsed_time,1)) AS "
         "CLUSTER_WAIT_PRE_ELAPSED, " +
         perExecution("delta_cluster_wait_time/1000000") + " AS CLUSTER_WAIT_TIME_PEXEC, ";
}

/// All columns of the ranking: CC.
std::string columnLevel(const SqlRanking& ranking) {
  return "(select OLD_HASH_VALUE, HASH_VALUE, ADDRESS, delta_executions AS EXECUTIONS, " +
         totalColumns(ranking) + seconds("delta_cpu_time", "CPU_TIME") +
         seconds("delta_elapsed_time", "ELAPSED_TIME") + seconds("delta_user_io_wait_time", "IO_WAIT_TIME") +
         count("delta_buffer_gets", "BUFFER_GETS") + count("delta_disk_reads", "DISK_READS") +
         count("delta_rows_processed", "ROWS_PROCESSED") + clusterColumns(ranking) + R"sql(
           delta_parse_calls AS PARSE_CALLS,
           MAX_SHARABLE_MEM, LAST_SHARABLE_MEM,
           MAX_VERSION_COUNT, LAST_VERSION_COUNT, DELTA_VERSION_COUNT,
           delta_cluster_wait_time AS DELTA_CLUSTER_WAIT_TIME,
           ROUND(delta_cluster_wait_time/1000000,2) AS CLUSTER_WAIT_TIME,
           DECODE(module,null, ' ',module) AS MODULE
      from )sql" +
         (ranking.hasTotal() ? total(ranking.total) + ", " : "") + activeStatements() + ") CC";
}

/// A total of zero lets all pass, an unknown one none.
std::string cutOff(const SqlRanking& ranking) {
  switch (ranking.cutOff) {
    case SqlCutOff::LeastShare:
      return "decode(CC.TOTAL, 0, 2, null, 2, 100 * CC." + ranking.share.column +
             "/CC.TOTAL) > decode(CC.TOTAL, 0, 1, null, 2, :PAR)";
    case SqlCutOff::Waited:
      return "CC." + ranking.sort.column + " > 0";
    case SqlCutOff::Threshold:
      return "CC." + ranking.sort.column + " > " + sqlThreshold(ranking.threshold);
  }
  return {};
}

std::string sortKey(const SqlRanking& ranking, SqlSort sort) {
  const std::string measure = "CC." + ranking.sort.column;
  return sort == SqlSort::ByMeasure ? measure : "DECODE(CC.EXECUTIONS,0,0," + measure + "/CC.EXECUTIONS)";
}

/// The columns that the report shows, in its order.
std::string shownColumns(const SqlRanking& ranking) {
  std::string text;
  for (const SqlColumn& column : sqlColumns(ranking, V11))
    text += (text.empty() ? "" : ", ") +
            (sqlAlias(column) == "ADDRESS" ? "RAWTOHEX(ADDRESS) AS ADDRESS" : sqlAlias(column));
  return text;
}

}  // namespace

std::string lagWindowList(const SqlRanking& ranking, SqlSort sort) {
  return fold("select " + shownColumns(ranking) + " from (select CC.* from " + columnLevel(ranking) +
              " where " + cutOff(ranking) + " order by " + sortKey(ranking, sort) +
              " desc, CC.OLD_HASH_VALUE) where rownum <= :TOP_NUM");
}

std::string lagWindowOne(const SqlRanking& ranking) {
  return fold("select " + shownColumns(ranking) + " from " + columnLevel(ranking) +
              " where CC.OLD_HASH_VALUE = :B5");
}

}  // namespace kestrelix
