// What is read of one row over all pairs, and how a row of the All view leads there.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "report/readings.h"
#include "support/answering_progress.h"
#include "support/grid_texts.h"
#include "support/recording_progress.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(Readings, theSeriesOfAListIsARowAPairWithItsTimeBehindTheKeys) {
  lay("select col", {"EVENT", "WAITS"}, {{"latch free", "7"}});
  const ReportTable table = col(section(kEvents, byCells({1})), {2, {"latch free"}});
  EXPECT_EQ(printed(table),
            "EVENT|END TIME|WAITS|STATUS\n"
            "latch free|2026-01-05 11:00:00|7|OK\n"
            "|2026-01-05 12:00:00||DB RESTART\n"
            "latch free|2026-01-05 13:00:00|7|SNAP_LEVEL NG");
  EXPECT_EQ(table.columns[1].measure, (Measure{Kind::Time}));
  EXPECT_EQ(table.columns[2].measure, (Measure{Kind::Count}));
  EXPECT_EQ(table.columns[3].measure, (Measure{Kind::Text}));
  EXPECT_EQ(table.status, "") << "it stands in each row";
  EXPECT_TRUE(table.read);
  EXPECT_EQ(lastBind("B5"), "latch free");
  EXPECT_EQ(lastBind("B3") + " to " + lastBind("B4"), "3 to 4");
  EXPECT_EQ(database.parameters().count(), 0u);
}

TEST_F(Readings, aSeriesCanHaveColumnsAndArgumentsOfItsOwn) {
  lay("select col", {"EVENT", "WAITS"}, {{"latch free", "7"}});
  ListView<clsEvents> view = kEvents;
  view.colColumns = {{{"WAITS OF ONE", Event::WAITS, Kind::Count}}};
  view.colArguments = [](const std::vector<std::string>& keys) {
    return std::vector<std::string>{"the " + keys.at(0)};
  };
  EXPECT_EQ(printed(col(section(view, byCells({1})), {1, {"latch free"}})),
            "WAITS OF ONE|END TIME|STATUS\n"
            "7|2026-01-05 11:00:00|OK\n"
            "|2026-01-05 12:00:00|DB RESTART\n"
            "7|2026-01-05 13:00:00|SNAP_LEVEL NG");
  EXPECT_EQ(lastBind("B5"), "the latch free");
}

TEST_F(Readings, theSeriesOfABeginRowHasTheTimesOfTheStartsAndNoStatus) {
  lay("select col", {"BE", "POOL", "SIZE"}, {{"B", "java pool", "24"}});
  EXPECT_EQ(printed(col(section(kSizes, byEnds({1, 2})), {1, {"B", "java pool"}})),
            "B/E|POOL|START TIME|SIZE\n"
            "B|java pool|2026-01-05 10:00:00|24\n"
            "||2026-01-05 11:00:00|\n"
            "B|java pool|2026-01-05 12:00:00|24");
  EXPECT_EQ(lastBind("B5"), "B");
  EXPECT_EQ(lastBind("PAR"), "java pool");
}

TEST_F(Readings, theSeriesOfAnEndRowHasTheTimesOfTheEnds) {
  lay("select col", {"BE", "POOL", "SIZE"}, {{"E", "java pool", "24"}});
  EXPECT_EQ(printed(col(section(kSizes, byEnds({1, 2})), {1, {"E", "java pool"}})),
            "B/E|POOL|END TIME|SIZE\n"
            "E|java pool|2026-01-05 11:00:00|24\n"
            "||2026-01-05 12:00:00|\n"
            "E|java pool|2026-01-05 13:00:00|24");
}

TEST_F(Readings, aRowThatIsOfNeitherSnapshotHasNoSeries) {
  const ReportTable table = col(section(kSizes, byEnds({1, 2})), {1, {"", "java pool"}});
  EXPECT_FALSE(table.read);
  EXPECT_THAT(table.failures, IsEmpty());
  EXPECT_THAT(statements(), IsEmpty());
}

TEST_F(Readings, theSeriesOfAMetricRunsItsMembersAlone) {
  layMetrics();
  const ReportTable table = col(section(kMetrics, byRow()), {1});
  EXPECT_EQ(printed(table),
            "NAME|END TIME|TOTAL|PER SECOND|STATUS\n"
            "redo size|2026-01-05 11:00:00|4096|1.14|OK\n"
            "redo size|2026-01-05 12:00:00|||DB RESTART\n"
            "redo size|2026-01-05 13:00:00|4096|1.14|SNAP_LEVEL NG");
  EXPECT_TRUE(table.measures.empty()) << "the columns tell";
  EXPECT_EQ(table.columns[2].measure, (Measure{Kind::Count, unit::bytes}));
  EXPECT_THAT(statements(), ElementsAre("select redo ", "select rate ", "select redo ", "select rate "));
}

TEST_F(Readings, theSeriesOfAMetricCanHaveALabelAndColumnsOfItsOwn) {
  layMetrics();
  EXPECT_EQ(printed(col(section(kMetrics, byRow()), {2})),
            "NAME|FILE\n"
            "current log|a.log\n"
            "current log|\n"
            "current log|a.log");
}

TEST_F(Readings, whereAnyRowLeadsToTheOneSeriesItIsTheFirstMetric) {
  layMetrics();
  EXPECT_EQ(col(section(kMetrics, anyRow()), {2}).rows.at(0).at(0), "redo size");
}

TEST_F(Readings, aRowOffTheMetricsHasNoSeries) {
  for (const int row : {0, 3}) EXPECT_FALSE(col(section(kMetrics, byRow()), {row}).read) << row;
  EXPECT_THAT(statements(), IsEmpty());
}

