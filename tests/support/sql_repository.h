// A small repository of captured SQL statements, and the views of it as cells under their headings.
#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/controls/grid.h"
#include "support/fixture_repository.h"

namespace kestrelix::testing_support {

/// One row of stats$sql_summary. Times are in microseconds, as the table has them.
struct Captured {
  int snap;
  int hash;
  long executions = 0;
  long elapsed = 0;
  long cpu = 0;
  long gets = 0;
  long reads = 0;
  long rows = 0;
  long ioWait = 0;
  long clusterWait = 0;
  long parseCalls = 0;
  long memory = 1000;
  long versions = 1;
  std::string address = "00000000000000A1";
  std::string module = "sqlplus";
};

/// The instance 1 of a database 1 with the system's totals at the two ends, snapshots 1 and 3. Snapshot 2 is
/// purged: stats$snapshot lacks it, while statements can still stand under it.
class SqlRepository {
 public:
  explicit SqlRepository(const std::string& major) : major_(major), fixture(major) {
    fixture.withNeighbours().common({{"dbid", "1"}, {"instance_number", "1"}});
    fixture.row("stats$database_instance", {{"startup_time", "2000-01-01 00:00:00"},
                                            {"snap_id", "1"},
                                            {"parallel", "YES"},
                                            {"version", major + ".2.0.4.0"},
                                            {"db_name", "KES"},
                                            {"instance_name", "kes1"},
                                            {"host_name", "host1"}});
    snapshot(1, "2026-01-05 10:00:00").snapshot(3, "2026-01-05 11:00:00");
  }

  /// Statements are captured for their memory from 1,000,000 bytes on and for their versions from 20.
  SqlRepository& snapshot(int id, const std::string& time,
                          const std::string& startup = "2000-01-01 00:00:00") {
    fixture.row("stats$snapshot", {{"snap_id", std::to_string(id)},
                                   {"snap_time", time},
                                   {"snap_level", "7"},
                                   {"startup_time", startup},
                                   {"sharable_mem_th", "1000000"},
                                   {"version_count_th", "20"}});
    return *this;
  }

  SqlRepository& statistic(const std::string& name, const std::string& start, const std::string& end) {
    fixture.rows("stats$sysstat", {"snap_id", "name", "value"}, {{"1", name, start}, {"3", name, end}});
    return *this;
  }

  /// Microseconds.
  SqlRepository& time(const std::string& id, const std::string& name, const std::string& start,
                      const std::string& end) {
    if (major_ == "9") return *this;
    fixture.row("stats$time_model_statname", {{"stat_id", id}, {"stat_name", name}});
    fixture.rows("stats$sys_time_model", {"snap_id", "stat_id", "value"}, {{"1", id, start}, {"3", id, end}});
    return *this;
  }

  SqlRepository& sharedPool(const std::string& name, const std::string& value) {
    fixture.rows("stats$parameter", {"snap_id", "name", "value"}, {{"1", name, "1"}, {"3", name, value}});
    return *this;
  }

  /// Totals of the pair: 50 s of CPU, 100 s of DB time, 10,000 logical and 1,000 physical reads, 200
  /// executions, 100 parses, and a shared pool of 100 MB.
  SqlRepository& usualTotals() {
    return time("1", "DB CPU", "1000000", "51000000")
        .time("2", "DB time", "7000000", "107000000")
        .statistic("session logical reads", "500", "10500")
        .statistic("physical reads", "0", "1000")
        .statistic("execute count", "100", "300")
        .statistic("parse count (total)", "900", "1000")
        .sharedPool("__shared_pool_size", "104857600");
  }

  /// The statement 101, with 1,000 gets in the pair, its text of two pieces and the plan 11.
  SqlRepository& addStatementWithPlan() {
    add({.snap = 1, .hash = 101, .executions = 1, .gets = 100});
    add({.snap = 3, .hash = 101, .executions = 2, .gets = 1100});
    fixture.rows("stats$sqltext", {"old_hash_value", "text_subset", "piece", "sql_text"},
                 {{"101", "select", "0", "select a"}, {"101", "select", "1", "from t"}});
    fixture.row(
        "stats$sql_plan_usage",
        {{"snap_id", "3"}, {"old_hash_value", "101"}, {"text_subset", "select"}, {"plan_hash_value", "11"}});
    fixture.row("stats$sql_plan", {{"plan_hash_value", "11"},
                                   {"id", "0"},
                                   {"depth", "0"},
                                   {"operation", "SELECT STATEMENT"},
                                   {"cost", "2"}});
    return *this;
  }

  SqlRepository& add(const Captured& c) {
    const auto n = [](long value) { return std::to_string(value); };
    const std::string snap = n(c.snap), hash = n(c.hash), executions = n(c.executions), cpu = n(c.cpu),
                      elapsed = n(c.elapsed), gets = n(c.gets), reads = n(c.reads), rows = n(c.rows),
                      parses = n(c.parseCalls), memory = n(c.memory), versions = n(c.versions),
                      ioWait = n(c.ioWait), clusterWait = n(c.clusterWait), newHash = n(c.hash + 9000);
    if (major_ == "9")
      fixture.row("stats$sql_summary", {{"snap_id", snap},
                                        {"hash_value", hash},
                                        {"text_subset", "select"},
                                        {"address", c.address},
                                        {"module", c.module},
                                        {"executions", executions},
                                        {"cpu_time", cpu},
                                        {"elapsed_time", elapsed},
                                        {"buffer_gets", gets},
                                        {"disk_reads", reads},
                                        {"rows_processed", rows},
                                        {"parse_calls", parses},
                                        {"sharable_mem", memory},
                                        {"version_count", versions}});
    else
      fixture.row("stats$sql_summary", {{"snap_id", snap},
                                        {"old_hash_value", hash},
                                        {"hash_value", newHash},
                                        {"text_subset", "select"},
                                        {"address", c.address},
                                        {"module", c.module},
                                        {"executions", executions},
                                        {"cpu_time", cpu},
                                        {"elapsed_time", elapsed},
                                        {"buffer_gets", gets},
                                        {"disk_reads", reads},
                                        {"rows_processed", rows},
                                        {"user_io_wait_time", ioWait},
                                        {"cluster_wait_time", clusterWait},
                                        {"parse_calls", parses},
                                        {"sharable_mem", memory},
                                        {"version_count", versions}});
    return *this;
  }

  std::string write() { return fixture.write().string(); }

 private:
  std::string major_;

 public:
  FixtureRepository fixture;
};

/// The cells of grid row `row`, by their headings.
inline std::map<std::string, std::string> rowOf(const Grid& grid, int row) {
  std::map<std::string, std::string> cells;
  for (int c = 0; c < grid.Cols(); ++c) cells[grid.TextArray(c)] = grid.TextMatrix(row, c);
  return cells;
}

/// The rows below the headings, each as its cells under these headings with "|" between them.
inline std::vector<std::string> cellsOf(const Grid& grid, const std::vector<std::string>& headings) {
  std::vector<std::string> lines;
  for (int r = 1; r < grid.Rows(); ++r) {
    const auto row = rowOf(grid, r);
    std::string line;
    for (const std::string& heading : headings) line += (line.empty() ? "" : "|") + row.at(heading);
    lines.push_back(line);
  }
  return lines;
}

}  // namespace kestrelix::testing_support
