// The heaviest statements of the program: an SQL ranking of one pair, and its series over all pairs, on a
// large repository; beside them the same figures by SQLite statements written by hand for this file.
//
//   sql-rankings-bench FILE [SNAPSHOTS STATEMENTS VERSION]
//
// FILE is made if it isn't there. Times are wall-clock milliseconds: of a list the first run, which
// translates its statement, and the best of five; of a series one run.
#include <sqlite3.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstring>
#include <functional>
#include <iostream>
#include <stdexcept>

#include "navigation/ModuleLoadCommon.h"
#include "report/ModuleDispCommon.h"
#include "repository_file/local_session.h"
#include "sections/SectionList.h"
#include "sql_rankings_repository.h"

namespace kestrelix::bench {
namespace {

class Boxes : public MessageBoxes {
 public:
  void show(BoxIcon, const std::string& text, const std::string& underlying) override {
    throw std::runtime_error(text + " " + underlying);
  }
};

long milliseconds(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start)
      .count();
}

/// The first run and the best of five, as text.
std::string firstAndBest(const std::function<void()>& work) {
  const long first = milliseconds(work);
  long least = first;
  for (int i = 1; i < 5; ++i) least = std::min(least, milliseconds(work));
  return std::to_string(first) + " ms, best " + std::to_string(least) + " ms";
}

/// The program without its window, on the file.
class Report {
 public:
  explicit Report(const std::string& file) : workspace_(boxes_) {
    workspace_.gOraSession = repository_file::localSession(file);
    workspace_.gOraDatabase =
        workspace_.gOraSession->OpenDatabase("BENCH", "PERFSTAT/perfstat", kDatabaseOptions);
    for (const char* key : {"GRID", "SQL", "PLAN"}) workspace_.controls.ToolbarTop.Add(key, key, "");
    if (!gDispDbInstance_Load(workspace_) || !gDispSnapId_Load(workspace_, "1", "1", false))
      throw std::runtime_error("no pairs");
    const std::string version = workspace_.gDbInstance->VERSION(0);
    version_ = version.substr(0, version.find('.'));
    gDispSectionList(workspace_, sectionList(), version_, "YES");
  }

  int pairs() const { return static_cast<int>(workspace_.gSnapId->rownum()); }
  void list(const std::string& section, int pair) {
    ListBox& sections = workspace_.controls.ListSection;
    for (int i = 0; i < sections.ListCount(); ++i)
      if (sections.List(i) == section) sections.ListIndex(i);
    workspace_.controls.ListSnapId.ListIndex(pair);
    gDispSectionAll(workspace_, sectionList(), version_);
  }
  void series(int row) {
    grid().Row(row);
    gDispSectionCol(workspace_, sectionList(), version_);
  }
  Grid& grid() { return workspace_.controls.MSFlexGridMain; }

