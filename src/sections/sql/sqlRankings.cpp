#include "sections/sql/sqlRankings.h"

#include <algorithm>
#include <stdexcept>

namespace kestrelix {
namespace {

const SqlMeasure kCpu{"delta_cpu_time", "DELTA_CPU_TIME", "CPU_TIME"};
const SqlMeasure kElapsed{"delta_elapsed_time", "DELTA_ELAPSED_TIME", "ELAPSED_TIME"};
const SqlMeasure kIoWait{"delta_user_io_wait_time", "DELTA_IO_WAIT_TIME", "IO_WAIT_TIME"};
const SqlMeasure kClusterWait{"delta_cluster_wait_time", "DELTA_CLUSTER_WAIT_TIME", "CLUSTER_WAIT_TIME"};
const SqlMeasure kGets{"delta_buffer_gets", "BUFFER_GETS", "BUFFER_GETS"};
const SqlMeasure kReads{"delta_disk_reads", "DISK_READS", "DISK_READS"};
const SqlMeasure kExecutions{"delta_executions", "EXECUTIONS", "EXECUTIONS"};
const SqlMeasure kParseCalls{"delta_parse_calls", "PARSE_CALLS", "PARSE_CALLS"};
const SqlMeasure kSharableMemory{"max_sharable_mem", "MAX_SHARABLE_MEM", "SHARABLE_MEM"};
const SqlMeasure kVersionCount{"max_version_count", "MAX_VERSION_COUNT", "VERSION_COUNT"};
const SqlMeasure kNothing{};

const SqlTotal kDbCpu{SqlTotal::Source::TimeModel, "DB CPU", "TOTAL_DB_CPU"};
const SqlTotal kDbTime{SqlTotal::Source::TimeModel, "DB time", "TOTAL_DB_TIME"};
const SqlTotal kLogicalReads{SqlTotal::Source::Statistics, "session logical reads", "TOTAL_LOGICAL_READS"};
const SqlTotal kPhysicalReads{SqlTotal::Source::Statistics, "physical reads", "TOTAL_PHYSICAL_READS", true};
const SqlTotal kExecuteCount{SqlTotal::Source::Statistics, "execute count", "TOTAL_EXECUTE_COUNT"};
const SqlTotal kParseCount{SqlTotal::Source::Statistics, "parse count (total)", "TOTAL_PARSE_COUNT"};
const SqlTotal kSharedPool{SqlTotal::Source::Parameter, "shared_pool_size", "SHARED_POOL_SIZE"};
const SqlTotal kNoTotal{};

using F = clsSQLorderedby::Field;

const SqlColumn kOldHash{"OLD_HASH_VALUE", F::OLD_HASH_VALUE, Kind::Key, unit::number};
const SqlColumn kHash{"HASH_VALUE", F::HASH_VALUE, Kind::Key, unit::number};
const SqlColumn kAddress{"ADDRESS", F::ADDRESS, Kind::Key};
const SqlColumn kModule{"MODULE", F::MODULE, Kind::Text};
const SqlColumn kShare{"%TOTAL", F::TOTAL_PRE, Kind::Share, unit::percent};

const std::vector<SqlColumn> kTotalColumns{
    {"TOTAL_DB_CPU(S)", F::TOTAL_DB_CPU, Kind::Count, unit::seconds},
    {"TOTAL_DB_TIME(S)", F::TOTAL_DB_TIME, Kind::Count, unit::seconds},
    {"TOTAL_LOGICAL_READS", F::TOTAL_LOGICAL_READS, Kind::Count, unit::blocks},
    {"TOTAL_PHYSICAL_READS", F::TOTAL_PHYSICAL_READS, Kind::Count, unit::blocks},
    {"TOTAL_EXECUTE_COUNT", F::TOTAL_EXECUTE_COUNT, Kind::Count},
    {"TOTAL_PARSE_COUNT", F::TOTAL_PARSE_COUNT, Kind::Count},
    {"SHARED_POOL_SIZE", F::SHARED_POOL_SIZE, Kind::Level, unit::bytes},
};

std::vector<SqlColumn> totalColumn(const SqlRanking& ranking) {
  std::vector<SqlColumn> columns;
  std::copy_if(kTotalColumns.begin(), kTotalColumns.end(), std::back_inserter(columns),
               [&](const SqlColumn& column) { return sqlAlias(column) == ranking.total.column; });
  return columns;
}

/// Oracle 11 walks all snapshots of the pair and so knows maxima; the others know the end value alone.
std::vector<SqlColumn> sharableMemory(Versions version) {
  if (version == V11)
    return {{"MAX_SHARABLE_MEM", F::MAX_SHARABLE_MEM, Kind::Level, unit::bytes},
            {"LAST_SHARABLE_MEM", F::LAST_SHARABLE_MEM, Kind::Level, unit::bytes}};
  return {{"SHARABLE_MEM", F::SHARABLE_MEM, Kind::Level, unit::bytes}};
}

std::vector<SqlColumn> versionCount(Versions version) {
  if (version == V11)
    return {{"MAX_VERSION_COUNT", F::MAX_VERSION_COUNT, Kind::Level},
            {"LAST_VERSION_COUNT", F::LAST_VERSION_COUNT, Kind::Level},
            {"DELTA_VERSION_COUNT", F::DELTA_VERSION_COUNT, Kind::Count}};
  return {{"VERSION_COUNT", F::VERSION_COUNT, Kind::Level}};
}

std::vector<SqlColumn> columnsOf(SqlColumns group, const SqlRanking& ranking, Versions version) {
  switch (group) {
    case SqlColumns::Executions:
      return {{"EXECUTIONS", F::EXECUTIONS, Kind::Count}};
    case SqlColumns::Total:
      return totalColumn(ranking);
    case SqlColumns::Percent:
      return {kShare};
    case SqlColumns::Cpu:
      return {{"CPU_TIME(S)", F::CPU_TIME, Kind::Count, unit::seconds},
              {"CPU_TIME_PEXEC(S)", F::CPU_TIME_PEXEC, Kind::Ratio, unit::seconds}};
    case SqlColumns::Elapsed:
      return {{"ELAPSED_TIME(S)", F::ELAPSED_TIME, Kind::Count, unit::seconds},
              {"ELAPSED_TIME_PEXEC(S)", F::ELAPSED_TIME_PEXEC, Kind::Ratio, unit::seconds}};
    case SqlColumns::Gets:
      return {{"BUFFER_GETS", F::BUFFER_GETS, Kind::Count, unit::blocks},
              {"BUFFER_GETS_PEXEC", F::BUFFER_GETS_PEXEC, Kind::Ratio, unit::blocks}};
    case SqlColumns::Reads:
      return {{"DISK_READS", F::DISK_READS, Kind::Count, unit::blocks},
              {"DISK_READS_PEXEC", F::DISK_READS_PEXEC, Kind::Ratio, unit::blocks}};
    case SqlColumns::Rows:
      return {{"ROWS_PROCESSED", F::ROWS_PROCESSED, Kind::Count},
              {"ROWS_PROCESSED_PEXEC", F::ROWS_PROCESSED_PEXEC, Kind::Ratio}};
    case SqlColumns::IoWait:
      if (version == V9) return {};  // release 9.2 keeps no such time
      return {{"IO_WAIT_TIME(S)", F::IO_WAIT_TIME, Kind::Count, unit::seconds},
              {"IO_WAIT_TIME_PEXEC(S)", F::IO_WAIT_TIME_PEXEC, Kind::Ratio, unit::seconds}};
    case SqlColumns::ClusterWait:
      return {{"CLUSTER_WAIT_TIME(S)", F::CLUSTER_WAIT_TIME, Kind::Count, unit::seconds},
              {"CLUSTER_WAIT_%ELAPSED", F::CLUSTER_WAIT_PRE_ELAPSED, Kind::Share, unit::percent},
              {"CLUSTER_WAIT_TIME_PEXEC(S)", F::CLUSTER_WAIT_TIME_PEXEC, Kind::Ratio, unit::seconds}};
    case SqlColumns::ParseCalls:
      return {{"PARSE_CALLS", F::PARSE_CALLS, Kind::Count}};
    case SqlColumns::SharableMemory:
      return sharableMemory(version);
    case SqlColumns::VersionCount:
      return versionCount(version);
  }
  return {};
}

std::vector<SqlRanking> makeRankings() {
  using enum SqlColumns;
  using enum SqlCutOff;
  // {name, versions, has EXEC, total, share of it, sorted by, cut-off, threshold, columns}
  // clang-format off
  return {
      {"CPU", V10_11, true, kDbCpu, kCpu, kCpu, LeastShare, "",
       {Executions, Total, Percent, Cpu, Elapsed, Gets, Reads, Rows, IoWait, ParseCalls, SharableMemory, VersionCount}},
      {"ELAPSED", V10_11, true, kDbTime, kElapsed, kElapsed, LeastShare, "",
       {Executions, Total, Percent, Elapsed, Cpu, Gets, Reads, Rows, IoWait, ParseCalls, SharableMemory, VersionCount}},
      {"GETS", kAllVersions, true, kLogicalReads, kGets, kGets, LeastShare, "",
       {Executions, Total, Percent, Gets, Reads, Cpu, Elapsed, Rows, IoWait, ParseCalls, SharableMemory, VersionCount}},
      {"READS", kAllVersions, true, kPhysicalReads, kReads, kReads, LeastShare, "",
       {Executions, Total, Percent, Reads, Gets, Cpu, Elapsed, Rows, IoWait, ParseCalls, SharableMemory, VersionCount}},
      {"IO_WAIT", V10_11, true, kDbTime, kIoWait, kIoWait, LeastShare, "",
       {Executions, Total, Percent, IoWait, Cpu, Elapsed, Gets, Reads, Rows, ParseCalls, SharableMemory, VersionCount}},
      {"CLUSTER", V10_11, true, kDbTime, kElapsed, kClusterWait, Waited, "",
       {Executions, Total, Percent, Elapsed, ClusterWait, Cpu, Gets, Reads, Rows, IoWait, ParseCalls, SharableMemory, VersionCount}},
      {"EXECUTIONS", kAllVersions, false, kExecuteCount, kExecutions, kExecutions, LeastShare, "",
       {Total, Percent, Executions, Rows, Cpu, Elapsed, Gets, Reads, IoWait, ParseCalls, SharableMemory, VersionCount}},
      {"PARSE_CALLS", kAllVersions, false, kParseCount, kParseCalls, kParseCalls, LeastShare, "",
       {Total, Percent, ParseCalls, Executions, Cpu, Elapsed, Gets, Reads, Rows, IoWait, SharableMemory, VersionCount}},
      {"SHARABLE_MEMORY", kAllVersions, false, kSharedPool, kSharableMemory, kSharableMemory, Threshold, "SHARABLE_MEM_TH",
       {Total, Percent, SharableMemory, Executions, ParseCalls, VersionCount, Cpu, Elapsed, Gets, Reads, Rows, IoWait}},
      {"VERSION_COUNT", kAllVersions, false, kNoTotal, kNothing, kVersionCount, Threshold, "VERSION_COUNT_TH",
       {VersionCount, Executions, ParseCalls, SharableMemory, Cpu, Elapsed, Gets, Reads, Rows, IoWait}},
  };
  // clang-format on
}

}  // namespace

const std::vector<SqlRanking>& sqlRankings() {
  static const std::vector<SqlRanking> rankings = makeRankings();
  return rankings;
}

const SqlRanking& sqlRanking(const std::string& name) {
  const auto& all = sqlRankings();
  const auto found =
      std::find_if(all.begin(), all.end(), [&](const SqlRanking& r) { return r.name == name; });
  if (found == all.end()) throw std::out_of_range("no SQL ranking " + name);
  return *found;
}

const std::string& sqlAlias(const SqlColumn& column) {
  static const std::vector<std::string> names = clsSQLorderedby::fieldNames();
  return names[column.field];
}

std::vector<SqlColumn> sqlColumns(const SqlRanking& ranking, Versions version) {
  std::vector<SqlColumn> columns{kOldHash, kModule};
  if (version == V9) columns = {kHash, kAddress, kModule};
  for (const SqlColumns group : ranking.columns)
    for (SqlColumn& column : columnsOf(group, ranking, version)) columns.push_back(std::move(column));
  if (version != V9) columns.insert(columns.end(), {kHash, kAddress});
  return columns;
}

std::size_t sqlKeyColumns(Versions version) { return version == V9 ? 2 : 1; }

}  // namespace kestrelix
