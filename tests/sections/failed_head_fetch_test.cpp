// What the Sections of the head, the waits and the SQL rankings show when their statements fail: each getter
// names itself, and the grid keeps its former view.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/report_fixture.h"
#include "support/snapshots.h"

namespace kestrelix {
namespace {

using namespace testing_support;
using Texts = std::vector<std::string>;

struct Failing {
  std::string section;
  Texts versions;
  std::string all;  ///< the place that the All view's box names
  Texts cols;       ///< those of the Col views, by the row that leads to them
};
void PrintTo(const Failing& failing, std::ostream* out) { *out << failing.section; }

const Texts kAll{"9", "10", "11"};
const Texts kSince10{"10", "11"};

/// A Section of metrics: the All view ends at the first.
Failing metrics(const std::string& section, const Texts& versions, const std::string& className,
                const Texts& members) {
  Texts places;
  for (const std::string& member : members) places.push_back("(" + className + "){" + member + "}");
  return {section, versions, places.front(), places};
}

Failing list(const std::string& section, const Texts& versions, const std::string& className,
             const std::string& all, const std::string& col) {
  return {section, versions, "(" + className + "){" + all + "}", {"(" + className + "){" + col + "}"}};
}

/// A ranking. The series of some name another place than their own.
Failing ranking(const std::string& section, const Texts& versions, const std::string& all,
                const std::string& col) {
  return {"SQL ordered by " + section, versions, "(clsSQLorderedby){getSQL_ORDERED_BY_" + all + "}", {col}};
}
std::string series(const std::string& member) {
  return "(clsSQLorderedby){getSQL_ORDERED_BY_" + member + "_TIME}";
}

/// Only the queries behind the binds have an answer.
class FailedFetchOfHead : public testing::TestWithParam<Failing> {
 protected:
  void SetUp() override {
    laySnapshots(server, {{"41", "2026-01-05 10:00:00", "7", "2026-01-01 00:00:00"},
                          {"42", "2026-01-05 11:00:00", "7", "2026-01-01 00:00:00"}});
    report.repository.gOraDatabase = std::make_unique<FakeDatabase>(server);
    report.loadPairs("1001", "1");
    server.answers.clear();
    for (const char* total : {"TWT", "TCPU", "TRAN", "TIMSTAT"}) {
      Answer& answer = server.answer("AS " + std::string(total) + " from");
      answer.columns = {total};
      answer.rows = {{"1"}};
    }
  }

