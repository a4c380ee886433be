// The chart over a Col view: which columns it takes, its axis, its pages and the buttons on them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "report/clsGraphCommon.h"
#include "support/recording_boxes.h"

namespace kestrelix {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

const char* const kRefused = "[Exclamation] 選択されている項目は不正です";

/// A Col view "NO", "NAME", "END TIME", "VALUE", "STATUS" of some pairs, with the chart and the buttons.
class Graph : public testing::Test {
 protected:
  Graph() {
    for (const char* key :
         {"GRAPH_START", "GRAPH_LEFT", "GRAPH_DISP", "GRAPH_MAX", "LIST", "GRAPH_RIGHT", "GRAPH_END"})
      toolbar.Add(key, key, "");
  }

  void show(std::initializer_list<const char*> headings, const std::vector<std::vector<std::string>>& rows) {
    grid.Cols(static_cast<int>(headings.size()));
    grid.Rows(1 + static_cast<int>(rows.size()));
    int c = 0;
    for (const char* heading : headings) grid.TextMatrix(0, c++, heading);
    for (std::size_t r = 0; r < rows.size(); ++r)
      for (std::size_t i = 0; i < rows[r].size(); ++i)
        grid.TextMatrix(static_cast<int>(r) + 1, static_cast<int>(i), rows[r][i]);
  }

  void showValues(const std::vector<std::string>& values) {
    std::vector<std::vector<std::string>> rows;
    for (std::size_t i = 0; i < values.size(); ++i)
      rows.push_back({std::to_string(i + 1), "Redo size:", "t" + std::to_string(i + 1), values[i], "OK"});
    show({"NO", "NAME", "END TIME", "VALUE", "STATUS"}, rows);
    grid.Col(3);
  }

  /// So many pairs with the values 1, 2, 3, ...
  void showCount(int count) {
    std::vector<std::string> values;
    for (int i = 1; i <= count; ++i) values.push_back(std::to_string(i));
    showValues(values);
  }

  bool draw() { return graph.Initialize(grid, chart, toolbar) && graph.StartPage(); }

  std::vector<std::string> labels() const {
    std::vector<std::string> texts;
    for (int k = 1; k <= chart.RowCount(); ++k) texts.push_back(chart.RowLabel(k));
    return texts;
  }
  std::vector<std::string> points() {
    std::vector<std::string> texts;
    for (int k = 1; k <= chart.RowCount(); ++k) {
      chart.Row(k);
      texts.push_back(chart.Data());
    }
    return texts;
  }
  /// The enabled buttons, by the letters of S(tart) L(eft) D(isp) M(ax) l(ist) R(ight) E(nd).
  std::string buttons() const {
    std::string on;
    const char letters[] = "SLDMlRE";
    for (std::size_t i = 0; i < toolbar.buttons().size(); ++i)
      on += toolbar.buttons()[i].enabled ? letters[i] : '-';
    return on;
  }
  std::string axisOf(const std::string& largest) {
    showValues({largest});
    EXPECT_TRUE(draw());
    return chart.valueScale().Minimum + ".." + chart.valueScale().Maximum;
  }

