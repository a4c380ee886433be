#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/cluster_support.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(GlobalEnqueueStats, everyStatisticShowsByNameAlsoOneThatStoodStill) {
  ClusterRepository repository;
  repository.transactions()
      .dlm("2", "msgs sent queued", "1000", "4600")
      .dlm("1", "acks for commit broadcast(actual)", "3", "3")
      .dlm("3", "it's a name", "0", "180")
      .rows("stats$dlm_misc", {"snap_id", "statistic#", "name", "value"},
            {{"2", "4", "new at the end", "7"}});
  ReportFixture report(repository.write());
  report.open(0);
  // 3600 and 72 to divide by: 3600/3600 = 1, 3600/72 = 50; 180/3600 = .05 -> .1, 180/72 = 2.5.
  EXPECT_EQ(report.all("Global Enqueue Stats", 0),
            "NO|STATISTIC|TOTAL|PER SECOND|PER TRANS\n"
            "1|acks for commit broadcast(actual)|0|0|0\n"
            "2|it's a name|180|.1|2.5\n"
            "3|msgs sent queued|3600|1|50\n");
}

TEST(GlobalEnqueueStats, aSeriesFollowsOneStatistic) {
  ClusterRepository repository;
  repository.transactions().dlm("3", "it's a name", "0", "180");
  repository.rows("stats$sysstat", {"snap_id", "name", "value"},
                  {{"3", "user commits", "1"}, {"3", "user rollbacks", "1"}});
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Global Enqueue Stats", 0);
  EXPECT_EQ(report.col(1),
            "NO|STATISTIC|END TIME|TOTAL|PER SECOND|PER TRANS|STATUS\n"
            "1|it's a name|2026-01-05 11:00:00|180|.1|2.5|OK\n"
            "2||2026-01-05 12:00:00||||DB RESTART\n");
  EXPECT_EQ(report.all("Global Enqueue Stats", 1), "NO|STATISTIC|TOTAL|PER SECOND|PER TRANS\n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(GlobalEnqueueStats, theFiguresToDivideByAreFetchedAcrossARestartToo) {
  ClusterRepository repository;
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Global Enqueue Stats", 1);
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsGlobalEnqueueStats){getTRAN} Error"));
}

TEST(GlobalEnqueueStats, withoutTransactionsPerTransIsBlank) {
  ClusterRepository repository;
  repository.sysstat("user commits", "1", "1").sysstat("user rollbacks", "0", "0").dlm("1", "x", "0", "7200");
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(report.all("Global Enqueue Stats", 0),
            "NO|STATISTIC|TOTAL|PER SECOND|PER TRANS\n"
            "1|x|7200|2| \n");
}

class OddTimes : public testing::Test {
 protected:
  FixtureRepository& with(const std::string& second) {
    repository.common({{"dbid", "7"}, {"instance_number", "1"}})
        .row("stats$database_instance", {{"db_name", "RAC"},
                                         {"instance_name", "rac1"},
                                         {"host_name", "node1"},
                                         {"version", "11.2.0.4.0"},
                                         {"parallel", "YES"},
                                         {"startup_time", "2026-01-01 00:00:00"},
                                         {"snap_id", "1"}})
        .snapshot("1", "2026-01-05 10:00:00")
        .snapshot("2", second)
        .rows("stats$sysstat", {"snap_id", "name", "value"},
              {{"1", "user commits", "0"},
               {"2", "user commits", "4"},
               {"1", "user rollbacks", "0"},
               {"2", "user rollbacks", "0"}})
        .rows("stats$dlm_misc", {"snap_id", "statistic#", "name", "value"},
              {{"1", "1", "x", "0"}, {"2", "1", "x", "2"}});
    return repository;
  }
  FixtureRepository repository{"11"};
};

TEST_F(OddTimes, aPairOfNoSecondsShowsABlankPerSecond) {
  ReportFixture report(with("2026-01-05 10:00:00").write());
  report.open(0);
  EXPECT_EQ(report.all("Global Enqueue Stats", 0),
            "NO|STATISTIC|TOTAL|PER SECOND|PER TRANS\n"
            "1|x|2| |.5\n");
}

TEST_F(OddTimes, anEndBeforeItsStartFailsInTheElapsedTime) {
  ReportFixture report(with("2026-01-05 09:00:00").write());
  report.open(0);
  report.all("Global Enqueue Stats", 0);
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsGlobalEnqueueStats){getELA} Error"));
}

const std::initializer_list<std::string_view> kServed = {
    "snap_id",          "cr_requests",       "current_requests", "data_requests",
    "undo_requests",    "tx_requests",       "current_results",  "private_results",
    "zero_results",     "disk_read_results", "fail_results",     "fairness_down_converts",
    "fairness_clears",  "free_gc_elements",  "flushes",          "flushes_queued",
    "flush_queue_full", "flush_max_time",    "light_works",      "errors"};

