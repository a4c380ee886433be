// The grid's own part of a rendering: its shape, its numbers, the widths of its columns.
#include "report/GridRendering.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrelix {
namespace {

using testing::ElementsAre;

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
  gridSetUp(grid, 4, 2);
  gridHeadings(grid, {"NO", "EVENT NAME", "WAITS", ""});
  grid.TextMatrix(1, 1, "latch");
  grid.TextMatrix(2, 2, "123456");
  grid.TextMatrix(2, 3, "1234");
  gGridColumnFit(grid);
  // 108 a byte: the heading's 10, the cell's 6; 2 and 4 bytes are less than 500.
  EXPECT_THAT(widths(), ElementsAre(500, 1080, 648, 500));
}

TEST_F(GridOfAView, fiveBytesAreTheFirstThatNeedMore) {
  gridSetUp(grid, 2, 1);
  grid.TextMatrix(1, 1, "12345");
  gGridColumnFit(grid);
  EXPECT_EQ(grid.ColWidth(1), 540);
}

TEST_F(GridOfAView, aDoubleWidthCharacterCountsTwiceAndABlankCounts) {
  gridSetUp(grid, 3, 1);
  grid.TextMatrix(1, 1, "表領域 ");
  grid.TextMatrix(1, 2, "ﾃｽﾄ値x");
  gGridColumnFit(grid);
  // Three of two bytes and the blank; three of half width, one of two bytes and a letter.
  EXPECT_EQ(grid.ColWidth(1), 7 * 108);
  EXPECT_EQ(grid.ColWidth(2), 6 * 108);
}

TEST_F(GridOfAView, aLongCellHasNoLimit) {
  gridSetUp(grid, 2, 1);
  grid.TextMatrix(1, 1, std::string(4000, 'x'));
  gGridColumnFit(grid);
  EXPECT_EQ(grid.ColWidth(1), 432000);
}

TEST_F(GridOfAView, aFormerWidthDoesNotLast) {
  gridSetUp(grid, 2, 1);
  grid.TextMatrix(1, 1, "a long event name");
  gGridColumnFit(grid);
  grid.TextMatrix(1, 1, "short");
  gGridColumnFit(grid);
  EXPECT_EQ(grid.ColWidth(1), 540);
}

TEST_F(GridOfAView, setUpLeavesNothingOfTheFormerViewWhateverItsShape) {
  gridSetUp(grid, 14, 30);
  grid.TextMatrix(0, 1, "EVENT");
  grid.TextMatrix(1, 1, "former");
  gridSetUp(grid, 3, 2);
  EXPECT_EQ(grid.Cols(), 3);
  EXPECT_EQ(grid.Rows(), 3);
  EXPECT_EQ(grid.FixedRows(), 1);
  EXPECT_EQ(grid.FixedCols(), 1);
  EXPECT_EQ(grid.TextMatrix(0, 1), "");
  EXPECT_EQ(grid.TextMatrix(1, 1), "");
  EXPECT_FALSE(grid.Visible());
}

TEST_F(GridOfAView, rowsAreNumberedFromOneBelowTheHeadings) {
  gridSetUp(grid, 2, 3);
  gridHeadings(grid, {"NO", "EVENT"});
  gridNumbers(grid);
  EXPECT_THAT(firstColumn(), ElementsAre("NO", "1", "2", "3"));
}

TEST_F(GridOfAView, withoutRowsTheHeadingsStandAloneAndShow) {
  gridSetUp(grid, 2, 0);
  gridHeadings(grid, {"NO", "EVENT"});
  gridNumbers(grid);
  gridShow(grid);
  EXPECT_EQ(grid.Rows(), 1);
  EXPECT_THAT(firstColumn(), ElementsAre("NO"));
  EXPECT_TRUE(grid.Visible());
  EXPECT_THAT(widths(), ElementsAre(500, 540));
}

}  // namespace
}  // namespace kestrelix
