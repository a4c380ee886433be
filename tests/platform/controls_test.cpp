#include "platform/controls.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace kestrelix {
namespace {

TEST(ListBox, selectingFromCodeIsAClick) {
  ListBox list("ListSnapId");
  list.AddItem("a");
  list.AddItem("b", 7);
  int clicks = 0;
  list.Click.connect([&] { ++clicks; });
  list.ListIndex(1);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(list.Text(), "b");
  EXPECT_EQ(list.ItemData(1), 7);
  list.ListIndex(1);
  EXPECT_EQ(clicks, 2) << "the selected entry can be asked for again";
}

TEST(ListBox, clearDropsTheSelectionWithoutAClick) {
  ListBox list("ListSnapId");
  list.AddItem("a");
  list.ListIndex(0);
  int clicks = 0;
  list.Click.connect([&] { ++clicks; });
  list.Clear();
  EXPECT_EQ(list.ListIndex(), -1);
  EXPECT_EQ(list.Text(), "");
  EXPECT_EQ(clicks, 0);
}

TEST(ListBox, anEntryThatIsNotThereCannotBeSelected) {
  ListBox list("ListSnapId");
  EXPECT_THROW(list.ListIndex(0), std::out_of_range);
}

TEST(Toolbar, aDisabledButtonIgnoresThePress) {
  Toolbar bar("ToolbarTop");
  bar.Add("SQL", "SQL(Ctrl+S)", "IMG2");
  std::string pressed;
  bar.ButtonClick.connect([&](const std::string& key) { pressed += key; });
  bar.Enabled("SQL", false);
  bar.press("SQL");
  EXPECT_EQ(pressed, "");
  bar.Enabled("SQL", true);
  bar.press("SQL");
  EXPECT_EQ(pressed, "SQL");
}

TEST(Toolbar, keysAreComparedExactly) {
  Toolbar bar("ToolbarTop");
  bar.Add("SQL", "SQL(Ctrl+S)", "IMG2");
  EXPECT_THROW(bar.Enabled("sql"), std::out_of_range);
}

class GridTest : public testing::Test {
 protected:
  GridTest() {
    grid.Cols(3);
    grid.Rows(4);
    for (int r = 0; r < 4; ++r)
      for (int c = 0; c < 3; ++c) grid.TextMatrix(r, c, std::to_string(r) + std::to_string(c));
  }
  Grid grid{"MSFlexGridMain"};
};

TEST(GridDefaults, aNewGridHasTwoRowsTwoColumnsAndOneOfEachFixed) {
  Grid grid("g");
  EXPECT_EQ(grid.Rows(), 2);
  EXPECT_EQ(grid.Cols(), 2);
  EXPECT_EQ(grid.FixedRows(), 1);
  EXPECT_EQ(grid.FixedCols(), 1);
}

TEST_F(GridTest, fixedRowsThatLeaveNoRowAreRefused) {
  EXPECT_THROW(grid.FixedRows(4), std::out_of_range);
  EXPECT_THROW(grid.FixedCols(3), std::out_of_range);
}

TEST_F(GridTest, rowsCanShrinkToTheHeadingAlone) {
  grid.Rows(1);
  EXPECT_EQ(grid.Rows(), 1);
  EXPECT_EQ(grid.Row(), 0);
  EXPECT_THROW(grid.Rows(0), std::out_of_range);
}

TEST_F(GridTest, rowsThatComeBackAreEmptyAndTheCurrentRowIsTheFirst) {
  grid.Row(3);
  grid.Rows(2);
  EXPECT_EQ(grid.Row(), 1);
  grid.Rows(4);
  EXPECT_EQ(grid.TextMatrix(3, 2), "");
  EXPECT_EQ(grid.TextMatrix(1, 2), "12");
}

TEST_F(GridTest, textArrayCountsLeftToRightAndTopToBottom) {
  EXPECT_EQ(grid.TextArray(1), "01");
  EXPECT_EQ(grid.TextArray(3), "10");
}

TEST_F(GridTest, clearEmptiesTheHeadingsTooAndKeepsTheShape) {
  grid.Clear();
  EXPECT_EQ(grid.TextMatrix(0, 0), "");
  EXPECT_EQ(grid.Rows(), 4);
  EXPECT_EQ(grid.Cols(), 3);
}

TEST_F(GridTest, clipHasTabsBetweenCellsAndCarriageReturnsBetweenRows) {
  grid.select(1, 1, 2, 2);
  EXPECT_EQ(grid.Clip(), "11\t12\r21\t22");
}

TEST_F(GridTest, clipOfASelectionDrawnUpwardsReadsTheSame) {
  grid.select(2, 2, 1, 1);
  EXPECT_EQ(grid.Clip(), "11\t12\r21\t22");
}

TEST_F(GridTest, theHeadingIsInTheClipOnlyIfItIsSelected) {
  grid.select(0, 0, 1, 1);
  EXPECT_EQ(grid.Clip(), "00\t01\r10\t11");
}

TEST_F(GridTest, aClickOnTheHeadingMovesNothing) {
  int clicks = 0;
  grid.Click.connect([&] { ++clicks; });
  grid.DblClick.connect([&] { ++clicks; });
  grid.userClick(2, 1);
  grid.userClick(0, 1);
  grid.userDoubleClick(0, 1);
  EXPECT_EQ(grid.Row(), 2);
  EXPECT_EQ(clicks, 1);
}

TEST_F(GridTest, topRowStaysWithinTheRows) {
  grid.TopRow(99);
  EXPECT_EQ(grid.TopRow(), 3);
  grid.TopRow(0);
  EXPECT_EQ(grid.TopRow(), 1);
}

TEST(Chart, aPointOffTheChartFails) {
  Chart chart("MSChartCommon");
  chart.RowCount(2);
  chart.Row(3);
  EXPECT_THROW(chart.Data("1"), std::out_of_range);
  EXPECT_THROW(chart.RowLabel(0, "x"), std::out_of_range);
}

}  // namespace
}  // namespace kestrelix
