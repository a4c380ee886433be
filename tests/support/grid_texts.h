// Grids as texts, and grids laid out by hand.
#pragma once

#include <string>
#include <vector>

#include "platform/controls/grid.h"

namespace kestrelix::testing_support {

/// The cells as lines, one a row, with "|" between the cells.
inline std::string printed(const Grid& grid) {
  std::string text;
  for (int r = 0; r < grid.Rows(); ++r) {
    for (int c = 0; c < grid.Cols(); ++c) text += (c == 0 ? "" : "|") + grid.TextMatrix(r, c);
    text += '\n';
  }
  return text;
}

/// An empty grid of one heading row, one heading column, and so many rows below.
inline void layGrid(Grid& grid, int cols, int rows) {
  grid.Visible(false);
  grid.Clear();
  grid.Cols(2);
  grid.Rows(2);
  grid.FixedCols(1);
  grid.FixedRows(1);
  grid.Cols(cols);
  grid.Rows(1 + rows);
}

inline void layHeadings(Grid& grid, const std::vector<std::string>& headings) {
  for (std::size_t c = 0; c < headings.size(); ++c) grid.TextArray(static_cast<int>(c), headings[c]);
}

}  // namespace kestrelix::testing_support
