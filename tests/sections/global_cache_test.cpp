#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/cluster/clsGlobalCacheEfficiency.h"
#include "sections/cluster_support.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Received 3600 + 1800, served 360 + 0, messages received 7200 + 720, sent 36 + 0, fusion writes 9; blocks of
// 8192.
void globalCacheStatistics(ClusterRepository& repository) {
  repository.sysstat("gc current blocks received", "1000", "4600")
      .sysstat("gc cr blocks received", "0", "1800")
      .sysstat("gc current blocks served", "5", "365")
      .sysstat("gc cr blocks served", "77", "77")
      .sysstat("gcs messages sent", "0", "36")
      .sysstat("ges messages sent", "4", "4")
      .sysstat("DBWR fusion writes", "1", "10")
      .dlm("1", "gcs msgs received", "0", "7200")
      .dlm("2", "ges msgs received", "100", "820")
      .rows("stats$parameter", {"snap_id", "name", "value"},
            {{"1", "db_block_size", "4096"}, {"2", "db_block_size", "8192"}});
}

TEST(GlobalCacheLoadProfile, ratesArePerSecondAndPerTransaction) {
  ClusterRepository repository;
  globalCacheStatistics(repository.transactions());
  ReportFixture report(repository.write());
  report.open(0);
  // Per second over 3600, per transaction over 72. Traffic: ((3600 + 1800 + 360) * 8192 + (36 + 7200 + 720) *
  // 200) / 1024 / 3600 = (47185920 + 1591200) / 3686400 = 13.2316...; the block size is the end's.
  EXPECT_EQ(report.all("Global Cache Load Profile", 0),
            "NO|NAME|PER SECOND|PER TRANSACTION\n"
            "1|Global Cache blocks received:|1.5|75\n"
            "2|Global Cache blocks served:|0.1|5\n"
            "3|GCS/GES messages received:|2.2|110\n"
            "4|GCS/GES messages sent:|0.01|0.5\n"
            "5|DBWR Fusion writes:|0|0.13\n"
            "6|Estd Interconnect traffic (KB):|13.23|\n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(GlobalCacheLoadProfile, aSeriesRepeatsTheLabelAndLeavesTheRestartBlank) {
  ClusterRepository repository;
  globalCacheStatistics(repository.transactions());
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Global Cache Load Profile", 0);
  EXPECT_EQ(report.col(1),
            "NO|NAME|END TIME|PER SECOND|PER TRANSACTION|STATUS\n"
            "1|Global Cache blocks received:|2026-01-05 11:00:00|1.5|75|OK\n"
            "2|Global Cache blocks received:|2026-01-05 12:00:00|||DB RESTART\n");
  report.all("Global Cache Load Profile", 0);
  EXPECT_EQ(report.col(6),
            "NO|NAME|END TIME|PER SECOND|STATUS\n"
            "1|Estd Interconnect traffic (KB):|2026-01-05 11:00:00|13.23|OK\n"
            "2|Estd Interconnect traffic (KB):|2026-01-05 12:00:00||DB RESTART\n");
}

TEST(GlobalCacheLoadProfile, aRestartedPairShowsTheHeadingsAlone) {
  ClusterRepository repository;
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(report.all("Global Cache Load Profile", 1), "NO|NAME|PER SECOND|PER TRANSACTION\n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(GlobalCacheLoadProfile, aPairWithoutTransactionsFailsInItsGetterAndTheGridStays) {
  ClusterRepository repository;
  globalCacheStatistics(repository.sysstat("user commits", "5", "5").sysstat("user rollbacks", "0", "0"));
  ReportFixture report(repository.write());
  report.open(0);
  const std::string before = report.all("RAC Statistics", 0);
  EXPECT_EQ(report.all("Global Cache Load Profile", 0), before);
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsGlobalCacheLoadProfile){getGCBR_TRAN} Error"));
}

TEST(GlobalCacheLoadProfile, theSeriesOfARowFailsInTheRowsOwnRateAndTheTrafficHasNone) {
  ClusterRepository repository;
  globalCacheStatistics(repository.sysstat("user commits", "5", "5").sysstat("user rollbacks", "0", "0"));
  ReportFixture report(repository.write());
  report.open(0);
  layGrid(report.grid(), 4, 6);
  report.all("Global Cache Load Profile", 0);
  for (int row = 1; row <= 5; ++row) report.col(row);
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsGlobalCacheLoadProfile){getGCBR_TRAN} Error",
                                          "[Critical] (clsGlobalCacheLoadProfile){getGCBR_TRAN} Error",
                                          "[Critical] (clsGlobalCacheLoadProfile){getGCBS_TRAN} Error",
                                          "[Critical] (clsGlobalCacheLoadProfile){getGGMR_TRAN} Error",
                                          "[Critical] (clsGlobalCacheLoadProfile){getGGMS_TRAN} Error",
                                          "[Critical] (clsGlobalCacheLoadProfile){getDFW_TRAN} Error"));
  report.col(6);
  EXPECT_EQ(report.grid().TextMatrix(1, 3), "13.23");
  EXPECT_EQ(report.boxes().size(), 6u);
}

