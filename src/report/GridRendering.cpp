#include "report/GridRendering.h"

#include <algorithm>

#include "platform/code_page.h"

namespace kestrelix {
namespace {

constexpr int kTwipsPerByte = 108;
constexpr int kLeastWidth = 500;

/// One heading row, one heading column, and `rows` rows below; every cell is empty.
void setUp(Grid& grid, int cols, int rows) {
  grid.Visible(false);
  grid.Clear();
  // First a shape that takes one fixed row and column: the grid refuses headings that leave no cell.
  grid.Cols(2);
  grid.Rows(2);
  grid.FixedCols(1);
  grid.FixedRows(1);
  grid.Cols(cols);
  grid.Rows(grid.FixedRows() + rows);
}

}  // namespace

void gGridColumnFit(Grid& grid) {
  for (int c = 0; c < grid.Cols(); ++c) {
    int width = kLeastWidth;
    for (int r = 0; r < grid.Rows(); ++r)
      width = std::max(width, kTwipsPerByte * static_cast<int>(codePageLength(grid.TextMatrix(r, c))));
    if (grid.Rows() > 0) grid.ColWidth(c, width);
  }
}

void showTable(Grid& grid, const ReportTable& table) {
  setUp(grid, static_cast<int>(table.columns.size()) + 1, static_cast<int>(table.rows.size()));
  grid.TextMatrix(0, 0, "NO");
  grid.ColAlignment(0, GridAlignment::Right);
  for (std::size_t c = 0; c < table.columns.size(); ++c) {
    const int column = static_cast<int>(c) + 1;
    grid.TextMatrix(0, column, table.columns[c].heading);
    grid.ColAlignment(column,
                      table.columns[c].measure.isFigure() ? GridAlignment::Right : GridAlignment::Left);
  }
  for (std::size_t r = 0; r < table.rows.size(); ++r) {
    const int row = static_cast<int>(r) + 1;
    grid.TextMatrix(row, 0, std::to_string(row));
    for (std::size_t c = 0; c < table.columns.size(); ++c)
      grid.TextMatrix(row, static_cast<int>(c) + 1, table.rows[r][c]);
  }
  gGridColumnFit(grid);
  grid.Visible(true);
  grid.Refresh();
}

}  // namespace kestrelix
