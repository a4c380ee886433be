// What the Sections on activity, I/O, memory and contention show when their statements fail: here, for want
// of a table.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/instance_support.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;

struct Failing {
  const char* section;
  const char* className;
  const char* all;
  const char* col;
  const char* table;
};

void PrintTo(const Failing& failing, std::ostream* out) { *out << failing.section; }

class FailedFetch : public testing::TestWithParam<Failing> {
 protected:
  FailedFetch() : repository_("11") {
    repository_.sysstat("user commits", "1", "2").sysstat("user rollbacks", "1", "2");
    repository_.without(GetParam().table);
    if (GetParam().table != std::string("stats$parameter")) repository_.parameter("db_block_size", "8192");
  }

  std::string box(const char* member) const {
    return std::string("[Critical] (") + GetParam().className + "){" + member + "} Error";
  }

  InstanceRepository repository_;
};

TEST_P(FailedFetch, leavesTheFormerViewAndShowsTheBoxOfItsGetter) {
  OpenReport report(repository_);
  layGrid(report.grid(), 5, 1);
  report.grid().Visible(true);
  report.grid().TextMatrix(1, 1, "B");
  const std::string former = printed(report.grid());
  EXPECT_EQ(report.all(GetParam().section, 0), former);
  EXPECT_THAT(report.boxes(), ElementsAre(box(GetParam().all)));
  EXPECT_EQ(report.col(1), former);
  EXPECT_THAT(report.boxes(), ElementsAre(box(GetParam().all), box(GetParam().col)));
  EXPECT_TRUE(report.grid().Visible());
}

