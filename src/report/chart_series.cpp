#include "report/chart_series.h"

#include <algorithm>
#include <functional>

#include "platform/numeric_text.h"

namespace kestrelix {

/// The cells of a Col view, its headings being row 0 and its running numbers column 0.
struct ChartSeries::Cells {
  int rows;
  int columns;
  std::function<const std::string&(int row, int column)> at;

  /// The last column from 1 to `last` with that heading; 0 if there is none.
  int headed(int last, std::string_view heading) const {
    for (int c = last; c >= 1; --c)
      if (at(0, c) == heading) return c;
    return 0;
  }
  int time(int last) const { return std::max(headed(last, "START TIME"), headed(last, "END TIME")); }
};

std::optional<ChartSeries> ChartSeries::of(const Grid& grid, int column) {
  const Cells cells{grid.Rows(), grid.Cols(),
                    [&](int row, int c) -> const std::string& { return grid.TextMatrix(row, c); }};
  return of(cells, column);
}

std::optional<ChartSeries> ChartSeries::of(const ReportTable& table, int column) {
  const Cells cells{static_cast<int>(table.rows.size()) + 1, static_cast<int>(table.columns.size()) + 1,
                    [&](int row, int c) -> const std::string& {
                      const auto at = static_cast<std::size_t>(c - 1);
                      return row == 0 ? table.columns.at(at).heading
                                      : table.rows.at(static_cast<std::size_t>(row - 1)).at(at);
                    }};
  return of(cells, column);
}

std::optional<ChartSeries> ChartSeries::of(const Cells& cells, int column) {
  if (column <= cells.time(cells.columns - 1) || cells.at(0, column) == "STATUS") return std::nullopt;
  ChartSeries series;
  series.heading_ = cells.at(0, column);
  const int time = cells.time(column);
  for (int row = 1; row < cells.rows; ++row) {
    const std::string& cell = cells.at(row, column);
    if (!cell.empty() && !isNumericText(trimBlanks(cell))) return std::nullopt;
    series.labels_.push_back(time > 0 ? cells.at(row, time) : std::string());
    const Decimal& value = series.values_.emplace_back(Decimal::ofPrefix(cell));
    if (!(value > series.maximum_)) continue;
    series.maximum_ = value;
    series.pointOfMaximum_ = row;
  }
  return series;
}

std::string ChartSeries::title(int page) const {
  return heading_ + "[" + std::to_string(page) + "/" + std::to_string(pages()) + "]";
}

std::string ChartSeries::value(int point) const {
  const Decimal& value = values_.at(static_cast<std::size_t>(point - 1));
  return value.isNegative() ? "0" : value.text();
}

Decimal ChartSeries::axisMaximum(const Decimal& maximum) {
  return maximum.isZero() ? Decimal::ofPrefix("1") : maximum.roundedUpToOneDigit();
}

}  // namespace kestrelix