TEST(GlobalCacheLoadProfile, aMissingStatisticFailsInItsGetter) {
  ClusterRepository repository;
  repository.transactions().sysstat("gc current blocks received", "0", "1");
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Global Cache Load Profile", 0);
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsGlobalCacheLoadProfile){getGCBR_SEC} Error"));
}

TEST(GlobalCacheLoadProfile, aPairOfNoSecondsFailsInItsGetter) {
  FixtureRepository repository("11");
  repository.common({{"dbid", "7"}, {"instance_number", "1"}})
      .row("stats$database_instance", {{"db_name", "RAC"},
                                       {"instance_name", "rac1"},
                                       {"host_name", "node1"},
                                       {"version", "11.2.0.4.0"},
                                       {"parallel", "YES"},
                                       {"startup_time", "2026-01-01 00:00:00"},
                                       {"snap_id", "1"}})
      .snapshot("1", "2026-01-05 10:00:00")
      .snapshot("2", "2026-01-05 10:00:00")
      .rows("stats$sysstat", {"snap_id", "name", "value"},
            {{"1", "gc current blocks received", "0"},
             {"2", "gc current blocks received", "9"},
             {"1", "gc cr blocks received", "0"},
             {"2", "gc cr blocks received", "9"}});
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Global Cache Load Profile", 0);
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsGlobalCacheLoadProfile){getGCBR_SEC} Error"));
}

TEST(GlobalCacheEfficiency, sharesAddUpToAHundredUpToRounding) {
  ClusterRepository repository;
  repository.sysstat("physical reads cache", "10", "110")
      .sysstat("gc cr blocks received", "0", "30")
      .sysstat("gc current blocks received", "0", "20")
      .sysstat("consistent gets from cache", "1000", "1900")
      .sysstat("db block gets from cache", "500", "1100");
  ReportFixture report(repository.write());
  report.open(0);
  // 1500 gets: 100 from disk 6.67 %, 50 from other instances 3.33 %, the rest 1 - 150/1500 = 90 %.
  EXPECT_EQ(report.all("Global Cache Efficiency", 0),
            "NO|NAME|VALUE\n"
            "1|Buffer access -  local cache %:|90\n"
            "2|Buffer access - remote cache %:|3.33\n"
            "3|Buffer access -         disk %:|6.67\n");
  EXPECT_EQ(report.col(2),
            "NO|NAME|END TIME|VALUE|STATUS\n"
            "1|Buffer access - remote cache %:|2026-01-05 11:00:00|3.33|OK\n"
            "2|Buffer access - remote cache %:|2026-01-05 12:00:00||DB RESTART\n");
  EXPECT_EQ(report.all("Global Cache Efficiency", 1), "NO|NAME|VALUE\n");
}

TEST(GlobalCacheEfficiency, aPairWithoutGetsFailsInItsGetter) {
  ClusterRepository repository;
  repository.sysstat("physical reads cache", "1", "1")
      .sysstat("gc cr blocks received", "0", "0")
      .sysstat("gc current blocks received", "0", "0")
      .sysstat("consistent gets from cache", "3", "3")
      .sysstat("db block gets from cache", "3", "3");
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Global Cache Efficiency", 0);
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsGlobalCacheEfficiency){getLOCAL_CACHE} Error"));
}

TEST(RacStatistics, countsTheOpenThreadsAtEachEnd) {
  ClusterRepository repository;
  repository.rows("stats$thread", {"snap_id", "thread#", "status"},
                  {{"1", "1", "OPEN"},
                   {"1", "2", "OPEN"},
                   {"1", "3", "CLOSED"},
                   {"2", "1", "OPEN"},
                   {"2", "2", "OPEN"},
                   {"2", "3", "OPEN"}});
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(report.all("RAC Statistics", 0),
            "NO|NAME|START VALUE|END VALUE\n"
            "1|Number of Instances:|2|3\n");
  EXPECT_EQ(report.col(1),
            "NO|NAME|END TIME|START VALUE|END VALUE|STATUS\n"
            "1|Number of Instances:|2026-01-05 11:00:00|2|3|OK\n"
            "2|Number of Instances:|2026-01-05 12:00:00|||DB RESTART\n");
  EXPECT_EQ(report.all("RAC Statistics", 1), "NO|NAME|START VALUE|END VALUE\n");
}

TEST(RacStatistics, withoutThreadsTheCountIsZero) {
  ClusterRepository repository("10");
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(report.all("RAC Statistics", 0),
            "NO|NAME|START VALUE|END VALUE\n"
            "1|Number of Instances:|0|0\n");
}

TEST(GlobalCacheEfficiency, itsStatementsNameTheViewsThatTheyJoin) {
  // What a DBA reads in the list of statements.
  const clsGlobalCacheEfficiency object;
  const std::string& text = object.statements().back().text;
  EXPECT_THAT(text, testing::StartsWith("select ROUND(100 * phyrc / gets,2) AS DISK from (select "));
  EXPECT_THAT(text, testing::HasSubstr(":B4) phyrc, (select sum("));
  EXPECT_THAT(text, testing::EndsWith(":B4) gets "));
}

}  // namespace
}  // namespace kestrelix::testing_support
