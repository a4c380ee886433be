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
using S = clsSQLorderedby;

const SqlColumn kOldHash{F::OLD_HASH_VALUE, {"OLD_HASH_VALUE", &S::OLD_HASH_VALUE}};
const SqlColumn kHash{F::HASH_VALUE, {"HASH_VALUE", &S::HASH_VALUE}};
const SqlColumn kAddress{F::ADDRESS, {"ADDRESS", &S::ADDRESS}};
const SqlColumn kModule{F::MODULE, {"MODULE", &S::MODULE}};
const SqlColumn kShare{F::TOTAL_PRE, {"%TOTAL", &S::TOTAL_PRE}};

const std::vector<SqlColumn> kTotalColumns{
    {F::TOTAL_DB_CPU, {"TOTAL_DB_CPU(S)", &S::TOTAL_DB_CPU}},
    {F::TOTAL_DB_TIME, {"TOTAL_DB_TIME(S)", &S::TOTAL_DB_TIME}},
    {F::TOTAL_LOGICAL_READS, {"TOTAL_LOGICAL_READS", &S::TOTAL_LOGICAL_READS}},
    {F::TOTAL_PHYSICAL_READS, {"TOTAL_PHYSICAL_READS", &S::TOTAL_PHYSICAL_READS}},
    {F::TOTAL_EXECUTE_COUNT, {"TOTAL_EXECUTE_COUNT", &S::TOTAL_EXECUTE_COUNT}},
    {F::TOTAL_PARSE_COUNT, {"TOTAL_PARSE_COUNT", &S::TOTAL_PARSE_COUNT}},
    {F::SHARED_POOL_SIZE, {"SHARED_POOL_SIZE", &S::SHARED_POOL_SIZE}},
};

std::vector<SqlColumn> totalColumn(const SqlRanking& ranking) {
  std::vector<SqlColumn> columns;
  std::copy_if(kTotalColumns.begin(), kTotalColumns.end(), std::back_inserter(columns),
               [&](const SqlColumn& column) { return column.alias() == ranking.total.column; });
  return columns;
}

/// Oracle 11 walks all snapshots of the pair and so knows maxima; the others know the end value alone.
std::vector<SqlColumn> sharableMemory(Versions version) {
  if (version == V11)
    return {{F::MAX_SHARABLE_MEM, {"MAX_SHARABLE_MEM", &S::MAX_SHARABLE_MEM}},
            {F::LAST_SHARABLE_MEM, {"LAST_SHARABLE_MEM", &S::LAST_SHARABLE_MEM}}};
  return {{F::SHARABLE_MEM, {"SHARABLE_MEM", &S::SHARABLE_MEM}}};
}

std::vector<SqlColumn> versionCount(Versions version) {
  if (version == V11)
    return {{F::MAX_VERSION_COUNT, {"MAX_VERSION_COUNT", &S::MAX_VERSION_COUNT}},
            {F::LAST_VERSION_COUNT, {"LAST_VERSION_COUNT", &S::LAST_VERSION_COUNT}},
            {F::DELTA_VERSION_COUNT, {"DELTA_VERSION_COUNT", &S::DELTA_VERSION_COUNT}}};
  return {{F::VERSION_COUNT, {"VERSION_COUNT", &S::VERSION_COUNT}}};
}

std::vector<SqlColumn> columnsOf(SqlColumns group, const SqlRanking& ranking, Versions version) {
  switch (group) {
    case SqlColumns::Executions:
      return {{F::EXECUTIONS, {"EXECUTIONS", &S::EXECUTIONS}}};
    case SqlColumns::Total:
      return totalColumn(ranking);
    case SqlColumns::Percent:
      return {kShare};
    case SqlColumns::Cpu:
      return {{F::CPU_TIME, {"CPU_TIME(S)", &S::CPU_TIME}},
              {F::CPU_TIME_PEXEC, {"CPU_TIME_PEXEC(S)", &S::CPU_TIME_PEXEC}}};
    case SqlColumns::Elapsed:
      return {{F::ELAPSED_TIME, {"ELAPSED_TIME(S)", &S::ELAPSED_TIME}},
              {F::ELAPSED_TIME_PEXEC, {"ELAPSED_TIME_PEXEC(S)", &S::ELAPSED_TIME_PEXEC}}};
    case SqlColumns::Gets:
      return {{F::BUFFER_GETS, {"BUFFER_GETS", &S::BUFFER_GETS}},
              {F::BUFFER_GETS_PEXEC, {"BUFFER_GETS_PEXEC", &S::BUFFER_GETS_PEXEC}}};
    case SqlColumns::Reads:
      return {{F::DISK_READS, {"DISK_READS", &S::DISK_READS}},
              {F::DISK_READS_PEXEC, {"DISK_READS_PEXEC", &S::DISK_READS_PEXEC}}};
    case SqlColumns::Rows:
      return {{F::ROWS_PROCESSED, {"ROWS_PROCESSED", &S::ROWS_PROCESSED}},
              {F::ROWS_PROCESSED_PEXEC, {"ROWS_PROCESSED_PEXEC", &S::ROWS_PROCESSED_PEXEC}}};
    case SqlColumns::IoWait:
      if (version == V9) return {};  // release 9.2 keeps no such time
      return {{F::IO_WAIT_TIME, {"IO_WAIT_TIME(S)", &S::IO_WAIT_TIME}},
              {F::IO_WAIT_TIME_PEXEC, {"IO_WAIT_TIME_PEXEC(S)", &S::IO_WAIT_TIME_PEXEC}}};
    case SqlColumns::ClusterWait:
      return {{F::CLUSTER_WAIT_TIME, {"CLUSTER_WAIT_TIME(S)", &S::CLUSTER_WAIT_TIME}},
              {F::CLUSTER_WAIT_PRE_ELAPSED, {"CLUSTER_WAIT_%ELAPSED", &S::CLUSTER_WAIT_PRE_ELAPSED}},
              {F::CLUSTER_WAIT_TIME_PEXEC, {"CLUSTER_WAIT_TIME_PEXEC(S)", &S::CLUSTER_WAIT_TIME_PEXEC}}};
    case SqlColumns::ParseCalls:
      return {{F::PARSE_CALLS, {"PARSE_CALLS", &S::PARSE_CALLS}}};
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

const std::string& SqlColumn::alias() const {
  static const std::vector<std::string> names = clsSQLorderedby::fieldNames();
  return names[static_cast<std::size_t>(field)];
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
