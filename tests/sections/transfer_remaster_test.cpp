#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/cluster/ModuleDispGlobalCacheTransferStats.h"
#include "sections/cluster_support.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::initializer_list<std::string_view> kTransfer = {
    "snap_id",      "instance",      "class",        "cr_block",         "cr_busy",
    "cr_congested", "current_block", "current_busy", "current_congested"};

// Instance 2 sends data blocks and two classes that fold into others; instance 3 sends consistent read blocks
// alone; the undo headers of instance 2 stand still.
void transfers(ClusterRepository& repository) {
  repository.rows("stats$instance_cache_transfer", kTransfer,
                  {{"1", "2", "data block", "100", "10", "0", "50", "0", "0"},
                   {"2", "2", "data block", "160", "30", "20", "51", "1", "2"},
                   {"1", "2", "segment header", "0", "0", "0", "0", "0", "0"},
                   {"2", "2", "segment header", "3", "0", "0", "0", "0", "0"},
                   {"2", "2", "1st level bmb", "1", "0", "0", "0", "4", "0"},
                   {"1", "2", "undo header", "9", "9", "9", "9", "9", "9"},
                   {"2", "2", "undo header", "9", "9", "9", "9", "9", "9"},
                   {"2", "3", "data block", "7", "0", "0", "0", "0", "0"}});
}