  testing_support::RecordingBoxes boxes;
  Grid grid{"MSFlexGridMain"};
  Chart chart{"MSChartCommon"};
  Toolbar toolbar{"ToolbarTop"};
  clsGraphCommon graph{boxes};
};

TEST_F(Graph, refusesTheNumberTheKeyTheTimeAndTheStatusColumn) {
  showValues({"1", "2"});
  for (const int column : {0, 1, 2, 4}) {
    grid.Col(column);
    boxes.shown.clear();
    EXPECT_FALSE(graph.Initialize(grid, chart, toolbar)) << column;
    EXPECT_THAT(boxes.shown, ElementsAre(kRefused)) << column;
  }
}

TEST_F(Graph, refusesAColumnBeforeAnyTimeColumnEvenIfNumeric) {
  show({"NO", "SNAP ID", "START TIME", "GETS", "END TIME", "MISSES"}, {{"1", "11", "t0", "5", "t1", "6"}});
  for (const int column : {1, 2, 3, 4}) {
    grid.Col(column);
    EXPECT_FALSE(graph.Initialize(grid, chart, toolbar)) << column;
  }
  grid.Col(5);
  EXPECT_TRUE(graph.Initialize(grid, chart, toolbar));
}

TEST_F(Graph, refusesAColumnWithABlankOrATextInAnyRow) {
  for (const char* text : {" ", "10K", "#####", "n/a", "1 2", "0x10", "1,5", "DB RESTART"}) {
    showValues({"1", "2", text});
    boxes.shown.clear();
    EXPECT_FALSE(graph.Initialize(grid, chart, toolbar)) << text;
    EXPECT_THAT(boxes.shown, ElementsAre(kRefused)) << text;
  }
}

TEST_F(Graph, leavesTheChartAloneWhenItRefuses) {
  showValues({"5", "7"});
  ASSERT_TRUE(draw());
  int changes = 0;
  chart.changed.connect([&] { ++changes; });
  grid.Col(4);
  EXPECT_FALSE(graph.Initialize(grid, chart, toolbar));
  EXPECT_EQ(changes, 0);
  EXPECT_EQ(chart.TitleText(), "VALUE[1/1]");
  EXPECT_EQ(chart.valueScale().Maximum, "7");
}

TEST_F(Graph, takesNumbersInEveryForm) {
  showValues({".5", " 50.0", "-3", "+4", "1.5E1", "0", ""});
  ASSERT_TRUE(draw());
  auto drawn = points();
  drawn.resize(7);
  EXPECT_THAT(drawn, ElementsAre("0.5", "50", "0", "4", "15", "0", "0"));
  EXPECT_EQ(chart.valueScale().Maximum, "50");
  EXPECT_THAT(boxes.shown, IsEmpty());
}

TEST_F(Graph, axisEndsAtTheNextNumberOfOneDigit) {
  EXPECT_EQ(axisOf("1234.5"), "0..2000");
  EXPECT_EQ(axisOf("9.2"), "0..10");
  EXPECT_EQ(axisOf("100"), "0..100");
  EXPECT_EQ(axisOf("101"), "0..200");
  EXPECT_EQ(axisOf("0.0234"), "0..0.03");
  EXPECT_EQ(axisOf("0.95"), "0..1");
  EXPECT_EQ(axisOf("1"), "0..1");
}

TEST_F(Graph, axisIsDecimal) {
  EXPECT_EQ(axisOf("0.07"), "0..0.07");
  EXPECT_EQ(axisOf(".07"), "0..0.07");
  EXPECT_EQ(axisOf("0.3"), "0..0.3");
  EXPECT_EQ(axisOf("0.0070000000000000000000001"), "0..0.008");
  EXPECT_EQ(axisOf("9007199254740993"), "0..10000000000000000");
}

TEST_F(Graph, axisOfZerosOrNothingGoesToOne) {
  EXPECT_EQ(axisOf("0"), "0..1");
  EXPECT_EQ(axisOf(""), "0..1");
  EXPECT_EQ(axisOf("-5"), "0..1");
  EXPECT_FALSE(chart.valueScale().Auto);
}

TEST_F(Graph, onePairIsOnePageWithTheListButtonAlone) {
  showCount(1);
  ASSERT_TRUE(draw());
  EXPECT_EQ(chart.RowCount(), 20);
  EXPECT_EQ(chart.ColumnCount(), 1);
  EXPECT_EQ(chart.TitleText(), "VALUE[1/1]");
  std::vector<std::string> expected(20);
  expected[0] = "t1";
  EXPECT_EQ(labels(), expected);
  EXPECT_EQ(points()[0], "1");
  EXPECT_EQ(buttons(), "----l--");
}

TEST_F(Graph, twentyPairsFillOnePage) {
  showCount(20);
  ASSERT_TRUE(draw());
  EXPECT_EQ(chart.TitleText(), "VALUE[1/1]");
  EXPECT_EQ(labels()[19], "t20");
  EXPECT_EQ(points()[19], "20");
  EXPECT_EQ(buttons(), "----l--");
}

TEST_F(Graph, twentyFirstPairStandsAloneOnTheSecondPage) {
  showCount(21);
  ASSERT_TRUE(draw());
  EXPECT_EQ(chart.TitleText(), "VALUE[1/2]");
  EXPECT_EQ(buttons(), "---MlRE");
  ASSERT_TRUE(graph.AtferPage());
  EXPECT_EQ(chart.TitleText(), "VALUE[2/2]");
  auto rest = labels();
  EXPECT_EQ(rest[0], "t21");
  rest.erase(rest.begin());
  EXPECT_THAT(rest, Each(""));
  auto values = points();
  EXPECT_EQ(values[0], "21");
  values.erase(values.begin());
  EXPECT_EQ(values.size(), 19u);
  EXPECT_THAT(values, Each("0"));
  EXPECT_EQ(buttons(), "SL-Ml--");
}

TEST_F(Graph, sixtyPairsTurnInThreePages) {
  showCount(60);
  ASSERT_TRUE(draw());
  EXPECT_EQ(buttons(), "---MlRE");
  ASSERT_TRUE(graph.AtferPage());
  EXPECT_EQ(chart.TitleText(), "VALUE[2/3]");
  EXPECT_EQ(labels()[0], "t21");
  EXPECT_EQ(labels()[19], "t40");
  EXPECT_EQ(buttons(), "SL-MlRE");
  ASSERT_TRUE(graph.EndPage());
  EXPECT_EQ(chart.TitleText(), "VALUE[3/3]");
  EXPECT_EQ(labels()[0], "t41");
  EXPECT_EQ(points()[19], "60");
  EXPECT_EQ(buttons(), "SL-Ml--");
  ASSERT_TRUE(graph.BeforePage());
  EXPECT_EQ(chart.TitleText(), "VALUE[2/3]");
  EXPECT_EQ(labels()[0], "t21");
  ASSERT_TRUE(graph.StartPage());
  EXPECT_EQ(chart.TitleText(), "VALUE[1/3]");
  EXPECT_EQ(labels()[0], "t1");
}

TEST_F(Graph, nothingComesBeforeTheFirstPage) {
  showCount(21);
  ASSERT_TRUE(draw());
  EXPECT_TRUE(graph.BeforePage());
  EXPECT_EQ(chart.TitleText(), "VALUE[1/2]");
}

TEST_F(Graph, stepPastTheLastPageFailsInTheDrawing) {
  showCount(21);
  ASSERT_TRUE(draw());
  ASSERT_TRUE(graph.EndPage());
  EXPECT_FALSE(graph.AtferPage());
  EXPECT_THAT(boxes.shown, ElementsAre("[Critical] (clsGraphCommon){GraphDisp} Error"));
  EXPECT_TRUE(graph.AtferPage()) << "behind it there is nothing to turn to";
  EXPECT_EQ(boxes.shown.size(), 1u);
  EXPECT_TRUE(graph.EndPage());
  EXPECT_EQ(chart.TitleText(), "VALUE[2/2]");
}

TEST_F(Graph, failedButtonIsTheBoxOfTheButtons) {
  Toolbar bare("ToolbarTop");
  showCount(2);
  ASSERT_TRUE(graph.Initialize(grid, chart, bare));
  EXPECT_FALSE(graph.StartPage());
  EXPECT_THAT(boxes.shown, ElementsAre("[Critical] (clsGraphCommon){CtrlButton} Error"));
}

TEST_F(Graph, maximumIsOnItsPage) {
  std::vector<std::string> values(60, "1");
  values[44] = "7.5";
  showValues(values);
  ASSERT_TRUE(draw());
  ASSERT_TRUE(graph.MaxValuePage());
  EXPECT_EQ(chart.TitleText(), "VALUE[3/3]");
  EXPECT_EQ(labels()[0], "t41");
  EXPECT_EQ(points()[4], "7.5");
}

TEST_F(Graph, firstOfEqualMaximaIsShown) {
  std::vector<std::string> values(60, "1");
  values[25] = "9";
  values[50] = "9.0";
  showValues(values);
  ASSERT_TRUE(draw());
  ASSERT_TRUE(graph.MaxValuePage());
  EXPECT_EQ(chart.TitleText(), "VALUE[2/3]");
}

TEST_F(Graph, twentiethPairAsMaximumIsOnTheFirstPage) {
  std::vector<std::string> values(21, "1");
  values[19] = "2";
  showValues(values);
  ASSERT_TRUE(draw());
  ASSERT_TRUE(graph.EndPage());
  ASSERT_TRUE(graph.MaxValuePage());
  EXPECT_EQ(chart.TitleText(), "VALUE[1/2]");
}

TEST_F(Graph, negativeValuesAreDrawnAsZeroAndAreNoMaximum) {
  std::vector<std::string> values(21, "-4");
  values[20] = "-1";
  showValues(values);
  ASSERT_TRUE(draw());
  EXPECT_THAT(points(), Each("0"));
  ASSERT_TRUE(graph.MaxValuePage());
  EXPECT_EQ(chart.TitleText(), "VALUE[1/2]");
}

TEST_F(Graph, pageOfNegativeValuesIsNotThePageOfTheMaximum) {
  std::vector<std::string> values(20, "-100");
  values.push_back("0.5");
  showValues(values);
  ASSERT_TRUE(draw());
  ASSERT_TRUE(graph.MaxValuePage());
  EXPECT_EQ(chart.TitleText(), "VALUE[2/2]");
  EXPECT_EQ(chart.valueScale().Maximum, "0.5");
}

TEST_F(Graph, emptyCellIsAZeroWithItsTime) {
  showValues({"3", "", "4"});
  ASSERT_TRUE(draw());
  EXPECT_EQ(labels()[1], "t2");
  EXPECT_EQ(points()[1], "0");
}

TEST_F(Graph, labelsComeFromTheNearestTimeColumnToTheLeft) {
  show({"NO", "NAME", "START TIME", "SNAP ID", "SESSIONS"}, {{"1", "Begin Snap:", "t0", "11", "20"}});
  grid.Col(4);
  ASSERT_TRUE(draw());
  EXPECT_EQ(chart.TitleText(), "SESSIONS[1/1]");
  EXPECT_EQ(labels()[0], "t0");
  show({"NO", "START TIME", "KEY", "END TIME", "VALUE"}, {{"1", "t0", "k", "t1", "2"}});
  grid.Col(4);
  ASSERT_TRUE(draw());
  EXPECT_EQ(labels()[0], "t1");
}

TEST_F(Graph, chartIsHiddenWhileItIsFilledAndShownOnce) {
  showCount(3);
  ASSERT_TRUE(draw());
  std::vector<bool> seen;
  chart.changed.connect([&] { seen.push_back(chart.Visible()); });
  ASSERT_TRUE(graph.StartPage());
  EXPECT_THAT(seen, ElementsAre(false, true, true)) << "hidden, shown, refreshed";
}

TEST_F(Graph, anotherColumnStartsAfresh) {
  showCount(60);
  ASSERT_TRUE(draw());
  ASSERT_TRUE(graph.EndPage());
  showValues({"0.2", "0.1"});
  ASSERT_TRUE(draw());
  EXPECT_EQ(chart.TitleText(), "VALUE[1/1]");
  EXPECT_EQ(chart.valueScale().Maximum, "0.2");
  EXPECT_EQ(labels()[2], "");
  EXPECT_EQ(points()[2], "0");
}

}  // namespace
}  // namespace kestrelix
