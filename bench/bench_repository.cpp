#include "bench/bench_repository.h"

#include <sqlite3.h>
#include <unistd.h>

#include <map>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "repository_file/storage.h"
#include "repository_file/writing/repository_writer.h"
#include "statspack/release.h"

namespace kestrelix::bench {
namespace {

using repository_file::Cell;

constexpr int kStatistics = 380;
constexpr int kEvents = 120;
constexpr int kIdleEvents = 40;
constexpr int kParameters = 260;
constexpr int kStatements = 250;

/// One table of release 11, filled by column name.
class Table {
 public:
  Table(repository_file::RepositoryWriter& writer, const std::string& name)
      : Table(writer, *statspack::release("11").table(name)) {}
  Table(repository_file::RepositoryWriter& writer, const statspack::Table& table) {
    std::vector<repository_file::NewColumn> columns;
    for (const auto& column : table.columns) {
      places_[column.name] = columns.size();
      columns.push_back({column.name, column.type});
    }
    cells_.resize(columns.size());
    out_ = &writer.addTable(table.name, columns);
  }
  Table& set(const char* column, Cell cell) {
    cells_[places_.at(column)] = cell;
    return *this;
  }
  /// A cell looks at its text only, so the row keeps it.
  Table& set(const char* column, std::string text) {
    std::string& kept = texts_[column];
    kept = std::move(text);
    return set(column, Cell(kept));
  }
  Table& set(const char* column, const char* text) { return set(column, std::string(text)); }
  Table& raw(const char* column, std::string bytes) {
    std::string& kept = texts_[column];
    kept = std::move(bytes);
    return set(column, Cell::raw(kept));
  }
  Table& key(int snapshot) {
    return set("snap_id", snapshot).set("dbid", kDbid).set("instance_number", kInstance);
  }
  void insert() { out_->insert(cells_); }