INSTANTIATE_TEST_SUITE_P(
    ActivityMemoryAndContention, FailedFetch,
    testing::Values(
        Failing{"Instance Activity Stats[3]", "clsInstanceActivityStats", "getMAIN3_ALL", "getMAIN3_COL",
                "stats$thread"},
        Failing{"OS Statistics", "clsOSStatistics", "getOS_STATISTICS_ALL", "getOS_STATISTICS_COL",
                "stats$osstat"},
        Failing{"OS Statistics - detail", "clsOSStatisticsdetail", "getOS_STATISTICS_DETAIL_ALL",
                "getOS_STATISTICS_DETAIL_COL", "stats$osstat"},
        Failing{"IO Stat by Function - summary", "clsIOStatbyFunctionsummary",
                "getIO_STAT_BY_FUNCTION_SUMMARY_ALL", "getIO_STAT_BY_FUNCTION_SUMMARY_COL",
                "stats$iostat_function"},
        Failing{"IO Stat by Function - detail", "clsIOStatbyFunctiondetail",
                "getIO_STAT_BY_FUNCTION_DETAIL_ALL", "getIO_STAT_BY_FUNCTION_DETAIL_COL",
                "stats$iostat_function"},
        Failing{"Tablespace IO Stats", "clsTablespaceIOStats", "getTABLESPACE_IO_STATS_ALL",
                "getTABLESPACE_IO_STATS_COL", "stats$tempstatxs"},
        Failing{"File IO Stats", "clsFileIOStats", "getFILE_IO_STATS_ALL", "getFILE_IO_STATS_COL",
                "stats$filestatxs"},
        Failing{"File Read Histogram Stats", "clsFileReadHistogramStats", "getFILE_READ_HISTOGRAM_STATS_ALL",
                "getFILE_READ_HISTOGRAM_STATS_COL", "stats$file_histogram"},
        Failing{"Buffer Pool Statistics", "clsBufferPoolStatistics", "getBUFFER_POOL_STATISTICS_ALL",
                "getBUFFER_POOL_STATISTICS_COL", "stats$buffer_pool_statistics"},
        Failing{"Instance Recovery Stats", "clsInstanceRecoveryStats", "getINSTANCE_RECOVERY_STATS_ALL",
                "getINSTANCE_RECOVERY_STATS_COL", "stats$instance_recovery"},
        Failing{"Memory Dynamic Components", "clsMemoryDynamicComponents", "getMEMORY_DYNAMIC_COMPONENTS_ALL",
                "getMEMORY_DYNAMIC_COMPONENTS_COL", "stats$memory_dynamic_comps"},
        Failing{"Memory Resize Operations", "clsMemoryResizeOperations", "getMEMORY_RESIZE_OPERATIONS_ALL",
                "getMEMORY_RESIZE_OPERATIONS_COL", "stats$memory_resize_ops"},
        Failing{"Buffer Pool Advisory", "clsBufferPoolAdvisory", "getBUFFER_POOL_ADVISORY_ALL",
                "getBUFFER_POOL_ADVISORY_COL", "stats$db_cache_advice"},
        Failing{"Buffer wait Statistics", "clsBufferwaitStatistics", "getBUFFER_WAIT_STATISTICS_ALL",
                "getBUFFER_WAIT_STATISTICS_COL", "stats$waitstat"},
        Failing{"PGA Aggr Target Stats[1]", "clsPGAAggrTargetStats", "getPGA_AGGR_TARGET_STATS_1_ALL",
                "getPGA_AGGR_TARGET_STATS_1_COL", "stats$pgastat"},
        Failing{"PGA Aggr Target Stats[2]", "clsPGAAggrTargetStats", "getPGA_AGGR_TARGET_STATS_2_ALL",
                "getPGA_AGGR_TARGET_STATS_2_COL", "stats$pgastat"},
        Failing{"PGA Aggr Target Histogram", "clsPGAAggrTargetHistogram", "getPGA_AGGR_TARGET_HISTOGRAM_ALL",
                "getPGA_AGGR_TARGET_HISTOGRAM_COL", "stats$sql_workarea_histogram"},
        Failing{"Process Memory Summary Stats", "clsProcessMemorySummaryStats",
                "getPROCESS_MEMORY_SUMMARY_STATS_ALL", "getPROCESS_MEMORY_SUMMARY_STATS_COL",
                "stats$process_rollup"},
        Failing{"SGA Memory Summary", "clsSGAMemorySummary", "getSGA_MEMORY_SUMMARY_ALL",
                "getSGA_MEMORY_SUMMARY_COL", "stats$sga"},
        Failing{"SGA breakdown difference", "clsSGAbreakdowndifference", "getSGA_BREAKDOWN_DIFFERENCE_ALL",
                "getSGA_BREAKDOWN_DIFFERENCE_COL", "stats$sgastat"},
        Failing{"SQL Memory Statistics", "clsSQLMemoryStatistics", "getAVG_CURSOR_SIZE_KB",
                "getAVG_CURSOR_SIZE_KB", "stats$sql_statistics"},
        Failing{"Cache Size Changes", "clsCacheSizeChanges", "getCACHE_SIZE_CHANGES_ALL",
                "getCACHE_SIZE_CHANGES_COL", "stats$parameter"},
        Failing{"Latch Activity", "clsLatchActivity", "getLATCH_ACTIVITY_ALL", "getLATCH_ACTIVITY_COL",
                "stats$latch"},
        Failing{"Latch Sleep Breakdown", "clsLatchSleepBreakdown", "getLATCH_SLEEP_BREAKDOWN_ALL",
                "getLATCH_SLEEP_BREAKDOWN_COL", "stats$latch"},
        Failing{"Latch Miss Sources", "clsLatchMissSources", "getLATCH_MISS_SOURCES_ALL",
                "getLATCH_MISS_SOURCES_COL", "stats$latch_misses_summary"},
        Failing{"Mutex Sleep", "clsMutexSleep", "getMUTEX_SLEEP_ALL", "getMUTEX_SLEEP_COL",
                "stats$mutex_sleep"},
        // The box spells this class with a capital A.
        Failing{"Enqueue Activity", "clsEnqueueActivity", "getENQUEUE_ACTIVITY_ALL",
                "getENQUEUE_ACTIVITY_COL", "stats$enqueue_statistics"},
        Failing{"Undo Segment Summary", "clsUndoSegmentSummary", "getUNDO_SEGMENT_SUMMARY_ALL",
                "getUNDO_SEGMENT_SUMMARY_COL", "stats$undostat"}));

/// Here a text in the key column, which the Col views bind as a number, would be a failure of the binding.
class FailedFetchByNumber : public FailedFetch {};

TEST_P(FailedFetchByNumber, showsTheBoxOfItsGetterOrOfTheBinding) {
  OpenReport report(repository_);
  layGrid(report.grid(), 5, 1);
  report.all(GetParam().section, 0);
  EXPECT_THAT(report.boxes(), ElementsAre(box(GetParam().all)));
  report.grid().TextMatrix(1, 1, "64");
  report.grid().TextMatrix(1, 2, "0.5");
  report.col(1);
  EXPECT_THAT(report.boxes(), ElementsAre(box(GetParam().all), box(GetParam().col)));
  report.grid().TextMatrix(1, 1, "B");
  report.grid().TextMatrix(1, 2, "not a number");
  report.col(1);
  EXPECT_THAT(report.boxes(), ElementsAre(box(GetParam().all), box(GetParam().col), box("setBAIND_VALUE")));
}

