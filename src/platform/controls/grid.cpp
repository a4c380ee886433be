#include "platform/controls/grid.h"

#include <algorithm>
#include <stdexcept>

namespace kestrelix {
namespace {

constexpr int kDefaultColWidth = 960;

std::size_t index(int i) { return static_cast<std::size_t>(i); }

[[noreturn]] void refuse(const Control& grid, const char* property, int value) {
  throw std::out_of_range(grid.name() + ": " + property + " can't be " + std::to_string(value));
}

}  // namespace

Grid::Grid(std::string name, int width)
    : Control(std::move(name)),
      cells_(2, std::vector<std::string>(2)),
      widths_(2, kDefaultColWidth),
      alignments_(2, GridAlignment::Left),
      cols_(2),
      width_(width) {}

void Grid::Rows(int rows) {
  if (rows < 0 || rows < fixedRows_) refuse(*this, "Rows", rows);
  cells_.resize(index(rows), std::vector<std::string>(index(cols_)));
  shapeChanged();
}

void Grid::Cols(int cols) {
  if (cols < 0 || cols < fixedCols_) refuse(*this, "Cols", cols);
  cols_ = cols;
  for (auto& row : cells_) row.resize(index(cols));
  widths_.resize(index(cols), kDefaultColWidth);
  alignments_.resize(index(cols), GridAlignment::Left);
  shapeChanged();
}

void Grid::FixedRows(int rows) {
  if (rows < 0 || rows >= Rows()) refuse(*this, "FixedRows", rows);
  fixedRows_ = rows;
  shapeChanged();
}

void Grid::FixedCols(int cols) {
  if (cols < 0 || cols >= Cols()) refuse(*this, "FixedCols", cols);
  fixedCols_ = cols;
  shapeChanged();
}

void Grid::shapeChanged() {
  clampCurrent();
  ++contents_;
  changed();
}

/// A new shape brings the current cell back to the first one that is no heading; with headings alone it is
/// row 0.
void Grid::clampCurrent() {
  const auto first = [](int fixed, int count) { return fixed < count ? fixed : std::max(0, count - 1); };
  const auto clamp = [&](int value, int fixed, int count) {
    return std::clamp(value, first(fixed, count), std::max(first(fixed, count), count - 1));
  };
  row_ = clamp(row_, fixedRows_, Rows());
  rowSel_ = clamp(rowSel_, fixedRows_, Rows());
  col_ = std::clamp(col_, 0, std::max(0, cols_ - 1));
  colSel_ = std::clamp(colSel_, 0, std::max(0, cols_ - 1));
  topRow_ = std::clamp(topRow_, fixedRows_, lastTopRow());
}

int Grid::lastTopRow() const { return std::max(fixedRows_, Rows() - pageRows_); }

const std::string& Grid::TextMatrix(int row, int col) const { return cells_.at(index(row)).at(index(col)); }

void Grid::TextMatrix(int row, int col, std::string text) {
  cells_.at(index(row)).at(index(col)) = std::move(text);
  ++contents_;
  if (Visible()) changed();
}

void Grid::ColAlignment(int col, GridAlignment alignment) {
  alignments_.at(index(col)) = alignment;
  ++contents_;
  if (Visible()) changed();
}

void Grid::ColWidth(int col, int twips) {
  widths_.at(index(col)) = twips;
  ++contents_;
  if (Visible()) changed();
}

void Grid::Row(int row) {
  if (row < 0 || row >= Rows()) refuse(*this, "Row", row);
  row_ = rowSel_ = row;
  colSel_ = col_;
  changed();
}

void Grid::Col(int col) {
  if (col < 0 || col >= Cols()) refuse(*this, "Col", col);
  col_ = colSel_ = col;
  rowSel_ = row_;
  changed();
}

void Grid::select(int row, int col, int rowSel, int colSel) {
  Row(row);
  Col(col);
  if (rowSel < 0 || rowSel >= Rows()) refuse(*this, "RowSel", rowSel);
  if (colSel < 0 || colSel >= Cols()) refuse(*this, "ColSel", colSel);
  rowSel_ = rowSel;
  colSel_ = colSel;
  changed();
}

std::string Grid::Clip() const {
  std::string text;
  if (Rows() == 0 || Cols() == 0) return text;
  const auto [top, bottom] = std::minmax(row_, rowSel_);
  const auto [left, right] = std::minmax(col_, colSel_);
  for (int r = top; r <= bottom; ++r) {
    if (r > top) text += '\r';
    for (int c = left; c <= right; ++c) {
      if (c > left) text += '\t';
      text += TextMatrix(r, c);
    }
  }
  return text;
}

void Grid::TopRow(int row) {
  row = std::clamp(row, fixedRows_, lastTopRow());
  if (row == topRow_) return;
  topRow_ = row;
  changed();
}

void Grid::PageRows(int rows) {
  pageRows_ = std::max(1, rows);
  TopRow(topRow_);
}

void Grid::BackColor(Colour colour) {
  backColour_ = colour;
  changed();
}

void Grid::Clear() {
  for (auto& row : cells_)
    for (auto& cell : row) cell.clear();
  ++contents_;
  if (Visible()) changed();
}

void Grid::Refresh() { changed(); }

void Grid::userClick(int row, int col) {
  if (row < fixedRows_ || row >= Rows() || col < 0 || col >= Cols()) return;
  select(row, col, row, col);
  Click();
}

void Grid::userDoubleClick(int row, int col) {
  if (row < fixedRows_ || row >= Rows() || col < 0 || col >= Cols()) return;
  select(row, col, row, col);
  DblClick();
}

}  // namespace kestrelix