TEST_F(Readings, aRefusedSeriesIsNotRead) {
  EXPECT_FALSE(col(section(kEvents, refused()), {1, {"latch free"}}).read);
  EXPECT_THAT(statements(), IsEmpty());
}

TEST_F(Readings, failuresStayInTheOrderInWhichTheyHappened) {
  server.answer("from top").fails = true;
  lay("select col", {"EVENT"}, {{"latch free"}});
  const ReportTable table = col(section(kEvents, byCells({1})), {1, {"latch free"}});
  EXPECT_FALSE(table.read);
  EXPECT_THAT(table.rows, IsEmpty());
  EXPECT_THAT(table.failures,
              ElementsAre(Failure{"(clsEvents){getTOP_NUM} Error", "table or view does not exist"},
                          Failure{"(clsEvents){getEVENTS_COL} Error", "no column WAITS"}));
}

TEST_F(Readings, aSeriesTellsTheFailureOfEachPair) {
  server.answer("from top").fails = true;
  lay("select col", {"EVENT", "WAITS"}, {{"latch free", "7"}});
  const ReportTable table = col(section(kEvents, byCells({1})), {1, {"latch free"}});
  EXPECT_TRUE(table.read);
  const Failure failure{"(clsEvents){getTOP_NUM} Error", "table or view does not exist"};
  EXPECT_THAT(table.failures, ElementsAre(failure, failure, failure));
}

TEST_F(Readings, aSeriesTellsHowManyPairsAreRead) {
  lay("select col", {"EVENT", "WAITS"}, {});
  lay("select all", {"EVENT", "WAITS"}, {});
  RecordingProgress recording;
  progress = &recording;
  col(section(kEvents, byCells({1})), {1, {"latch free"}});
  EXPECT_THAT(recording.calls, ElementsAre("1 / 3", "2 / 3", "3 / 3"));
  recording.calls.clear();
  all(kEvents, 0);
  EXPECT_THAT(recording.calls, IsEmpty());
}

TEST_F(Readings, aSeriesThatIsToEndFailsInItsMemberAndReadsNoFurtherPair) {
  lay("select col", {"EVENT", "WAITS"}, {{"latch free", "7"}});
  AnsweringProgress untilTheThird([](std::int64_t pair, std::int64_t) { return pair < 3; });
  progress = &untilTheThird;
  const ReportTable table = col(section(kEvents, byCells({1})), {1, {"latch free"}});
  EXPECT_FALSE(table.read);
  EXPECT_THAT(table.rows, IsEmpty());
  EXPECT_THAT(table.failures,
              ElementsAre(Failure{"(clsEvents){getEVENTS_COL} Error", "the action was cancelled"}));
  EXPECT_THAT(statements(),
              ElementsAre("select TOP_NUM from top ", "select col ", "select TOP_NUM from top "))
      << "the second pair, across the restart, sends no more";
}

TEST_F(Readings, aMetricsSeriesThatIsToEndFailsInTheFirstOfItsMembers) {
  AnsweringProgress never([](std::int64_t, std::int64_t) { return false; });
  progress = &never;
  EXPECT_THAT(col(section(kMetrics, byRow()), {1}).failures,
              ElementsAre(Failure{"(clsMetrics){getREDO} Error", "the action was cancelled"}));
  EXPECT_THAT(statements(), IsEmpty());
}

TEST_F(Readings, aRequestTakesTheKeyCellsOfAGridsRowInTheirOrder) {
  Grid grid("MSFlexGridMain");
  layGrid(grid, 4, 2);
  layHeadings(grid, {"NO", "B/E", "POOL", "SIZE"});
  const std::vector<std::string> second{"2", "E", "java pool", "24"};
  for (int c = 0; c < 4; ++c) grid.TextMatrix(2, c, second[static_cast<std::size_t>(c)]);
  const ColRequest request = colRequest(section(kSizes, byEnds({2, 1})), grid, 2);
  EXPECT_EQ(request.row, 2);
  EXPECT_THAT(request.keys, ElementsAre("java pool", "E"));
}

TEST_F(Readings, aRequestTakesTheSameCellsOfATableWithoutRunningNumbers) {
  const ReportTable table{.title = "Any Section",
                          .columns = {{"B/E", {Kind::Key}}, {"POOL", {Kind::Key}}},
                          .rows = {{"B", "large pool"}, {"E", "java pool"}},
                          .measures = {},
                          .status = "OK",
                          .failures = {},
                          .read = true};
  const ColRequest request = colRequest(section(kSizes, byEnds({2, 1})), table, 2);
  EXPECT_EQ(request.row, 2);
  EXPECT_THAT(request.keys, ElementsAre("java pool", "E"));
}

TEST_F(Readings, aKeyCellThatIsNotThereIsEmpty) {
  Grid grid("MSFlexGridMain");
  layGrid(grid, 2, 1);
  grid.TextMatrix(1, 1, "latch free");
  const Section three = section(kEvents, byCells({1, 2, 3}));
  EXPECT_THAT(colRequest(three, grid, 1).keys, ElementsAre("latch free", "", ""));
  ReportTable table;
  table.rows = {{"latch free"}};
  EXPECT_THAT(colRequest(three, table, 1).keys, ElementsAre("latch free", "", ""));
}

TEST_F(Readings, aMetricIsAskedForByItsRowAlone) {
  Grid grid("MSFlexGridMain");
  layGrid(grid, 2, 3);
  const ColRequest request = colRequest(section(kMetrics, byRow()), grid, 3);
  EXPECT_EQ(request.row, 3);
  EXPECT_THAT(request.keys, IsEmpty());
}

}  // namespace
}  // namespace kestrelix::testing_support