 private:
  Boxes boxes_;
  Workspace workspace_;
  std::string version_;
};

/// What someone would write for SQLite who knows this file: whole numbers only, no window where a self-join
/// does.
class ByHand {
 public:
  explicit ByHand(const std::string& file) {
    if (sqlite3_open_v2(file.c_str(), &connection_, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK)
      throw std::runtime_error("cannot open " + file);
    list_ = prepare(" order by elapsed desc limit 65");
    series_ = prepare("");
  }
  ~ByHand() {
    sqlite3_finalize(list_);
    sqlite3_finalize(series_);
    sqlite3_close(connection_);
  }
  ByHand(const ByHand&) = delete;

  int list(int start) { return run(list_, start, 0); }
  void series(int pairs, long hash) {
    for (int pair = 1; pair <= pairs; ++pair) run(series_, pair, hash);
  }

 private:
  sqlite3_stmt* prepare(const std::string& tail) {
    const std::string grown = [] {
      std::string text;
      for (const char* counter :
           {"executions", "elapsed_time", "cpu_time", "buffer_gets", "disk_reads", "rows_processed",
            "user_io_wait_time", "cluster_wait_time", "parse_calls"}) {
        const std::string c = counter;
        text += ", case when a.address = e.address and a." + c + " <= e." + c + " then e." + c + " - a." + c +
                " else e." + c + " end as " + (c == "elapsed_time" ? "elapsed" : c);
      }
      return text;
    }();
    const std::string sql =
        "select e.old_hash_value, e.module" + grown +
        " from stats$sql_summary e left join stats$sql_summary a on a.snap_id = e.snap_id - 1 and a.dbid = "
        "e.dbid"
        " and a.instance_number = e.instance_number and a.old_hash_value = e.old_hash_value"
        " where e.snap_id = ?1 + 1 and e.dbid = 1 and e.instance_number = 1" +
        (tail.empty() ? " and e.old_hash_value = ?2" : "") + tail;
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(connection_, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK)
      throw std::runtime_error(sqlite3_errmsg(connection_));
    return statement;
  }
  int run(sqlite3_stmt* statement, int start, long hash) {
    sqlite3_reset(statement);
    sqlite3_bind_int(statement, 1, start);
    if (sqlite3_bind_parameter_count(statement) > 1) sqlite3_bind_int64(statement, 2, hash);
    int rows = 0;
    while (sqlite3_step(statement) == SQLITE_ROW) {
      ++rows;
      for (int c = 0; c < sqlite3_column_count(statement); ++c) (void)sqlite3_column_text(statement, c);
    }
    return rows;
  }

  sqlite3* connection_ = nullptr;
  sqlite3_stmt* list_ = nullptr;
  sqlite3_stmt* series_ = nullptr;
};

int number(const char* text) {
  int value = 0;
  std::from_chars(text, text + std::strlen(text), value);
  if (value < 2) throw std::runtime_error("a count of at least 2 is needed");
  return value;
}

void measure(const std::string& file) {
  Report report(file);
  const int middle = report.pairs() / 2;
  for (const char* section :
       {"SQL ordered by CPU TOTAL", "SQL ordered by Elapsed TOTAL", "SQL ordered by Elapsed EXEC",
        "SQL ordered by Gets TOTAL", "SQL ordered by Reads TOTAL", "SQL ordered by I/O Wait TOTAL",
        "SQL ordered by Cluster TOTAL", "SQL ordered by Executions", "SQL ordered by Parse Calls",
        "SQL ordered by Sharable Memory", "SQL ordered by Version Count"}) {
    const std::string time = firstAndBest([&] { report.list(section, middle); });
    std::cout << section << ": " << time << ", " << report.grid().Rows() - 1 << " rows\n";
  }
  report.list("SQL ordered by Elapsed TOTAL", middle);
  const long series = milliseconds([&] { report.series(1); });
  std::cout << "series of Elapsed over " << report.pairs() << " pairs: " << series << " ms, "
            << report.grid().Rows() - 1 << " rows\n";

  ByHand byHand(file);
  int rows = 0;
  const std::string list = firstAndBest([&] { rows = byHand.list(middle + 1); });
  std::cout << "by hand, list: " << list << ", " << rows << " rows\n";
  std::cout << "by hand, series: " << milliseconds([&] { byHand.series(report.pairs(), 1000000); })
            << " ms\n";
}

}  // namespace
}  // namespace kestrelix::bench

int main(int count, char** values) {
  using namespace kestrelix::bench;
  try {
    if (count != 2 && count != 5)
      throw std::runtime_error("usage: sql-rankings-bench FILE [SNAPSHOTS STATEMENTS VERSION]");
    Extent extent;
    if (count == 5) extent = {number(values[2]), number(values[3]), values[4]};
    if (!std::filesystem::exists(values[1])) {
      const long time = milliseconds([&] { writeRankedRepository(values[1], extent); });
      std::cout << "made " << values[1] << " in " << time << " ms\n";
    }
    measure(values[1]);
  } catch (const std::exception& error) {
    std::cerr << "sql-rankings-bench: " << error.what() << '\n';
    return 1;
  }
}
