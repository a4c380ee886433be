#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "report/chart_series.h"
#include "sections/head_support.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Pair 0: 10 seconds of DB time. Shares of 75, 40, 9.05 and .5 percent; parsing is .05 s, which shows as .1.
// The background took longer than the sessions, and more CPU than time.
void timeModel(HeadRepository& repository) {
  repository.timeModel("background cpu time", {"0", "40000000", "0", "1000000"})
      .timeModel("parse time elapsed", {"50000", "100000", "0", "0"})
      .timeModel("DB time", {"5000000", "15000000", "0", "4000000"})
      .timeModel("PL/SQL execution elapsed time", {"0", "905000", "0", "0"})
      .timeModel("hard parse elapsed time", {"70", "70", "0", "1000000"})
      .timeModel("background elapsed time", {"0", "30000000", "0", "0"})
      .timeModel("DB CPU", {"0", "4000000", "0", "2000000"})
      .timeModel("sql execute elapsed time", {"500000", "8000000", "0", "0"})
      .timeModel("sequence load elapsed time", {"90", "0", "0", "0"});
}

TEST(TimeModel, partsOfDbTimeComeFirstThenDbTimeThenTheBackground) {
  for (const char* version : {"10", "11"}) {
    HeadRepository repository(version);
    timeModel(repository);
    ReportFixture report(repository.write());
    report.open(0);
    EXPECT_EQ(report.all("Time Model System Stats", 0),
              "NO|STATISTIC|TIME (S)|% OF DB TIME\n"
              "1|sql execute elapsed time|7.5|75\n"
              "2|DB CPU|4|40\n"
              "3|PL/SQL execution elapsed time|0.9|9.1\n"
              "4|parse time elapsed|0.1|.5\n"
              "5|DB time|10| \n"
              "6|background cpu time|40| \n"
              "7|background elapsed time|30| \n");
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(TimeModel, restartedPairHasHeadingsAlone) {
  HeadRepository repository("11");
  timeModel(repository);
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(report.all("Time Model System Stats", 1), "NO|STATISTIC|TIME (S)|% OF DB TIME\n");
}

// Parsing took no time in pair 2, so that it has no row there.
TEST(TimeModel, seriesHasAnEmptyRowWhereTheStatisticStoodStill) {
  HeadRepository repository("10");
  timeModel(repository);
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Time Model System Stats", 0);
  EXPECT_EQ(report.col(4),
            "NO|STATISTIC|END TIME|TIME (S)|% OF DB TIME|STATUS\n"
            "1|parse time elapsed|2026-01-05 11:00:00|0.1|.5|OK\n"
            "2||2026-01-05 12:00:00|||DB RESTART\n"
            "3||2026-01-05 13:00:00|||OK\n");
  report.all("Time Model System Stats", 0);
  EXPECT_EQ(columnsOf(report.col(2), 3, 5), "TIME (S)|% OF DB TIME|STATUS\n4|40|OK\n||DB RESTART\n2|50|OK\n");
}

TEST(TimeModel, chartRefusesTheShareOfDbTimeItself) {
  HeadRepository repository("10");
  timeModel(repository);
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Time Model System Stats", 0);
  EXPECT_EQ(columnsOf(report.col(5), 1, 4),
            "STATISTIC|END TIME|TIME (S)|% OF DB TIME\n"
            "DB time|2026-01-05 11:00:00|10| \n"
            "|2026-01-05 12:00:00||\n"
            "DB time|2026-01-05 13:00:00|4| \n");
  EXPECT_FALSE(ChartSeries::of(report.grid(), 4));
  const auto seconds = ChartSeries::of(report.grid(), 3);
  ASSERT_TRUE(seconds);
  EXPECT_EQ(seconds->maximum().text(), "10");
}

TEST(TimeModel, noDbTimeIsADivisionByZero) {
  HeadRepository repository("10");
  repository.timeModel("DB time", {"5", "5"}).timeModel("DB CPU", {"0", "1"});
  ReportFixture report(repository.write());
  report.open(0);
  const std::string before = printed(report.grid());
  EXPECT_EQ(report.all("Time Model System Stats", 0), before);
  EXPECT_THAT(report.boxes(),
              ElementsAre("[Critical] (clsTimeModelSystemStats){getTIME_MODEL_SYSTEM_STATS_ALL} Error"));
}

TEST(TimeModel, divisionIsTheSeriesBoxToo) {
  HeadRepository repository("10");
  repository.timeModel("DB time", {"5", "10", "20", "20"}).timeModel("DB CPU", {"0", "1", "2", "3"});
  ReportFixture report(repository.write());
  report.open(0);
  const std::string before = report.all("Time Model System Stats", 0);
  EXPECT_EQ(report.col(1), before);
  EXPECT_THAT(report.boxes(),
              ElementsAre("[Critical] (clsTimeModelSystemStats){getTIME_MODEL_SYSTEM_STATS_COL} Error"));
}

TEST(TimeModel, withoutDbTimeThereIsNothingToList) {
  HeadRepository repository("10");
  repository.timeModel("DB CPU", {"0", "1"});
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(report.all("Time Model System Stats", 0), "NO|STATISTIC|TIME (S)|% OF DB TIME\n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

}  // namespace
}  // namespace kestrelix::testing_support
