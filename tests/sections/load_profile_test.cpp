#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "report/chart_series.h"
#include "sections/head_support.h"
#include "sections/renderers.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// In pair 0: 3600 seconds, 60 transactions. The hour is .0416666666666666666666666666666666666667 of a day;
// times 1440 it is 60 and 5E-38, times 60 it is 3600 and 3E-36. So 18 in it are .005 less 4E-42, which the
// NUMBER still holds, and round to 0; 90 are .025 less 2E-41, which it holds no more, and round to .03.
void workload(HeadRepository& repository) {
  repository.transactions()
      .sysstat("redo size", {"1000", "73000", "0", "3600"})        // 72000: 20 a second, 1200 each
      .sysstat("session logical reads", {"5", "41", "0", "7200"})  // 36: .01, .6
      .sysstat("db block changes", {"100", "118", "0", "18"})      // 18: under .005, .3
      .sysstat("physical reads", {"7", "5407", "0", "0"})          // 1.5, 90
      .sysstat("physical writes", {"8", "8", "0", "0"})            // 0, 0
      .sysstat("user calls", {"10", "7210", "0", "0"})             // 2, 120
      .sysstat("parse count (total)", {"1", "1801", "0", "0"})     // .5, 30
      .sysstat("parse count (hard)", {"2", "92", "0", "0"})        // .025, 1.5
      .sysstat("sorts (memory)", {"3", "403", "0", "0"})           // .111, 6.667
      .sysstat("sorts (disk)", {"4", "104", "0", "0"})
      .sysstat("sorts (rows)", {"6", "5006", "0", "0"})      // 5000 by 400 + 100
      .sysstat("logons cumulative", {"5", "6", "0", "0"})    // .0003, .0167
      .sysstat("execute count", {"8", "3608", "0", "0"})     // 1, 60
      .sysstat("recursive calls", {"9", "2409", "0", "0"});  // 2400 of 2400 + 7200
}

void timesOf11(HeadRepository& repository) {
  repository
      .timeModel("DB time", {"0", "7200000000", "0", "0"})   // 7200 s: by 3600, 60, 3600, 7200
      .timeModel("DB CPU", {"100", "1800000100", "0", "0"})  // 1800 s
      .timeModel("parse time elapsed", {"0", "999", "0", "0"})
      .pga("bytes processed", {"0", "3774873600", "0", "0"})  // 3600 MB
      .pga("cache hit percentage", {"50", "60", "0", "0"});
}

const std::string kOf9And10 =
    "NO|NAME|PER SECOND|PER TRANSACTION|OTHER VALUE\n"
    "1|Redo size:|20|1200|\n"
    "2|Logical reads:|.01|.6|\n"
    "3|Block changes:|0|.3|\n"
    "4|Physical reads:|1.5|90|\n"
    "5|Physical writes:|0|0|\n"
    "6|User calls:|2|120|\n"
    "7|Parses:|.5|30|\n"
    "8|Hard parses:|.03|1.5|\n"
    "9|Sorts:|.11|6.67|\n"
    "10|Logons:|0|.02|\n"
    "11|Executes:|1|60|\n"
    "12|Transactions:|.02||\n"
    "13|% Blocks changed per Read:|||50\n"
    "14|Rollback per transaction %:|||16.67\n"
    "15|Recursive Call %:|||25\n"
    "16|Rows per Sort:|||10\n";

class LoadProfileOf : public testing::TestWithParam<const char*> {};
INSTANTIATE_TEST_SUITE_P(Version, LoadProfileOf, testing::Values("9", "10"),
                         [](const auto& parameter) { return std::string(parameter.param); });