INSTANTIATE_TEST_SUITE_P(
    MemoryAndContention, FailedFetchByNumber,
    testing::Values(Failing{"Memory Target Advice", "clsMemoryTargetAdvice", "getMEMORY_TARGET_ADVICE_ALL",
                            "getMEMORY_TARGET_ADVICE_COL", "stats$memory_target_advice"},
                    Failing{"PGA Memory Advisory", "clsPGAMemoryAdvisory", "getPGA_MEMORY_ADVISORY_ALL",
                            "getPGA_MEMORY_ADVISORY_COL", "stats$pga_target_advice"},
                    Failing{"Shared Pool Advisory", "clsSharedPoolAdvisory", "getSHARED_POOL_ADVISORY_ALL",
                            "getSHARED_POOL_ADVISORY_COL", "stats$shared_pool_advice"},
                    Failing{"Java Pool Advisory", "clsJavaPoolAdvisory", "getJAVA_POOL_ADVISORY_ALL",
                            "getJAVA_POOL_ADVISORY_COL", "stats$java_pool_advice"},
                    Failing{"SGA Target Advisory", "clsSGATargetAdvisory", "getSGA_TARGET_ADVISORY_ALL",
                            "getSGA_TARGET_ADVISORY_COL", "stats$sga_target_advice"},
                    Failing{"Rollback Segment Stats", "clsRollbackSegmentStats",
                            "getROLLBACK_SEGMENT_STATS_ALL", "getROLLBACK_SEGMENT_STATS_COL",
                            "stats$rollstat"},
                    Failing{"Rollback Segment Storage", "clsRollbackSegmentStorage",
                            "getROLLBACK_SEGMENT_STORAGE_ALL", "getROLLBACK_SEGMENT_STORAGE_COL",
                            "stats$rollstat"}));

TEST(FailedFetchOfProcesses, showsTheBoxOfTheGetterOfEitherView) {
  InstanceRepository repository("10");
  repository.without("stats$process_memory_rollup");
  OpenReport report(repository);
  layGrid(report.grid(), 5, 1);
  report.all("Top Process Memory (by component)", 0);
  for (const char* edge : {"B", "E"}) {
    report.grid().TextMatrix(1, 1, edge);
    report.grid().TextMatrix(1, 2, "10");
    report.col(1);
  }
  EXPECT_THAT(report.boxes(),
              ElementsAre("[Critical] (clsTopProcessMemory){getTOP_PROCESS_MEMORY_ALL} Error",
                          "[Critical] (clsTopProcessMemory){getTOP_PROCESS_MEMORY_COL} Error",
                          "[Critical] (clsTopProcessMemory){getTOP_PROCESS_MEMORY_COL} Error"));
}

TEST(FailedFetchOfUndoIntervals, showsTheBoxOfTheGetter) {
  InstanceRepository repository("11");
  repository.without("stats$undostat");
  OpenReport report(repository);
  report.grid().TextMatrix(0, 0, "former");
  EXPECT_EQ(report.all("Undo Segment Stats", 0).substr(0, 6), "former");
  EXPECT_THAT(report.boxes(),
              ElementsAre("[Critical] (clsUndoSegmentStats){getUNDO_SEGMENT_STATS_ALL} Error"));
}

TEST(FailedFetchOfLevels, aMissingValueShowsTheBoxOfTheGetter) {
  InstanceRepository repository("10");
  repository.sysstat("user commits", "1", "2")
      .sysstat("user rollbacks", "1", "2")
      .sysstat("logons current", "", "5");
  OpenReport report(repository);
  layGrid(report.grid(), 5, 1);
  report.all("Instance Activity Stats[2]", 0);
  report.grid().TextMatrix(1, 1, "logons current");
  report.col(1);
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsInstanceActivityStats){getMAIN2_ALL} Error",
                                          "[Critical] (clsInstanceActivityStats){getMAIN2_COL} Error"));
}

}  // namespace
}  // namespace kestrelix::testing_support
