#pragma once

#include <string>
#include <vector>

#include "platform/controls/control.h"

namespace kestrelix {

enum class GridAlignment { Left, Right };

/// A grid of texts with fixed heading rows and columns, a current cell and a selection. Widths are in twips
/// (1/1440 inch). Rows and columns count from 0, fixed ones included.
class Grid : public Control {
 public:
  explicit Grid(std::string name, int width = 0);

  int Rows() const { return static_cast<int>(cells_.size()); }
  int Cols() const { return cols_; }
  int FixedRows() const { return fixedRows_; }
  int FixedCols() const { return fixedCols_; }
  /// New cells are empty. Each fails with std::out_of_range when negative, or below the fixed rows or
  /// columns.
  void Rows(int rows);
  void Cols(int cols);
  /// Fails with std::out_of_range when it does not leave one row (column) that moves.
  void FixedRows(int rows);
  void FixedCols(int cols);

  const std::string& TextMatrix(int row, int col) const;
  void TextMatrix(int row, int col, std::string text);
  /// The cell by its running number, left to right and top to bottom: the headings come first.
  const std::string& TextArray(int index) const { return TextMatrix(index / cols_, index % cols_); }
  void TextArray(int index, std::string text) { TextMatrix(index / cols_, index % cols_, std::move(text)); }

  int ColWidth(int col) const { return widths_.at(static_cast<std::size_t>(col)); }
  void ColWidth(int col, int twips);
  int Width() const { return width_; }
  /// Where the texts of a column stand; left unless told.
  GridAlignment ColAlignment(int col) const { return alignments_.at(static_cast<std::size_t>(col)); }
  void ColAlignment(int col, GridAlignment alignment);

  /// The current cell; setting it also makes it the selection.
  int Row() const { return row_; }
  int Col() const { return col_; }
  void Row(int row);
  void Col(int col);
  /// The other end of the selection.
  int RowSel() const { return rowSel_; }
  int ColSel() const { return colSel_; }
  void select(int row, int col, int rowSel, int colSel);
  /// The selected cells: tabs between the cells of a row, carriage returns between rows.
  std::string Clip() const;

  /// The first row below the fixed ones that shows; kept so that no more than the last page of rows shows.
  int TopRow() const { return topRow_; }
  void TopRow(int row);
  /// The rows below the fixed ones that fit on the screen at once; one, unless a screen tells otherwise.
  void PageRows(int rows);

  Colour BackColor() const { return backColour_; }
  void BackColor(Colour colour);

  /// Grows with every change of the shape, a text or a width, so that a mirror can tell them from a mere move
  /// of the selection.
  unsigned long contents() const { return contents_; }

  /// Empties every cell; the shape stays.
  void Clear();
  /// Shows what has been written since the grid was hidden.
  void Refresh();

  /// The user's clicks on a cell. A click on a heading row moves nothing and raises nothing, so that the
  /// current row is always one with data when there is any.
  void userClick(int row, int col);
  void userDoubleClick(int row, int col);
  Signal<> Click;
  Signal<> DblClick;

 private:
  void clampCurrent();
  void shapeChanged();
  int lastTopRow() const;

  std::vector<std::vector<std::string>> cells_;
  std::vector<int> widths_;
  std::vector<GridAlignment> alignments_;
  int cols_ = 0;
  int fixedRows_ = 1;
  int fixedCols_ = 1;
  int row_ = 1;
  int col_ = 1;
  int rowSel_ = 1;
  int colSel_ = 1;
  int topRow_ = 1;
  int pageRows_ = 1;
  unsigned long contents_ = 0;
  int width_;
  Colour backColour_ = kWindowColour;
};

}  // namespace kestrelix
