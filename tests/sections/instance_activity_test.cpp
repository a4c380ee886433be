#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/instance_support.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

const char* const kHeadings1 = "NO|STATISTIC|TOTAL|PER SECOND|PER TRANS\n";

/// 72 transactions in pair 0, none in pair 2.
InstanceRepository& withTransactions(InstanceRepository& repository) {
  repository.sysstat("user commits", "100", "160").sysstat("user rollbacks", "8", "20");
  repository.rows("stats$sysstat", {"snap_id", "name", "value"},
                  {{"3", "user commits", "1"},
                   {"4", "user commits", "1"},
                   {"3", "user rollbacks", "0"},
                   {"4", "user rollbacks", "0"}});
  return repository;
}

TEST(InstanceActivity, cumulativeStatisticsShowByNameWithTheirRates) {
  for (const char* major : {"9", "10", "11"}) {
    InstanceRepository repository(major);
    withTransactions(repository)
        .sysstat("sorts (memory)", "20", "200")
        .sysstat("redo size", "1000", "8200")
        .sysstat("CPU used by this session", "5", "5");
    OpenReport report(repository);
    // By 3600 and 72: 7200 gives 2 and 100; 180 gives .05 and 2.5; 60 gives .0167 and .833; 12 gives .0033
    // and .1667.
    EXPECT_EQ(report.all("Instance Activity Stats[1]", 0), std::string(kHeadings1) +
                                                               "1|CPU used by this session|0|0|0\n"
                                                               "2|redo size|7200|2|100\n"
                                                               "3|sorts (memory)|180|.1|2.5\n"
                                                               "4|user commits|60|0|.8\n"
                                                               "5|user rollbacks|12|0|.2\n");
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(InstanceActivity, aStatisticThatFellOrEndsAtZeroIsLeftOut) {
  InstanceRepository repository("10");
  withTransactions(repository).sysstat("enqueue waits", "50", "40").sysstat("physical reads", "0", "0");
  OpenReport report(repository);
  EXPECT_EQ(report.all("Instance Activity Stats[1]", 0), std::string(kHeadings1) +
                                                             "1|user commits|60|0|.8\n"
                                                             "2|user rollbacks|12|0|.2\n");
}

TEST(InstanceActivity, theFourLevelsShowAmongThemselvesIfEitherEndIsAboveZero) {
  InstanceRepository repository("11");
  withTransactions(repository)
      .sysstat("logons current", "30", "31")
      .sysstat("opened cursors current", "0", "0")
      .sysstat("workarea memory allocated", "0", "5")
      .sysstat("session cursor cache count", "7", "0");
  OpenReport report(repository);
  EXPECT_EQ(report.all("Instance Activity Stats[1]", 0), std::string(kHeadings1) +
                                                             "1|user commits|60|0|.8\n"
                                                             "2|user rollbacks|12|0|.2\n");
  const std::string levels = report.all("Instance Activity Stats[2]", 0);
  EXPECT_EQ(levels.substr(0, levels.find('\n')), "NO|STATISTIC|START VALUE|END VALUE");
  EXPECT_THAT(report.rowsInAnyOrder(),
              UnorderedElementsAre("logons current|30|31", "workarea memory allocated|0|5",
                                   "session cursor cache count|7|0"));
}

TEST(InstanceActivity, aSeriesFollowsOneStatisticAndIsBlankAcrossARestart) {
  InstanceRepository repository("10");
  withTransactions(repository)
      .sysstat("redo size", "1000", "8200")
      .sysstat("CPU used by this session", "5", "9");
  repository.rows("stats$sysstat", {"snap_id", "name", "value"},
                  {{"3", "redo size", "60"}, {"4", "redo size", "600"}});
  OpenReport report(repository);
  report.all("Instance Activity Stats[1]", 0);
  // 540 in 5400 seconds; no transaction to divide by.
  EXPECT_EQ(report.col(2),
            "NO|STATISTIC|END TIME|TOTAL|PER SECOND|PER TRANS|STATUS\n"
            "1|redo size|2026-01-05 11:00:00|7200|2|100|OK\n"
            "2||2026-01-05 12:00:00||||DB RESTART\n"
            "3|redo size|2026-01-05 13:30:00|540|.1| |OK\n");
  EXPECT_EQ(report.all("Instance Activity Stats[1]", 1), kHeadings1);
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(InstanceActivity, aSeriesOfALevelLeavesPairsWithoutItBlank) {
  InstanceRepository repository("10");
  withTransactions(repository)
      .sysstat("logons current", "30", "31")
      .sysstat("opened cursors current", "1", "5");
  OpenReport report(repository);
  report.all("Instance Activity Stats[2]", 0);
  EXPECT_EQ(report.col(report.grid().TextMatrix(1, 1) == "opened cursors current" ? 1 : 2),
            "NO|STATISTIC|END TIME|START VALUE|END VALUE|STATUS\n"
            "1|opened cursors current|2026-01-05 11:00:00|1|5|OK\n"
            "2||2026-01-05 12:00:00|||DB RESTART\n"
            "3||2026-01-05 13:30:00|||OK\n");
  EXPECT_EQ(report.all("Instance Activity Stats[2]", 1), "NO|STATISTIC|START VALUE|END VALUE\n");
}

TEST(InstanceActivity, logSwitchesAreThoseOfTheInstancesOwnThread) {
  InstanceRepository repository("11");
  withTransactions(repository)
      .rows("stats$thread", {"snap_id", "thread#", "thread_instance_number", "sequence#"},
            {{"1", "1", "1", "100"},
             {"2", "1", "1", "103"},
             {"3", "1", "1", "104"},
             {"4", "1", "1", "108"},
             {"1", "2", "2", "500"},
             {"2", "2", "2", "600"}});
  OpenReport report(repository);
  EXPECT_EQ(report.all("Instance Activity Stats[3]", 0),
            "NO|STATISTIC|TOTAL|PER HOUR\n"
            "1|log switches (derived)|3|3\n");
  // 4 in an hour and a half.
  EXPECT_EQ(report.col(1),
            "NO|STATISTIC|END TIME|TOTAL|PER HOUR|STATUS\n"
            "1|log switches (derived)|2026-01-05 11:00:00|3|3|OK\n"
            "2||2026-01-05 12:00:00|||DB RESTART\n"
            "3|log switches (derived)|2026-01-05 13:30:00|4|2.67|OK\n");
  EXPECT_EQ(report.all("Instance Activity Stats[3]", 1), "NO|STATISTIC|TOTAL|PER HOUR\n");
}

/// Two snapshots alone, the second at the given time.
class TwoSnapshots : public FixtureRepository {
 public:
  explicit TwoSnapshots(std::string_view second) : FixtureRepository("10") {
    common({{"dbid", "7"}, {"instance_number", "1"}});
    row("stats$database_instance", {{"db_name", "ORCL"},
                                    {"instance_name", "orcl"},
                                    {"host_name", "node1"},
                                    {"version", "10.2.0.5.0"},
                                    {"parallel", "NO"},
                                    {"startup_time", "2026-01-01 00:00:00"},
                                    {"snap_id", "1"}});
    snapshot("1", "2026-01-05 10:00:00").snapshot("2", second);
    rows("stats$sysstat", {"snap_id", "name", "value"},
         {{"1", "user commits", "1"},
          {"2", "user commits", "5"},
          {"1", "user rollbacks", "0"},
          {"2", "user rollbacks", "0"}});
    rows("stats$thread", {"snap_id", "thread#", "thread_instance_number", "sequence#"},
         {{"1", "1", "1", "100"}, {"2", "1", "1", "103"}});
  }
};

TEST(InstanceActivity, withoutSecondsThereAreNoRates) {
  TwoSnapshots repository("2026-01-05 10:00:00");
  OpenReport report(repository);
  EXPECT_EQ(report.all("Instance Activity Stats[1]", 0), std::string(kHeadings1) + "1|user commits|4| |1\n");
  EXPECT_EQ(report.all("Instance Activity Stats[3]", 0),
            "NO|STATISTIC|TOTAL|PER HOUR\n1|log switches (derived)|3| \n");
}

TEST(InstanceActivity, snapshotsInTheWrongOrderOfTimeEndInTheBoxOfTheElapsedTime) {
  TwoSnapshots repository("2026-01-05 09:00:00");
  OpenReport report(repository);
  report.grid().TextMatrix(0, 0, "former");
  EXPECT_EQ(report.all("Instance Activity Stats[1]", 0).substr(0, 6), "former");
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsInstanceActivityStats){getELA} Error"));
}

TEST(InstanceActivity, withoutTransactionsEvenLogSwitchesEndInTheirBox) {
  InstanceRepository repository("10");
  OpenReport report(repository);
  report.all("Instance Activity Stats[3]", 0);
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsInstanceActivityStats){getTRAN} Error"));
}

}  // namespace
}  // namespace kestrelix::testing_support