// The time model of version 10 is there and empty: no statement asks for it.
TEST_P(LoadProfileOf, showsSixteenRatesAndRatios) {
  HeadRepository repository(GetParam());
  workload(repository);
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(report.all("Load Profile", 0), kOf9And10);
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST_P(LoadProfileOf, rowsOfTheViewLeadToTheirSeries) {
  HeadRepository repository(GetParam());
  workload(repository);
  ReportFixture report(repository.write());
  report.open(0);
  for (int row = 1; row <= 16; ++row) {
    report.all("Load Profile", 0);
    const std::string label = report.grid().TextMatrix(row, 1);
    const std::string headings = row <= 11   ? "PER SECOND|PER TRANSACTION"
                                 : row == 12 ? "PER SECOND"
                                             : "OTHER VALUE";
    const std::string lines = report.col(row);
    EXPECT_EQ(lines.substr(0, lines.find('\n')), "NO|NAME|END TIME|" + headings + "|STATUS") << row;
    EXPECT_EQ(report.grid().TextMatrix(1, 1), label) << row;
    EXPECT_EQ(report.grid().Rows(), 4) << row;
  }
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(LoadProfile, versionElevenShowsTimesPerExecutionAndCall) {
  HeadRepository repository("11");
  workload(repository);
  timesOf11(repository);
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(report.all("Load Profile", 0),
            "NO|NAME|PER SECOND|PER TRANSACTION|PER EXEC|PER CALL\n"
            "1|DB time(s):|2|120|2|1\n"
            "2|DB CPU(s):|.5|30|.5|.25\n"
            "3|Redo size:|20|1200||\n"
            "4|Logical reads:|.01|.6||\n"
            "5|Block changes:|0|.3||\n"
            "6|Physical reads:|1.5|90||\n"
            "7|Physical writes:|0|0||\n"
            "8|User calls:|2|120||\n"
            "9|Parses:|.5|30||\n"
            "10|Hard parses:|.03|1.5||\n"
            "11|W/A MB processed:|1|60||\n"
            "12|Logons:|0|.02||\n"
            "13|Executes:|1|60||\n"
            "14|Rollbacks:|0|.17||\n"
            "15|Transactions:|.02|||\n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(LoadProfile, rowsOfVersionElevenLeadToTheirSeries) {
  HeadRepository repository("11");
  workload(repository);
  timesOf11(repository);
  ReportFixture report(repository.write());
  report.open(0);
  for (int row = 1; row <= 15; ++row) {
    report.all("Load Profile", 0);
    const std::string label = report.grid().TextMatrix(row, 1);
    const std::string values = row <= 2    ? "PER SECOND|PER TRANSACTION|PER EXEC|PER CALL"
                               : row == 15 ? "PER SECOND"
                                           : "PER SECOND|PER TRANSACTION";
    const std::string lines = report.col(row);
    EXPECT_EQ(lines.substr(0, lines.find('\n')), "NO|NAME|END TIME|" + values + "|STATUS") << row;
    EXPECT_EQ(report.grid().TextMatrix(3, 1), label) << row;
    EXPECT_EQ(report.grid().TextMatrix(2, 3), "") << row;
  }
  EXPECT_THAT(report.boxes(), IsEmpty());
}

// Pair 2: 3600 in an hour, 30 transactions.
TEST(LoadProfile, aSeriesLeavesTheRestartBlank) {
  HeadRepository repository("10");
  workload(repository);
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Load Profile", 0);
  EXPECT_EQ(report.col(1),
            "NO|NAME|END TIME|PER SECOND|PER TRANSACTION|STATUS\n"
            "1|Redo size:|2026-01-05 11:00:00|20|1200|OK\n"
            "2|Redo size:|2026-01-05 12:00:00|||DB RESTART\n"
            "3|Redo size:|2026-01-05 13:00:00|1|120|OK\n");
}

TEST(LoadProfile, timesAreASeriesOfFourValues) {
  HeadRepository repository("11");
  workload(repository);
  timesOf11(repository);
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Load Profile", 0);
  // Pair 2: no time in 3600 seconds and 30 transactions; no executions and no calls to divide by.
  EXPECT_EQ(report.col(2),
            "NO|NAME|END TIME|PER SECOND|PER TRANSACTION|PER EXEC|PER CALL|STATUS\n"
            "1|DB CPU(s):|2026-01-05 11:00:00|.5|30|.5|.25|OK\n"
            "2|DB CPU(s):|2026-01-05 12:00:00|||||DB RESTART\n"
            "3|DB CPU(s):|2026-01-05 13:00:00|0|0| | |OK\n");
}

TEST(LoadProfile, restartedPairLeavesTheLabels) {
  for (const char* version : {"10", "11"}) {
    HeadRepository repository(version);
    ReportFixture report(repository.write());
    report.open(0);
    report.all("Load Profile", 1);
    ASSERT_EQ(report.grid().Rows(), version == std::string("11") ? 16 : 17);
    for (int row = 1; row < report.grid().Rows(); ++row) {
      EXPECT_NE(report.grid().TextMatrix(row, 1), "");
      for (int col = 2; col < report.grid().Cols(); ++col) EXPECT_EQ(report.grid().TextMatrix(row, col), "");
    }
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(LoadProfile, snapshotsOfTheSameTimeLeaveThePerSecondColumnsBlankAndOutOfTheChart) {
  HeadRepository repository("10", {"10:00:00", "10:00:00"});
  workload(repository);
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(columnsOf(report.all("Load Profile", 0), 2, 2),
            "PER SECOND\n \n \n \n \n \n \n \n \n \n \n \n \n\n\n\n\n");
  EXPECT_EQ(report.grid().TextMatrix(1, 3), "1200");
  EXPECT_EQ(report.grid().TextMatrix(14, 4), "16.67");
  report.col(1);
  EXPECT_FALSE(ChartSeries::of(report.grid(), 3));
  EXPECT_TRUE(ChartSeries::of(report.grid(), 4));
}

TEST(LoadProfile, pairWithoutTransactionsLeavesThePerTransactionColumnsBlank) {
  HeadRepository still("10");
  still.sysstat("user commits", {"100", "100"}).sysstat("user rollbacks", {"10", "10"});
  for (const char* name :
       {"redo size", "session logical reads", "db block changes", "physical reads", "physical writes",
        "user calls", "parse count (total)", "parse count (hard)", "sorts (memory)", "sorts (disk)",
        "sorts (rows)", "logons cumulative", "execute count", "recursive calls"})
    still.sysstat(name, {"0", "36000"});
  ReportFixture report(still.write());
  report.open(0);
  // 36000 by 3600 is 10; the ratios: 100, none, 50, .5.
  EXPECT_EQ(columnsOf(report.all("Load Profile", 0), 2, 4),
            "PER SECOND|PER TRANSACTION|OTHER VALUE\n"
            "10| |\n10| |\n10| |\n10| |\n10| |\n10| |\n10| |\n10| |\n10| |\n10| |\n10| |\n"
            "0||\n"
            "||100\n"
            "|| \n"
            "||50\n"
            "||.5\n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(LoadProfile, ratiosWithoutADivisorAreBlank) {
  HeadRepository repository("10");
  for (const char* name : {"user commits", "user rollbacks", "redo size", "session logical reads",
                           "db block changes", "physical reads", "physical writes", "user calls",
                           "parse count (total)", "parse count (hard)", "sorts (memory)", "sorts (disk)",
                           "sorts (rows)", "logons cumulative", "execute count", "recursive calls"})
    repository.sysstat(name, {"5", "5"});
  ReportFixture report(repository.write());
  report.open(0);
  const std::string ratios = columnsOf(report.all("Load Profile", 0), 4, 4);
  EXPECT_EQ(ratios, "OTHER VALUE\n\n\n\n\n\n\n\n\n\n\n\n\n \n \n \n \n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(LoadProfile, lossIsANegativeRate) {
  HeadRepository repository("10");
  repository.transactions().sysstat("redo size", {"7200", "0", "0", "-"});
  ReportFixture report(repository.write());
  report.open(0);
  const std::string before = printed(report.grid());
  report.show(gDispLoadProfile_Col(report.source(), {1, {}}));
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsLoadProfile){getREDO_SIZE} Error"))
      << "one pair that fails ends the series";
  EXPECT_EQ(printed(report.grid()), before);

  HeadRepository whole("10");
  whole.transactions().sysstat("redo size", {"7200", "0", "0", "0"});
  ReportFixture second(whole.write());
  second.open(0);
  second.show(gDispLoadProfile_Col(second.source(), {1, {}}));
  EXPECT_EQ(columnsOf(printed(second.grid()), 3, 4), "PER SECOND|PER TRANSACTION\n-2|-120\n|\n0|0\n");
}

TEST(LoadProfile, missingStatisticIsTheBoxOfItsGetterAndTheGridStays) {
  HeadRepository lacking("10");
  lacking.transactions().sysstat("redo size", {"1000", "73000"}).sysstat("session logical reads", {"0", "-"});
  ReportFixture report(lacking.write());
  report.open(0);
  const std::string before = printed(report.grid());
  EXPECT_EQ(report.all("Load Profile", 0), before);
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsLoadProfile){getLOGICAL_READS} Error"));
}

TEST(LoadProfile, missingFigureOfTheTimeModelIsTheBoxOfItsGetter) {
  HeadRepository repository("11");
  workload(repository);
  repository.timeModel("DB time", {"0", "1"}).pga("bytes processed", {"0", "1"});
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Load Profile", 0);
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsLoadProfile){getDB_CPU} Error"));
}

TEST(LoadProfile, rowBehindTheLastLeadsNowhere) {
  const std::pair<const char*, int> beyond[] = {{"9", 17}, {"10", 17}, {"11", 16}};
  for (const auto& [version, row] : beyond) {
    HeadRepository repository(version);
    ReportFixture report(repository.write());
    report.open(0);
    const std::string before = printed(report.grid());
    for (const int none : {0, row, row + 1}) report.show(gDispLoadProfile_Col(report.source(), {none, {}}));
    EXPECT_EQ(printed(report.grid()), before);
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

}  // namespace
}  // namespace kestrelix::testing_support
