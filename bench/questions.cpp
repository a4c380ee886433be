#include "bench/questions.h"

#include <algorithm>
#include <stdexcept>

#include "sections/EveryStatement.h"

namespace kestrelix::bench {
namespace {

std::string sent(const std::string& owner, const std::string& member) {
  // A ranking has one text for each release; the first is that of release 11.
  for (const auto& statement : everyStatement())
    if (statement.owner == owner && statement.member == member) return statement.text;
  throw std::runtime_error("no statement " + member);
}

const char* const kDelta = R"sql(
  SELECT b.name, e.value - b.value,
         CASE :ela WHEN 0 THEN ' ' ELSE round((e.value - b.value) * 1.0 / :ela, 1) END,
         CASE :tran WHEN 0 THEN ' ' ELSE round((e.value - b.value) * 1.0 / :tran, 1) END
    FROM stats$sysstat b
    JOIN stats$sysstat e ON e.dbid = :B1 AND e.instance_number = :B2 AND e.snap_id = :B4 AND e.name = b.name
   WHERE b.dbid = :B1 AND b.instance_number = :B2 AND b.snap_id = :B3
     AND e.name NOT IN ('logons current', 'opened cursors current', 'workarea memory allocated',
                        'session cursor cache count')
     AND e.value >= b.value AND e.value > 0
   ORDER BY b.name)sql";

const char* const kTop = R"sql(
  SELECT event, coalesce(waits, ' '), round(time), coalesce(round(avwait), ' '), round(pctwtt, 1)
    FROM (SELECT e.event AS event, e.total_waits - coalesce(b.total_waits, 0) AS waits,
                 (e.time_waited_micro - coalesce(b.time_waited_micro, 0)) / 1000000.0 AS time,
                 (e.time_waited_micro - coalesce(b.time_waited_micro, 0)) / 1000.0
                 / nullif(e.total_waits - coalesce(b.total_waits, 0), 0) AS avwait,
                 CASE :TWT + :TCPU * 10000 WHEN 0 THEN 0
                 ELSE 100.0 * (e.time_waited_micro - coalesce(b.time_waited_micro, 0)) / (:TWT + :TCPU * 10000)
                 END AS pctwtt
            FROM stats$system_event e
            LEFT JOIN stats$system_event b ON b.dbid = :B1 AND b.instance_number = :B2 AND b.snap_id = :B3
                                          AND b.event = e.event
           WHERE e.dbid = :B1 AND e.instance_number = :B2 AND e.snap_id = :B4
             AND e.total_waits > coalesce(b.total_waits, 0)
             AND e.event NOT IN (SELECT event FROM stats$idle_event)
          UNION ALL
          SELECT 'CPU time', NULL, :TCPU / 100.0, NULL,
                 CASE :TWT + :TCPU * 10000 WHEN 0 THEN 0 ELSE 100.0 * :TCPU * 10000 / (:TWT + :TCPU * 10000) END
           WHERE :TCPU > 0
           ORDER BY 3 DESC, 2 DESC LIMIT :B5))sql";

std::string rankingDelta(const std::string& counter) {
  return "sum(CASE WHEN snap_id = :B3 AND prev_snap_id = -1 THEN 0 WHEN address <> prev_address OR " +
         counter + " < prev_" + counter + " THEN " + counter + " ELSE " + counter + " - prev_" + counter +
         " END) AS d_" + counter;
}