TEST(GlobalCRServedStats, eachCounterIsItsGrowth) {
  ClusterRepository repository("10");
  repository.rows(
      "stats$cr_block_server", kServed,
      {{"1", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "500", "0", "1"},
       {"2",  "1",  "2",  "3",  "4",  "5",  "6",  "7",   "8",  "9",
        "10", "11", "12", "13", "14", "15", "16", "517", "18", "1"}});
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(report.all("Global CR Served Stats", 0),
            "NO|STATISTIC|TOTAL\n"
            "1|CR Block Requests|1\n"
            "2|CURRENT Block Requests|2\n"
            "3|Data Block Requests|3\n"
            "4|Undo Block Requests|4\n"
            "5|TX Block Requests|5\n"
            "6|Current Results|6\n"
            "7|Private results|7\n"
            "8|Zero Results|8\n"
            "9|Disk Read Results|9\n"
            "10|Fail Results|10\n"
            "11|Fairness Down Converts|11\n"
            "12|Fairness Clears|12\n"
            "13|Free GC Elements|13\n"
            "14|Flushes|14\n"
            "15|Flushes Queued|15\n"
            "16|Flush Queue Full|16\n"
            "17|Flush Max Time (us)|17\n"
            "18|Light Works|18\n"
            "19|Errors|0\n");
  EXPECT_EQ(report.col(9),
            "NO|STATISTIC|END TIME|TOTAL|STATUS\n"
            "1|Disk Read Results|2026-01-05 11:00:00|9|OK\n"
            "2|Disk Read Results|2026-01-05 12:00:00||DB RESTART\n");
  EXPECT_EQ(report.all("Global CR Served Stats", 1), "NO|STATISTIC|TOTAL\n");
}

const std::initializer_list<std::string_view> kCurrent = {
    "snap_id",  "pin1",      "pin10",      "pin100", "pin1000", "pin10000", "flush1",    "flush10",
    "flush100", "flush1000", "flush10000", "write1", "write10", "write100", "write1000", "write10000"};

TEST(GlobalCURRENTServedStats, bucketsArePercentagesPaddedToEight) {
  ClusterRepository repository;
  repository.rows("stats$current_block_server", kCurrent,
                  {{"1", "10", "0", "0", "0", "0", "5", "5", "0", "0", "0", "0", "0", "0", "0", "0"},
                   {"2", "12", "1", "0", "0", "0", "5", "5", "0", "0", "0", "8", "0", "0", "0", "0"}});
  ReportFixture report(repository.write());
  report.open(0);
  // Pins: 2 + 1 = 3, 66.67 % and 33.33 %. No flush: 0 and .00 everywhere. Writes: all 8 below 1 ms.
  EXPECT_EQ(report.all("Global CURRENT Served Stats", 0),
            "NO|STATISTIC|TOTAL|% <1MS|% <10MS|% <100MS|% <1S|% <10S\n"
            "1|Pins|3|   66.67|   33.33|    0.00|    0.00|    0.00\n"
            "2|Flushes|0|    0.00|    0.00|    0.00|    0.00|    0.00\n"
            "3|Writes|8|  100.00|    0.00|    0.00|    0.00|    0.00\n");
  EXPECT_EQ(report.col(1),
            "NO|STATISTIC|END TIME|TOTAL|% <1MS|% <10MS|% <100MS|% <1S|% <10S|STATUS\n"
            "1|Pins|2026-01-05 11:00:00|3|   66.67|   33.33|    0.00|    0.00|    0.00|OK\n"
            "2|Pins|2026-01-05 12:00:00|||||||DB RESTART\n");
  EXPECT_EQ(report.all("Global CURRENT Served Stats", 1),
            "NO|STATISTIC|TOTAL|% <1MS|% <10MS|% <100MS|% <1S|% <10S\n");
}

TEST(GlobalCURRENTServedStats, aNegativeShareKeepsItsSign) {
  ClusterRepository repository;
  repository.rows("stats$current_block_server", kCurrent,
                  {{"1", "1", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0"},
                   {"2", "0", "3", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0"}});
  ReportFixture report(repository.write());
  report.open(0);
  // 3 - 1 = 2 pins, of which -1 below 1 ms: -50 %, and 150 % below 10 ms.
  EXPECT_THAT(report.all("Global CURRENT Served Stats", 0),
              testing::HasSubstr("1|Pins|2|  -50.00|  150.00|    0.00|    0.00|    0.00\n"));
}

}  // namespace
}  // namespace kestrelix::testing_support
