// What is read of a Section for a pair, from which releases, and what becomes of failures.
#include "report/reading.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "report/readings.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(Readings, aListIsTheRowsOfThePairUnderTheirHeadings) {
  lay("select all", {"EVENT", "WAITS"}, {{"latch free", "7"}, {"log file sync", " "}});
  const ReportTable table = all(kEvents, 0);
  EXPECT_EQ(printed(table),
            "EVENT|WAITS\n"
            "latch free|7\n"
            "log file sync| ");
  EXPECT_EQ(table.title, "Any Section");
  EXPECT_EQ(table.status, "OK");
  EXPECT_EQ(table.measure(0, 0), (Measure{Kind::Key}));
  EXPECT_EQ(table.measure(1, 1), (Measure{Kind::Count}));
  EXPECT_THAT(table.failures, IsEmpty());
  EXPECT_TRUE(table.read);
  EXPECT_EQ(lastBind("B3") + " to " + lastBind("B4"), "1 to 2");
  EXPECT_EQ(lastBind("B5"), "%") << "the view's own argument";
  EXPECT_EQ(database.parameters().count(), 0u);
}

TEST_F(Readings, aListWithoutRowsIsReadAllTheSame) {
  lay("select all", {"EVENT", "WAITS"}, {});
  const ReportTable table = all(kEvents, 2);
  EXPECT_EQ(printed(table), "EVENT|WAITS");
  EXPECT_EQ(table.status, "SNAP_LEVEL NG");
  EXPECT_TRUE(table.read);
}

TEST_F(Readings, aListAcrossARestartIsItsHeadingsAlone) {
  const ReportTable table = all(kEvents, 1);
  EXPECT_EQ(printed(table), "EVENT|WAITS");
  EXPECT_EQ(table.status, "DB RESTART");
  EXPECT_TRUE(table.read);
  EXPECT_THAT(statements(), ElementsAre("select TOP_NUM from top "));
}

TEST_F(Readings, aListThatHoldsAcrossARestartHasItsRows) {
  lay("select settings", {"NAME", "VALUE"}, {{"cpu_count", "8"}});
  const ReportTable table = all(kSettings, 1);
  EXPECT_EQ(printed(table), "NAME|VALUE\ncpu_count|8");
  EXPECT_EQ(table.status, "DB RESTART");
}

TEST_F(Readings, metricsStandUnderTheirHeadingsEachWithItsOwnMeasures) {
  layMetrics();
  const ReportTable table = all(kMetrics, 0);
  EXPECT_EQ(printed(table),
            "NAME|TOTAL|PER SECOND\n"
            "redo size|4096|1.14\n"
            "log file|a.log|");
  EXPECT_EQ(table.status, "OK");
  EXPECT_EQ(table.measure(0, 0), (Measure{Kind::Key}));
  EXPECT_EQ(table.measure(0, 1), (Measure{Kind::Count, unit::bytes}));
  EXPECT_EQ(table.measure(0, 2), (Measure{Kind::Rate, unit::bytes}));
  EXPECT_EQ(table.measure(1, 1), (Measure{Kind::Text}));
  EXPECT_EQ(table.measure(1, 2), Measure()) << "there is no such cell";
}

TEST_F(Readings, aHeadingOverFiguresAndTextsIsOfTexts) {
  layMetrics();
  const ReportTable table = all(kMetrics, 0);
  EXPECT_EQ(table.columns[0].measure, (Measure{Kind::Key}));
  EXPECT_EQ(table.columns[1].measure, (Measure{Kind::Text}));
  EXPECT_EQ(table.columns[2].measure, (Measure{Kind::Rate, unit::bytes}));
}

TEST_F(Readings, metricsAcrossARestartAreTheirLabelsWithoutFigures) {
  const ReportTable table = all(kMetrics, 1);
  EXPECT_EQ(printed(table),
            "NAME|TOTAL|PER SECOND\n"
            "redo size||\n"
            "log file||");
  EXPECT_EQ(table.status, "DB RESTART");
  EXPECT_THAT(statements(), IsEmpty());
}

TEST_F(Readings, metricsCanBeHeadingsAloneAcrossARestart) {
  MetricView<clsMetrics> view = kMetrics;
  view.headingsAloneOnRestart = true;
  view.nameHeading = "METRIC";
  EXPECT_EQ(printed(all(view, 1)), "METRIC|TOTAL|PER SECOND");
  layMetrics();
  EXPECT_EQ(all(view, 0).rows.size(), 2u);
}

TEST_F(Readings, viewsOfSomeReleasesAreReadFromNoOther) {
  const Section some = section(kEvents, byCells({1}), V9_10);
  for (const char* other : {"11", "12", ""}) {
    version = other;
    const ReportTable table = readAll(source(), some, 0);
    EXPECT_FALSE(table.read) << other;
    EXPECT_THAT(table.failures, IsEmpty()) << other;
    EXPECT_FALSE(readCol(source(), some, {1, {"latch free"}}).read) << other;
  }
  EXPECT_THAT(statements(), IsEmpty());
}

TEST_F(Readings, viewsOfAllReleasesAreReadFromARefusedOneToo) {
  lay("select all", {"EVENT", "WAITS"}, {{"latch free", "7"}});
  lay("select col", {"EVENT", "WAITS"}, {{"latch free", "7"}});
  version = "12";
  EXPECT_EQ(printed(all(kEvents, 0)), "EVENT|WAITS\nlatch free|7");
  EXPECT_EQ(col(section(kEvents, byCells({1})), {1, {"latch free"}}).rows.size(), 3u);
}

TEST_F(Readings, aBindThatGoesOnLeavesItsFailureAndTheTable) {
  server.answer("from top").fails = true;
  lay("select all", {"EVENT", "WAITS"}, {{"latch free", "7"}});
  const ReportTable table = all(kEvents, 0);
  EXPECT_EQ(printed(table), "EVENT|WAITS\nlatch free|7");
  EXPECT_TRUE(table.read);
  EXPECT_THAT(table.failures,
              ElementsAre(Failure{"(clsEvents){getTOP_NUM} Error", "table or view does not exist"}));
  EXPECT_EQ(lastBind("TOP_NUM"), "5");
}

TEST_F(Readings, metricsEndAtTheFirstThatFails) {
  layMetrics();
  server.answer("select rate").fails = true;
  const ReportTable table = all(kMetrics, 0);
  EXPECT_FALSE(table.read);
  EXPECT_THAT(table.failures,
              ElementsAre(Failure{"(clsMetrics){getREDO_RATE} Error", "table or view does not exist"}));
  EXPECT_THAT(statements(), ElementsAre("select redo ", "select rate "));
}

TEST_F(Readings, theNextReadingBindsAnewAfterOneThatFailed) {
  server.answer("select all").fails = true;
  EXPECT_FALSE(all(kEvents, 0).read);
  EXPECT_GT(database.parameters().count(), 0u);
  server.answer("select all").fails = false;
  const ReportTable table = all(kEvents, 0);
  EXPECT_TRUE(table.read);
  EXPECT_THAT(table.failures, IsEmpty());
}

}  // namespace
}  // namespace kestrelix::testing_support