 private:
  std::map<std::string, std::size_t> places_;
  std::map<std::string, std::string> texts_;
  std::vector<Cell> cells_;
  repository_file::TableWriter* out_;
};

std::string numbered(const char* stem, int number) { return stem + std::to_string(number); }

/// The share of its rate that a counter grows by in an hour; a few stand still.
std::int64_t growth(std::mt19937& random, int which) {
  if (which % 17 == 0) return 0;
  return static_cast<std::int64_t>(random() % 100000) * (which % 29 + 1);
}

void writeCounters(repository_file::RepositoryWriter& writer, std::mt19937& random) {
  Table snapshots(writer, "stats$snapshot");
  Table statistics(writer, "stats$sysstat");
  Table events(writer, "stats$system_event");
  std::vector<std::int64_t> values(kStatistics + kEvents);
  for (int snapshot = 1; snapshot <= kSnapshots; ++snapshot) {
    snapshots.key(snapshot).set("snap_time", 1250000000 + snapshot * 3600).set("startup_time", 1240000000);
    snapshots.set("snap_level", 7).set("sharable_mem_th", 1048576).set("version_count_th", 20).insert();
    for (int i = 0; i < kStatistics; ++i) {
      values[i] += growth(random, i);
      const std::string name = i == 0   ? "session logical reads"
                               : i == 1 ? "user commits"
                               : i == 2 ? "user rollbacks"
                                        : numbered("statistic of some length ", i);
      statistics.key(snapshot)
          .set("statistic#", i)
          .set("name", name)
          .set("value", values[i] + (i == 0) * snapshot * 900000);
      statistics.insert();
    }
    for (int i = 0; i < kEvents; ++i) {
      auto& waits = values[kStatistics + i];
      waits += growth(random, i) / 100;
      events.key(snapshot).set("event", numbered("wait event number ", i)).set("event_id", i);
      events.set("total_waits", waits)
          .set("total_timeouts", waits / 7)
          .set("time_waited_micro", waits * 1379);
      events.set("total_waits_fg", waits / 2).set("total_timeouts_fg", waits / 14);
      events.set("time_waited_micro_fg", waits * 700).insert();
    }
  }
  Table idle(writer, "stats$idle_event");
  for (int i = 0; i < kIdleEvents; ++i) idle.set("event", numbered("wait event number ", i * 3)).insert();
}

void writeStatements(repository_file::RepositoryWriter& writer, std::mt19937& random) {
  Table parameters(writer, "stats$parameter");
  Table statements(writer, "stats$sql_summary");
  std::vector<std::int64_t> runs(kStatements);
  for (int snapshot = kSnapshots - kFullSnapshots + 1; snapshot <= kSnapshots; ++snapshot) {
    for (int i = 0; i < kParameters; ++i) {
      const std::string value = i % 40 == 0 ? numbered("", snapshot * i) : numbered("value ", i);
      parameters.key(snapshot).set("name", numbered(i % 5 == 0 ? "__hidden_parameter_" : "parameter_", i));
      parameters.set("value", value).set("isdefault", i % 9 == 0 ? "FALSE" : "TRUE");
      parameters.set("ismodified", "FALSE").insert();
    }
    for (int i = 0; i < kStatements; ++i) {
      const std::int64_t more = growth(random, i);
      runs[i] = snapshot % 31 == 0 && i % 11 == 0 ? more : runs[i] + more;
      const std::string address =
          std::string("\x07\x11", 2) + static_cast<char>(i) + static_cast<char>(i >> 8);
      statements.key(snapshot)
          .set("old_hash_value", 100000 + i * 7919)
          .set("hash_value", 900000 + i * 104729);
      statements.set("text_subset", numbered("select something from ", i)).set("module", "JDBC Thin Client");
      statements.raw("address", address).set("sql_text", "select something from somewhere where a = :1");
      statements.set("executions", runs[i]).set("buffer_gets", runs[i] * (i % 90 + 3));
      statements.set("disk_reads", runs[i] / 3)
          .set("cpu_time", runs[i] * 700)
          .set("elapsed_time", runs[i] * 1100);
      statements.set("user_io_wait_time", runs[i] * 300).set("cluster_wait_time", runs[i] * 20);
      statements.set("rows_processed", runs[i] * 2)
          .set("parse_calls", runs[i] / 5)
          .set("sharable_mem", 40000 + i);
      statements.set("version_count", i % 25).set("avg_hard_parse_time", 1500 + i).insert();
    }
  }
}

void execute(sqlite3* connection, const std::string& text) {
  if (sqlite3_exec(connection, text.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
    throw std::runtime_error(sqlite3_errmsg(connection));
}

/// Numbers that are not whole become SQLite's own floating point numbers.
void makeNative(const std::filesystem::path& file) {
  sqlite3* connection = nullptr;
  if (sqlite3_open(file.c_str(), &connection) != SQLITE_OK)
    throw std::runtime_error("no copy to make native");
  const auto toReal = [](sqlite3_context* context, int, sqlite3_value** arguments) {
    sqlite3_result_text(context, repository_file::numberOf(arguments[0]).toText().c_str(), -1,
                        SQLITE_TRANSIENT);
  };
  sqlite3_create_function_v2(connection, "number_text", 1, SQLITE_UTF8, nullptr, toReal, nullptr, nullptr,
                             nullptr);
  std::vector<std::pair<std::string, std::string>> columns;
  sqlite3_stmt* statement = nullptr;
  sqlite3_prepare_v2(connection,
                     "SELECT table_name, column_name FROM \"kestrelix$column\" "
                     "WHERE oracle_type = 'NUMBER' AND integral = 0",
                     -1, &statement, nullptr);
  while (sqlite3_step(statement) == SQLITE_ROW)
    columns.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0)),
                         reinterpret_cast<const char*>(sqlite3_column_text(statement, 1)));
  sqlite3_finalize(statement);
  for (const auto& [table, column] : columns)
    execute(connection, "UPDATE \"" + table + "\" SET \"" + column + "\" = CAST(number_text(\"" + column +
                            "\") AS REAL) WHERE typeof(\"" + column + "\") = 'blob'");
  execute(connection, "ANALYZE");
  sqlite3_close(connection);
}

}  // namespace

BenchRepository::BenchRepository() {
  std::string pattern = (std::filesystem::temp_directory_path() / "kestrelix-bench-XXXXXX").string();
  if (!mkdtemp(pattern.data())) throw std::runtime_error("no folder to measure in");
  folder_ = pattern;
  std::mt19937 random(11);
  repository_file::RepositoryWriter writer(repository(), {}, "bench");
  writeCounters(writer, random);
  writeStatements(writer, random);
  for (const auto& table : statspack::everyRelease().tables())
    if (!writer.table(table.name)) Table(writer, table);
  writer.finish();
  std::filesystem::copy_file(repository(), native());
  makeNative(native());
}

BenchRepository::~BenchRepository() {
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

}  // namespace kestrelix::bench