TEST(GlobalCacheTransferStats, classesFoldAndPercentagesAreOfEachTotal) {
  ClusterRepository repository;
  transfers(repository);
  ReportFixture report(repository.write());
  report.open(0);
  // Instance 2, data block: cr 60 + 20 + 20 = 100, current 1 + 1 + 2 = 4. Others: cr 3 + 1 = 4, current 0 + 4
  // + 0 = 4. Instance 3: cr 7, no current block. By the sum of both: 104, 8, 7.
  EXPECT_EQ(report.all("Global Cache Transfer Stats", 0),
            "NO|INST NO|BLOCK CLASS|CR BLOCKS RECEIVED|CR % IMMED|CR % BUSY|CR % CONGST|CU BLOCKS "
            "RECEIVED|CU % IMMED|CU "
            "% BUSY|CU % CONGST\n"
            "1|2|data block|100|60|20|20|4|25|25|50\n"
            "2|2|others|4|100|0|0|4|0|100|0\n"
            "3|3|data block|7|100|0|0|0| | | \n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(GlobalCacheTransferStats, aSeriesFollowsTheClassAndLeavesTheRestartBlank) {
  ClusterRepository repository;
  transfers(repository);
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Global Cache Transfer Stats", 0);
  EXPECT_EQ(report.col(2),
            "NO|INST NO|BLOCK CLASS|END TIME|CR BLOCKS RECEIVED|CR % IMMED|CR % BUSY|CR % CONGST|CU BLOCKS "
            "RECEIVED|CU % "
            "IMMED|CU % BUSY|CU % CONGST|STATUS\n"
            "1|2|others|2026-01-05 11:00:00|4|100|0|0|4|0|100|0|OK\n"
            "2|||2026-01-05 12:00:00|||||||||DB RESTART\n");
  EXPECT_EQ(report.grid().Cols(), 13);
}

TEST(GlobalCacheTransferStats, theFormByClassAddsTheInstancesUp) {
  ClusterRepository repository;
  transfers(repository);
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Global Cache Transfer Stats", 0);
  Section byClass = section("Global Cache Transfer Stats");
  byClass.views = globalCacheTransferStatsClassViews();
  report.show(readAll(report.source(), byClass, 0));
  // Data block: cr 67 + 20 + 20 = 107, 67/107 = 62.6 %, 20/107 = 18.7 %.
  EXPECT_EQ(
      printed(report.grid()),
      "NO|BLOCK CLASS|CR BLOCKS RECEIVED|CR % IMMED|CR % BUSY|CR % CONGST|CU BLOCKS RECEIVED|CU % IMMED|CU % "
      "BUSY|CU % CONGST\n"
      "1|data block|107|62.6|18.7|18.7|4|25|25|50\n"
      "2|others|4|100|0|0|4|0|100|0\n");
  report.show(readCol(report.source(), byClass, {1, {"data block"}}));
  EXPECT_EQ(report.grid().Cols(), 12);
  EXPECT_EQ(report.grid().TextMatrix(1, 3), "107");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

const std::initializer_list<std::string_view> kPings = {
    "snap_id", "target_instance", "iter_500b", "wait_500b", "waitsq_500b", "iter_8k", "wait_8k", "waitsq_8k"};

TEST(InterconnectPingStats, averageAndDeviationAreInMilliseconds) {
  ClusterRepository repository;
  // Two pings to 1 of 3000 and 5000 microseconds: 8000 in all, squares 34,000,000 = 1000 * 34000. Mean 4000,
  // variance 17,000,000 - 16,000,000 = 1,000,000, deviation 1000: 4 and 1 ms. To 2 there were pings of 500
  // bytes alone; to 3 the rounding of the squares makes the variance negative: 0.
  repository.rows("stats$interconnect_pings", kPings,
                  {{"1", "1", "10", "70000", "900", "0", "0", "0"},
                   {"2", "1", "12", "78000", "34900", "2", "8000", "34000"},
                   {"2", "2", "4", "1000000", "250000000", "0", "0", "0"},
                   {"2", "3", "1", "1500", "2249", "1", "1", "0"}});
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(report.all("Interconnect Ping Stats", 0),
            "NO|TARGET INSTANCE|[500B]PING COUNT|[500B]TIME(S)|[500B]AVG TIME(MS)|[500B]STD DEV|[8KB]PING "
            "COUNT|[8KB]TIME(S)|[8KB]AVG TIME(MS)|[8KB]STD DEV\n"
            "1|1|2|0.008|4|1|2|0.008|4|1\n"
            "2|2|4|1|250|0|0|0| | \n"
            "3|3|1|0.0015|1.5|0|1|0.000001|0|0\n");
  EXPECT_EQ(
      report.col(1),
      "NO|TARGET INSTANCE|END TIME|[500B]PING COUNT|[500B]TIME(S)|[500B]AVG TIME(MS)|[500B]STD DEV|[8KB]PING "
      "COUNT|[8KB]TIME(S))|[8KB]AVG TIME(MS)|[8KB]STD DEV|STATUS\n"
      "1|1|2026-01-05 11:00:00|2|0.008|4|1|2|0.008|4|1|OK\n"
      "2||2026-01-05 12:00:00|||||||||DB RESTART\n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

const std::initializer_list<std::string_view> kRemaster = {"snap_id",
                                                           "remaster_ops",
                                                           "remaster_time",
                                                           "remastered_objects",
                                                           "quiesce_time",
                                                           "freeze_time",
                                                           "cleanup_time",
                                                           "replay_time",
                                                           "fixwrite_time",
                                                           "sync_time",
                                                           "resources_cleaned",
                                                           "replayed_locks_sent",
                                                           "replayed_locks_received",
                                                           "current_objects"};

TEST(DynamicRemasteringStats, timesAreInSecondsAndAffinityIsALevelAtEachEnd) {
  ClusterRepository repository("10");
  repository.rows("stats$dynamic_remaster_stats", kRemaster,
                  {{"1", "1", "0", "2", "0", "0", "0", "0", "0", "0", "0", "0", "0", "44"},
                   {"2", "3", "1234", "7", "50", "15", "14", "200", "1000", "5", "600", "70", "8", "41"}});
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(report.all("Dynamic Remastering Stats", 0),
            "NO|NAME|VALUE\n"
            "1|Remaster Operations:|2\n"
            "2|Remaster Time(s):|12.3\n"
            "3|Remastered Objects:|5\n"
            "4|Quiesce Time(s):|.5\n"
            "5|Affinity Objects (Beg):|44\n"
            "6|Freeze Time(s):|.2\n"
            "7|Affinity Objects (End):|41\n"
            "8|Cleanup Time(s):|.1\n"
            "9|Replayed Locks Sent:|70\n"
            "10|Replay Time(s):|2\n"
            "11|Replayed Locks Recvd:|8\n"
            "12|Fixwrite Time(s):|10\n"
            "13|Resources Cleaned:|600\n"
            "14|Sync Time(s):|.1\n");
  EXPECT_EQ(report.col(14),
            "NO|NAME|END TIME|VALUE|STATUS\n"
            "1|Flushes|2026-01-05 11:00:00|.1|OK\n"
            "2|Flushes|2026-01-05 12:00:00||DB RESTART\n");
  EXPECT_EQ(report.all("Dynamic Remastering Stats", 1), "NO|NAME|VALUE\n");
}

TEST(DynamicRemasteringStats, aSeriesHasTheLabelOfTheSameRowOfTheBlocksServedAndItsOwnFigure) {
  ClusterRepository repository;
  repository.rows(
      "stats$dynamic_remaster_stats", kRemaster,
      {{"1", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "5"},
       {"2", "1", "200", "3", "400", "600", "800", "1000", "1200", "1400", "13", "9", "11", "7"}});
  ReportFixture report(repository.write());
  report.open(0);
  // Each figure is the row's number: times are hundredths of a second.
  const char* const labels[] = {"CR Block Requests",      "CURRENT Block Requests",
                                "Data Block Requests",    "Undo Block Requests",
                                "TX Block Requests",      "Current Results",
                                "Private results",        "Zero Results",
                                "Disk Read Results",      "Fail Results",
                                "Fairness Down Converts", "Fairness Clears",
                                "Free GC Elements",       "Flushes"};
  for (int row = 1; row <= 14; ++row) {
    report.all("Dynamic Remastering Stats", 0);
    const std::string label = labels[row - 1];
    EXPECT_EQ(report.col(row), "NO|NAME|END TIME|VALUE|STATUS\n1|" + label + "|2026-01-05 11:00:00|" +
                                   std::to_string(row) + "|OK\n2|" + label +
                                   "|2026-01-05 12:00:00||DB RESTART\n");
  }
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(DynamicRemasteringStats, theFirstOperationsCountFromZeroAndLackTheirStart) {
  ClusterRepository repository;
  repository.rows("stats$dynamic_remaster_stats", kRemaster,
                  {{"2", "3", "1234", "7", "50", "15", "14", "200", "1000", "5", "600", "70", "8", "41"}});
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Dynamic Remastering Stats", 0);
  EXPECT_EQ(report.grid().TextMatrix(1, 2), "3");
  EXPECT_EQ(report.grid().TextMatrix(2, 2), "12.3");
  EXPECT_EQ(report.grid().TextMatrix(3, 2), "7");
  EXPECT_EQ(report.grid().TextMatrix(5, 2), " ") << "no level at the start";
  EXPECT_EQ(report.grid().TextMatrix(7, 2), "41");
  EXPECT_EQ(report.grid().TextMatrix(14, 2), ".1");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(DynamicRemasteringStats, withoutAnOperationAllRowsAreBlank) {
  ClusterRepository repository;
  repository.rows("stats$dynamic_remaster_stats", kRemaster,
                  {{"1", "3", "0", "2", "0", "0", "0", "0", "0", "0", "0", "0", "0", "44"},
                   {"2", "3", "9", "9", "9", "9", "9", "9", "9", "9", "9", "9", "9", "9"}});
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Dynamic Remastering Stats", 0);
  for (int row = 1; row <= 14; ++row) EXPECT_EQ(report.grid().TextMatrix(row, 2), " ") << row;
  EXPECT_EQ(report.grid().Rows(), 15);
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(DynamicRemasteringStats, withoutAnyRowAllRowsAreBlank) {
  ClusterRepository repository;
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Dynamic Remastering Stats", 0);
  for (int row = 1; row <= 14; ++row) EXPECT_EQ(report.grid().TextMatrix(row, 2), " ") << row;
}

}  // namespace
}  // namespace kestrelix::testing_support