std::string ranking() {
  const char* const counters[] = {"buffer_gets",    "executions",        "cpu_time",    "elapsed_time",
                                  "disk_reads",     "user_io_wait_time", "parse_calls", "version_count",
                                  "rows_processed", "cluster_wait_time"};
  std::string deltas;
  std::string lags;
  for (const std::string counter : counters) {
    deltas += rankingDelta(counter) + ", ";
    lags += counter + ", lag(" + counter + ", 1, 0) OVER w AS prev_" + counter + ", ";
  }
  const std::string perRun = " CASE d_executions WHEN 0 THEN ' ' ELSE round(";
  return "WITH total AS (SELECT e.value - b.value AS gets FROM stats$sysstat b, stats$sysstat e"
         " WHERE b.dbid = :B1 AND b.instance_number = :B2 AND b.snap_id = :B3 AND b.name = 'session logical "
         "reads'"
         " AND e.dbid = :B1 AND e.instance_number = :B2 AND e.snap_id = :B4 AND e.name = 'session logical "
         "reads')"
         " SELECT old_hash_value, coalesce(module, ' '), d_executions, total.gets,"
         " CASE total.gets WHEN 0 THEN ' ' ELSE round(100.0 * d_buffer_gets / total.gets, 1) END, "
         "d_buffer_gets," +
         perRun + "d_buffer_gets * 1.0 / d_executions, 2) END, d_disk_reads," + perRun +
         "d_disk_reads * 1.0 / d_executions, 2) END, round(d_cpu_time / 1000000.0, 2)," + perRun +
         "d_cpu_time / 1000000.0 / d_executions, 2) END, round(d_elapsed_time / 1000000.0, 2)," + perRun +
         "d_elapsed_time / 1000000.0 / d_executions, 2) END, d_rows_processed," + perRun +
         "d_rows_processed * 1.0 / d_executions, 2) END, round(d_user_io_wait_time / 1000000.0, 2)," +
         perRun +
         "d_user_io_wait_time / 1000000.0 / d_executions, 2) END, d_parse_calls, max_mem, last_mem, "
         "max_versions,"
         " last_versions, d_version_count, hash_value, hex(address)"
         " FROM (SELECT old_hash_value, module, hash_value, address, " +
         deltas +
         "avg(CASE WHEN snap_id = :B3 AND prev_snap_id = -1 THEN 0 ELSE avg_hard_parse_time END) AS "
         "parse_time,"
         " max(sharable_mem) AS max_mem, max(version_count) AS max_versions,"
         " sum(CASE snap_id WHEN :B4 THEN last_mem ELSE 0 END) AS last_mem,"
         " sum(CASE snap_id WHEN :B4 THEN last_versions ELSE 0 END) AS last_versions"
         " FROM (SELECT snap_id, old_hash_value, hash_value, text_subset, module, address, sharable_mem,"
         " avg_hard_parse_time, " +
         lags +
         "lag(snap_id, 1, -1) OVER w AS prev_snap_id, lag(address, 1, x'00') OVER w AS prev_address,"
         " last_value(sharable_mem) OVER w AS last_mem, last_value(version_count) OVER w AS last_versions"
         " FROM stats$sql_summary WHERE dbid = :B1 AND instance_number = :B2 AND snap_id BETWEEN :B3 AND :B4"
         " WINDOW w AS (PARTITION BY old_hash_value, dbid, instance_number ORDER BY snap_id))"
         " GROUP BY old_hash_value, text_subset, module, hash_value, address) AS s, total"
         " WHERE (d_buffer_gets > 0 OR d_executions > 0 OR d_cpu_time > 0 OR d_disk_reads > 0 OR "
         "d_parse_calls > 0"
         " OR max_mem >= (SELECT sharable_mem_th FROM stats$snapshot WHERE dbid = :B1 AND instance_number = "
         ":B2"
         " AND snap_id = :B4) OR max_versions >= (SELECT version_count_th FROM stats$snapshot WHERE dbid = "
         ":B1"
         " AND instance_number = :B2 AND snap_id = :B4) OR d_cluster_wait_time > 0)"
         " AND (total.gets = 0 OR 100.0 * d_buffer_gets / total.gets > :PAR)"
         " ORDER BY d_buffer_gets DESC, old_hash_value LIMIT :TOP_NUM";
}

