// A column of a Col view as a chart: a point a pair, in pages, under one value axis that begins at 0.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/controls/grid.h"
#include "platform/decimal.h"
#include "report/report_table.h"

namespace kestrelix {

/// What a column that can't be drawn is refused with.
inline constexpr const char* kNoChart = "選択されている項目は不正です";

class ChartSeries {
 public:
  static constexpr int kPointsOfPage = 20;

  /// Nothing for a column that is no series of numbers: one not behind the pair's time, "STATUS", or one with
  /// a cell that is neither empty nor a number. Columns count as a grid does: its running number is column 0.
  static std::optional<ChartSeries> of(const Grid& grid, int column);
  static std::optional<ChartSeries> of(const ReportTable& table, int column);

  int points() const { return static_cast<int>(values_.size()); }
  int pages() const { return (points() + kPointsOfPage - 1) / kPointsOfPage; }
  /// "REDO SIZE[2/7]"; pages count from 1.
  std::string title(int page) const;

  // Of a point, from 1. Each fails with std::out_of_range where there is none.
  const std::string& label(int point) const { return labels_.at(static_cast<std::size_t>(point - 1)); }
  /// Below zero nothing is drawn.
  std::string value(int point) const;

  /// The largest value and the first point that has it; 0 and 1 where none is above zero.
  const Decimal& maximum() const { return maximum_; }
  int pointOfMaximum() const { return pointOfMaximum_; }
  int pageOfMaximum() const { return (pointOfMaximum_ + kPointsOfPage - 1) / kPointsOfPage; }
  /// The end of a value axis for that: the next number of one digit, 1 for 0.
  static Decimal axisMaximum(const Decimal& maximum);

 private:
  struct Cells;
  static std::optional<ChartSeries> of(const Cells& cells, int column);

  std::string heading_;
  std::vector<std::string> labels_;
  std::vector<Decimal> values_;
  Decimal maximum_;
  int pointOfMaximum_ = 1;
};

}  // namespace kestrelix