  FakeServer server;
  GridReport report;
};

TEST_P(FailedFetchOfHead, showsTheBoxOfEachGetterAndLeavesTheFormerView) {
  Grid& grid = report.grid;
  const int rows = static_cast<int>(GetParam().cols.size());
  for (const std::string& version : GetParam().versions) {
    layGrid(grid, 2, rows);
    for (int r = 1; r <= rows; ++r) grid.TextMatrix(r, 1, std::to_string(r));
    grid.Visible(true);
    const std::string former = printed(grid);
    report.boxes.shown.clear();
    report.all(GetParam().section, version, "YES", 0);
    Texts expected{"[Critical] " + GetParam().all + " Error"};
    for (int r = 1; r <= rows; ++r) {
      grid.Row(r);
      report.col(version);
      expected.push_back("[Critical] " + GetParam().cols[static_cast<std::size_t>(r - 1)] + " Error");
    }
    EXPECT_EQ(report.boxes.shown, expected) << version;
    EXPECT_EQ(printed(grid), former) << version;
    EXPECT_TRUE(grid.Visible()) << version;
  }
}

const Texts kRates{"getREDO_SIZE",      "getLOGICAL_READS",   "getDB_BLOCK_CHANGES",
                   "getPHYSICAL_READS", "getPHYSICAL_WRITES", "getUSER_CALLS",
                   "getPARSE",          "getPARSE_HARD"};

Texts joined(Texts first, const Texts& middle, const Texts& last) {
  first.insert(first.end(), middle.begin(), middle.end());
  first.insert(first.end(), last.begin(), last.end());
  return first;
}

Texts efficiency(const std::string& ofRow4) {
  return {"getBUFFER_NOWAIT",
          "getREDO_NOWAIT",
          "getBUFFER_HIT",
          ofRow4,
          "getLIBRARY_HIT",
          "getSOFT_PARSE",
          "getEXECUTE_TO_PARSE",
          "getLATCH_HIT",
          "getPARSE_CPU_TO_PARSE_ELAPSD",
          "getNON_PARSE_CPU",
          "getMEMORY_USAGE",
          "getSQL_WITH_EXECUTIONS",
          "getMEMORY_FOR_SQL_WEXEC"};
}

INSTANTIATE_TEST_SUITE_P(
    Head, FailedFetchOfHead,
    testing::Values(
        metrics("Snapshot", kAll, "clsSnapshot", {"getSTART_SNAPSHOT", "getEND_SNAPSHOT", "getELAPSED"}),
        metrics("Cache Sizes", kAll, "clsCacheSize",
                {"getBURRER_CACHE_SIZE", "getSHARED_POOL_SIZE", "getSTANDERD_BLOCK_SIZE",
                 "getLOG_BUFFER_SIZE"}),
        metrics("Load Profile", {"9", "10"}, "clsLoadProfile",
                joined(kRates, {"getSORTS", "getLOGONS", "getEXECUTES", "getTRANSACTIONS"},
                       {"getBLOCKS_CHANGED_P_READ", "getROLLBACK_P_TRAN", "getRECURSIVE_CALL",
                        "getROWS_P_SORT"})),
        metrics("Load Profile", {"11"}, "clsLoadProfile",
                joined({"getDB_TIME", "getDB_CPU"}, kRates,
                       {"getWA_MB_PROCESSED", "getLOGONS", "getEXECUTES", "getROLLBACKS",
                        "getTRANSACTIONS"})),
        metrics("Instance Efficiency", {"9", "10"}, "clsInstanceEfficiency", efficiency("getIN_MEMORY_SORT")),
        metrics("Instance Efficiency", {"11"}, "clsInstanceEfficiency", efficiency("getOPTIMAL_WA_EXEC")),
        metrics("Host CPU", kSince10, "clsHostCPU",
                {"getCPUS", "getLOAD", "getUSER", "getSYSTEM", "getIDLE", "getWIO", "getWCPU"}),
        metrics("Instance CPU", kSince10, "clsInstanceCPU",
                {"getPER_OF_TOTAL_CPU_FOR_INSTANCE", "getPER_OF_BUSY_CPU_FOR_INSTANCE",
                 "getPER_RESOURCE_MGR"}),
        metrics("Virtual Memory Paging", kSince10, "clsVirtualMemoryPaging",
                {"getKE_PAGED_OUT_PER_SEC", "getKE_PAGED_IN_PER_SEC"}),
        metrics("Memory Statistics", kSince10, "clsMemoryStatistics",
                {"getHOST_MEM_MB", "getSGA_USE_MB", "getPGA_USE_MB", "getHOST_MEM_USE_FOR_SGA_PGA"}),
        list("Time Model System Stats", kSince10, "clsTimeModelSystemStats", "getTIME_MODEL_SYSTEM_STATS_ALL",
             "getTIME_MODEL_SYSTEM_STATS_COL")));

INSTANTIATE_TEST_SUITE_P(
    Waits, FailedFetchOfHead,
    testing::Values(list("Top 5 Timed Events", kAll, "clsTopNWaitEvents", "getTOP_N_WAIT_EVENTS",
                         "getTOP_T_WAIT_EVENTS"),
                    list("Wait Events", kAll, "clsWaitEvents", "getWAIT_EVENTS", "getT_WAIT_EVENTS"),
                    list("Background Wait Events", kAll, "clsBackgroundWaitEvents",
                         "getBACKGROUND_WAIT_EVENTS", "getT_BACKGROUND_WAIT_EVENTS"),
                    list("Foreground Wait Events", {"11"}, "clsForegroundWaitEvents",
                         "getFOREGROUND_WAIT_EVENTS_ALL", "getFOREGROUND_WAIT_EVENTS_COL"),
                    list("Wait Event Histogram", kSince10, "clsWaitEventHistogram", "getWAIT_EVENT_HISTOGRAM",
                         "getT_WAIT_EVENT_HISTOGRAM")));

INSTANTIATE_TEST_SUITE_P(
    Sql, FailedFetchOfHead,
    testing::Values(ranking("CPU TOTAL", kSince10, "CPU_TOTAL", "(clsSnapId){unsetBAIND_VALUE}"),
                    ranking("CPU EXEC", kSince10, "CPU_EXEC", "(clsSnapId){unsetBAIND_VALUE}"),
                    ranking("Elapsed TOTAL", kSince10, "ELAPSED_TOTAL", "(clsSnapId){unsetBAIND_VALUE}"),
                    ranking("Elapsed EXEC", kSince10, "ELAPSED_EXEC", "(clsSnapId){unsetBAIND_VALUE}"),
                    ranking("Gets TOTAL", kAll, "GETS_TOTAL", series("GETS")),
                    ranking("Gets EXEC", kAll, "GETS_EXEC", series("GETS")),
                    ranking("Reads TOTAL", kAll, "READS_TOTAL", series("READS")),
                    ranking("Reads EXEC", kAll, "READS_EXEC", series("READS")),
                    ranking("I/O Wait TOTAL", kSince10, "IO_WAIT_TOTAL", series("IO_WAIT")),
                    ranking("I/O Wait EXEC", kSince10, "IO_WAIT_EXEC", series("IO_WAIT")),
                    ranking("Cluster TOTAL", kSince10, "CLUSTER_TOTAL", series("CLUSTER")),
                    ranking("Cluster EXEC", kSince10, "CLUSTER_EXEC", series("CLUSTER")),
                    ranking("Executions", kAll, "EXECUTIONS_TOTAL", series("EXECUTIONS")),
                    ranking("Parse Calls", kAll, "PARSE_CALLS_TOTAL", series("PARSE_CALLS")),
                    ranking("Sharable Memory", kAll, "SHARABLE_MEMORY_TOTAL", series("SHARABLE_MEMORY")),
                    ranking("Version Count", kAll, "VERSION_COUNT_TOTAL", "(clsLoadProfile){getLOGONS}")));

}  // namespace
}  // namespace kestrelix
