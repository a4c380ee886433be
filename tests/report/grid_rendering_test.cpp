// The grid's own part of a rendering: its shape, its numbers, the widths of its columns.
#include "report/GridRendering.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/grid_texts.h"

namespace kestrelix {
namespace {

using testing::ElementsAre;
using testing_support::layGrid;
using testing_support::layHeadings;

class GridOfAView : public testing::Test {
 protected:
  std::vector<int> widths() const {
    std::vector<int> all;
    for (int c = 0; c < grid.Cols(); ++c) all.push_back(grid.ColWidth(c));
    return all;
  }
  std::vector<std::string> firstColumn() const {
    std::vector<std::string> texts;
    for (int r = 0; r < grid.Rows(); ++r) texts.push_back(grid.TextMatrix(r, 0));
    return texts;
  }

  Grid grid{"MSFlexGridMain"};
};

TEST_F(GridOfAView, aColumnIsAsWideAsItsLongestCellAndNeverBelow500) {
  layGrid(grid, 4, 2);
  layHeadings(grid, {"NO", "EVENT NAME", "WAITS", ""});
  grid.TextMatrix(1, 1, "latch");
  grid.TextMatrix(2, 2, "123456");
  grid.TextMatrix(2, 3, "1234");
  gGridColumnFit(grid);
  // 108 a byte: the heading's 10, the cell's 6; 2 and 4 bytes are less than 500.
  EXPECT_THAT(widths(), ElementsAre(500, 1080, 648, 500));
}

TEST_F(GridOfAView, fiveBytesAreTheFirstThatNeedMore) {
  layGrid(grid, 2, 1);
  grid.TextMatrix(1, 1, "12345");
  gGridColumnFit(grid);
  EXPECT_EQ(grid.ColWidth(1), 540);
}

TEST_F(GridOfAView, aDoubleWidthCharacterCountsTwiceAndABlankCounts) {
  layGrid(grid, 3, 1);
  grid.TextMatrix(1, 1, "表領域 ");
  grid.TextMatrix(1, 2, "ﾃｽﾄ値x");
  gGridColumnFit(grid);
  // Three of two bytes and the blank; three of half width, one of two bytes and a letter.
  EXPECT_EQ(grid.ColWidth(1), 7 * 108);
  EXPECT_EQ(grid.ColWidth(2), 6 * 108);
}

TEST_F(GridOfAView, aLongCellHasNoLimit) {
  layGrid(grid, 2, 1);
  grid.TextMatrix(1, 1, std::string(4000, 'x'));
  gGridColumnFit(grid);
  EXPECT_EQ(grid.ColWidth(1), 432000);
}

TEST_F(GridOfAView, aFormerWidthDoesNotLast) {
  layGrid(grid, 2, 1);
  grid.TextMatrix(1, 1, "a long event name");
  gGridColumnFit(grid);
  grid.TextMatrix(1, 1, "short");
  gGridColumnFit(grid);
  EXPECT_EQ(grid.ColWidth(1), 540);
}

ReportTable tableOf(std::vector<TableColumn> columns, std::vector<std::vector<std::string>> rows) {
  ReportTable table;
  table.columns = std::move(columns);
  table.rows = std::move(rows);
  table.read = true;
  return table;
}

TEST_F(GridOfAView, aTableLeavesNothingOfTheFormerViewWhateverItsShape) {
  layGrid(grid, 14, 30);
  grid.TextMatrix(0, 1, "EVENT");
  grid.TextMatrix(1, 1, "former");
  grid.TextMatrix(20, 12, "former");
  showTable(grid, tableOf({{"LATCH", {Kind::Key}}, {"GETS", {Kind::Count}}}, {{"redo copy", "5"}, {"", ""}}));
  EXPECT_EQ(testing_support::printed(grid), "NO|LATCH|GETS\n1|redo copy|5\n2||\n");
  EXPECT_EQ(grid.FixedRows(), 1);
  EXPECT_EQ(grid.FixedCols(), 1);
  EXPECT_TRUE(grid.Visible());
  // "redo copy" has nine bytes, everything else less than five.
  EXPECT_THAT(widths(), ElementsAre(500, 972, 500));
}

TEST_F(GridOfAView, rowsAreNumberedFromOneBelowTheHeadings) {
  showTable(grid, tableOf({{"EVENT", {Kind::Key}}}, {{"a"}, {"b"}, {"c"}}));
  EXPECT_THAT(firstColumn(), ElementsAre("NO", "1", "2", "3"));
}

TEST_F(GridOfAView, withoutRowsTheHeadingsStandAloneAndShow) {
  showTable(grid, tableOf({{"EVENT", {Kind::Key}}}, {}));
  EXPECT_EQ(grid.Rows(), 1);
  EXPECT_THAT(firstColumn(), ElementsAre("NO"));
  EXPECT_TRUE(grid.Visible());
  EXPECT_THAT(widths(), ElementsAre(500, 540));
}

TEST_F(GridOfAView, figuresAndTheRunningNumberStandRightAndAllElseLeft) {
  showTable(grid, tableOf({{"EVENT", {Kind::Key}},
                           {"HASH", {Kind::Key, unit::number}},
                           {"MODULE", {Kind::Text}},
                           {"END TIME", {Kind::Time}},
                           {"WAITS", {Kind::Count}},
                           {"%", {Kind::Share, unit::percent}},
                           {"SIZE", {Kind::Level, unit::megabytes}}},
                          {{"a", "12", "m", "t", "1", "2", "3"}}));
  std::string sides;
  for (int c = 0; c < grid.Cols(); ++c) sides += grid.ColAlignment(c) == GridAlignment::Right ? 'R' : 'L';
  EXPECT_EQ(sides, "RLRLLRRR");
}

}  // namespace
}  // namespace kestrelix
