#pragma once

#include <string>
#include <vector>

#include "platform/controls/control.h"

namespace kestrelix {

/// A two-dimensional chart with one data column; its rows are the points of the page on show. Row and the row
/// of a label count from 1.
class Chart : public Control {
 public:
  /// The value axis. Values are exact decimal texts, so that 0.07 stays 0.07.
  struct ValueScale {
    bool Auto = true;
    std::string Maximum = "1";
    std::string Minimum = "0";
  };

  using Control::Control;

  int RowCount() const { return static_cast<int>(points_.size()); }
  void RowCount(int rows) { points_.resize(static_cast<std::size_t>(rows)); }
  int ColumnCount() const { return columnCount_; }
  void ColumnCount(int count) { columnCount_ = count; }
  void Column(int column) { column_ = column; }
  int Column() const { return column_; }
  void Row(int row) { row_ = row; }
  int Row() const { return row_; }

  /// The value of the current row, a decimal text. Fails with std::out_of_range when Row is off the chart.
  void Data(std::string value) { point(row_).data = std::move(value); }
  const std::string& Data() const { return point(row_).data; }
  /// The value of a row, wherever the current one is.
  const std::string& dataOf(int row) const { return point(row).data; }
  void RowLabel(int row, std::string label) { point(row).label = std::move(label); }
  const std::string& RowLabel(int row) const { return point(row).label; }

  const std::string& TitleText() const { return title_; }
  void TitleText(std::string title) { title_ = std::move(title); }

  ValueScale& valueScale() { return scale_; }
  const ValueScale& valueScale() const { return scale_; }

  /// Draws what has been set since the last call.
  void Refresh() { changed(); }

 private:
  struct Point {
    std::string label;
    std::string data = "0";
  };
  Point& point(int row) { return points_.at(static_cast<std::size_t>(row - 1)); }
  const Point& point(int row) const { return points_.at(static_cast<std::size_t>(row - 1)); }

  std::vector<Point> points_;
  int columnCount_ = 1;
  int column_ = 1;
  int row_ = 1;
  std::string title_;
  ValueScale scale_;
};

}  // namespace kestrelix