const char* const kWaits = R"sql(
  SELECT event, waits, coalesce(round(pctto), ' '), coalesce(round(time), ' '), coalesce(round(avwt), ' '),
         coalesce(round(txwaits, 1), ' ')
    FROM (SELECT e.event AS event, e.total_waits - coalesce(b.total_waits, 0) AS waits,
                 100.0 * (e.total_timeouts - coalesce(b.total_timeouts, 0))
                 / nullif(e.total_waits - coalesce(b.total_waits, 0), 0) AS pctto,
                 (e.time_waited_micro - coalesce(b.time_waited_micro, 0)) / 1000000.0 AS time,
                 (e.time_waited_micro - coalesce(b.time_waited_micro, 0)) / 1000.0
                 / nullif(e.total_waits - coalesce(b.total_waits, 0), 0) AS avwt,
                 (e.total_waits - coalesce(b.total_waits, 0)) * 1.0 / nullif(:TRAN, 0) AS txwaits
            FROM stats$system_event e
            LEFT JOIN stats$system_event b ON b.dbid = :B1 AND b.instance_number = :B2 AND b.snap_id = :B3
                                          AND b.event = e.event
           WHERE e.dbid = :B1 AND e.instance_number = :B2 AND e.snap_id = :B4 AND e.event = :ENAME
             AND e.total_waits > coalesce(b.total_waits, 0)
             AND (:TIMSTAT IN ('FALSE', 'INCONSISTENT')
                  OR :TIMSTAT = 'TRUE'
                     AND (e.time_waited_micro - coalesce(b.time_waited_micro, 0)) / 1000000.0 >= .001)
             AND e.event NOT IN ('smon timer', 'pmon timer', 'dispatcher timer', 'dispatcher listen timer',
                                 'rdbms ipc message')))sql";

const char* const kParameters = R"sql(
  SELECT e.name, coalesce(b.value, ' '),
         CASE WHEN e.value IS NULL THEN ' ' WHEN b.value IS e.value THEN ' ' ELSE e.value END
    FROM stats$parameter e
    LEFT JOIN stats$parameter b ON b.dbid = :B1 AND b.instance_number = :B2 AND b.snap_id = :B3
                               AND b.name = e.name
   WHERE e.dbid = :B1 AND e.instance_number = :B2 AND e.snap_id = :B4
     AND substr(e.name, 1, 2) <> '__'
     AND (b.isdefault = 'FALSE' OR coalesce(b.ismodified, 'X') <> 'FALSE' OR e.ismodified <> 'FALSE'
          OR coalesce(e.value, '0') <> coalesce(b.value, '0'))
   ORDER BY e.name)sql";

}  // namespace

std::vector<Question> questions() {
  return {
      {"delta of stats$sysstat",
       sent("clsInstanceActivityStats", "getMAIN1_ALL"),
       kDelta,
       {{"ela", "3600"}, {"tran", "4711"}}},
      {"top 10 of the waits",
       sent("clsTopNWaitEvents", "getTOP_N_WAIT_EVENTS"),
       kTop,
       {{"TWT", "987654321"}, {"TCPU", "123456"}, {"B5", "10"}}},
      {"ranking by lag windows",
       sent("clsSQLorderedby", "getSQL_ORDERED_BY_GETS_TOTAL"),
       ranking(),
       {{"B5", "0"}, {"PAR", "1"}, {"TOP_NUM", "65"}}},
      {"one wait over 700 pairs",
       sent("clsWaitEvents", "getT_WAIT_EVENTS"),
       kWaits,
       {{"ENAME", "wait event number 28", true}, {"TIMSTAT", "TRUE", true}, {"TRAN", "4711"}},
       700},
      {"changed parameters",
       sent("clsinitParameters", "getINIT_PARAMETERS_ALL"),
       kParameters,
       {{"B5", "", true}}},
  };
}

std::string longestStatement() {
  const auto all = everyStatement();
  return std::max_element(all.begin(), all.end(),
                          [](const auto& a, const auto& b) { return a.text.size() < b.text.size(); })
      ->text;
}

}  // namespace kestrelix::bench
