#include "sql_rankings_repository.h"

#include <map>
#include <string>
#include <vector>

#include "repository_file/writing/repository_writer.h"
#include "statspack/release.h"

namespace kestrelix::bench {
namespace {

using repository_file::Cell;

constexpr long kHour = 3600;
constexpr long kStart = 1767571200;  // 2026-01-05 00:00:00

/// Rows told by column name; columns left out are NULL, those that the release lacks are skipped.
class Rows {
 public:
  Rows(repository_file::RepositoryWriter& writer, const Extent& extent, const std::string& name) {
    std::vector<repository_file::NewColumn> columns;
    for (const statspack::Column& column : statspack::release(extent.version).table(name)->columns) {
      at_[column.name] = columns.size();
      columns.push_back({column.name, column.type});
    }
    cells_.resize(columns.size());
    table_ = &writer.addTable(name, std::move(columns));
    set("dbid", 1).set("instance_number", 1);
  }
  Rows& set(const std::string& column, Cell cell) {
    if (const auto found = at_.find(column); found != at_.end()) cells_[found->second] = cell;
    return *this;
  }
  void add() { table_->insert(cells_); }

 private:
  std::map<std::string, std::size_t> at_;
  std::vector<Cell> cells_;
  repository_file::TableWriter* table_;
};

/// Growth of a statement from one snapshot to the next: few statements do most of the work.
long growth(int statement, int snapshot) {
  const long share = 1000000 / (1 + statement);
  return share + (statement * 7919L + snapshot * 104729L) % (1 + share / 4);
}

void writeStatements(repository_file::RepositoryWriter& writer, const Extent& extent) {
  Rows rows(writer, extent, "stats$sql_summary");
  std::vector<long> work(static_cast<std::size_t>(extent.statements), 0);
  std::vector<std::string> subsets, addresses;
  for (int s = 0; s < extent.statements; ++s) {
    subsets.push_back("select " + std::to_string(s));
    addresses.push_back("address" + std::to_string(s % 10));
  }
  rows.set("module", "bench").set("sharable_mem", 20000).set("version_count", 1);
  for (int snapshot = 1; snapshot <= extent.snapshots; ++snapshot)
    for (int s = 0; s < extent.statements; ++s) {
      const auto i = static_cast<std::size_t>(s);
      const bool reloaded = s % 50 == 0 && snapshot % 20 == s % 20;
      work[i] = (reloaded ? 0 : work[i]) + growth(s, snapshot);
      rows.set("snap_id", snapshot)
          .set("old_hash_value", 1000000 + s * 37L)
          .set("hash_value", 5000000 + s * 41L);
      rows.set("text_subset", subsets[i]).set("address", Cell::raw(addresses[i]));
      rows.set("executions", work[i] / 100).set("elapsed_time", work[i] * 10).set("cpu_time", work[i] * 4);
      rows.set("buffer_gets", work[i] * 3).set("disk_reads", work[i] / 7).set("rows_processed", work[i] / 3);
      rows.set("user_io_wait_time", work[i] * 2)
          .set("cluster_wait_time", 0)
          .set("parse_calls", work[i] / 1000);
      rows.set("avg_hard_parse_time", 1000).add();
    }
}

void writeTotals(repository_file::RepositoryWriter& writer, const Extent& extent) {
  Rows names(writer, extent, "stats$time_model_statname");
  names.set("stat_id", 1).set("stat_name", "DB time").add();
  names.set("stat_id", 2).set("stat_name", "DB CPU").add();
  Rows model(writer, extent, "stats$sys_time_model");
  Rows statistics(writer, extent, "stats$sysstat");
  Rows parameters(writer, extent, "stats$parameter");
  Rows snapshots(writer, extent, "stats$snapshot");
  snapshots.set("startup_time", kStart).set("snap_level", 7);
  snapshots.set("sharable_mem_th", 1048576).set("version_count_th", 20);
  for (long snapshot = 1; snapshot <= extent.snapshots; ++snapshot) {
    snapshots.set("snap_id", snapshot).set("snap_time", kStart + snapshot * kHour).add();
    model.set("snap_id", snapshot).set("stat_id", 1).set("value", snapshot * 80000000).add();
    model.set("stat_id", 2).set("value", snapshot * 32000000).add();
    statistics.set("snap_id", snapshot);
    for (const char* name :
         {"session logical reads", "physical reads", "execute count", "parse count (total)"})
      statistics.set("name", name).set("value", snapshot * 8000000).add();
    parameters.set("snap_id", snapshot).set("name", "shared_pool_size").set("value", "1073741824").add();
  }
}

}  // namespace

void writeRankedRepository(const std::filesystem::path& file, const Extent& extent) {
  repository_file::RepositoryWriter writer(file, {}, "a benchmark");
  const std::string version = extent.version + ".2.0.4.0";  // cells only look at their texts
  Rows instance(writer, extent, "stats$database_instance");
  instance.set("startup_time", kStart).set("snap_id", 1).set("parallel", "YES").set("version", version);
  instance.set("db_name", "BENCH").set("instance_name", "bench1").set("host_name", "host").add();
  writeTotals(writer, extent);
  writeStatements(writer, extent);
  writer.finish();
}

}  // namespace kestrelix::bench
