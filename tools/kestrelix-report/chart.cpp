#include "chart.h"

#include <charconv>
#include <iostream>

#include "report/chart_series.h"
#include "report_run.h"

namespace kestrelix::report_tool {
namespace {

/// The page that --page names, from 1.
int pageOf(const std::string& page, const ChartSeries& series) {
  if (page.empty() || page == "start") return 1;
  if (page == "end") return series.pages();
  if (page == "max") return series.pageOfMaximum();
  int number = 0;
  const auto [end, error] = std::from_chars(page.data(), page.data() + page.size(), number);
  if (error != std::errc() || end != page.data() + page.size() || number < 1)
    throw UsageError("--page is a number from 1, start, end or max, not '" + page + "'");
  if (number > series.pages())
    throw UsageError("the chart has no page " + page + ", they go from 1 to " +
                     std::to_string(series.pages()));
  return number;
}

}  // namespace

void chart(const Options& options, StderrBoxes& boxes) {
  if (!options.row) throw UsageError("--row is needed");
  if (!options.column) throw UsageError("--column is needed");
  ReportRun run(boxes, options);
  const ReportTable table = run.col(run.all());
  if (*options.column > static_cast<int>(table.columns.size()))
    throw UsageError("the series has no column " + std::to_string(*options.column) + ", they go from 0 to " +
                     std::to_string(table.columns.size()));
  const auto series = ChartSeries::of(table, *options.column);
  if (!series) {
    boxes.show(BoxIcon::Exclamation, kNoChart, {});
    throw ReportRun::Stopped{};
  }
  const int page = pageOf(options.page, *series);
  Table lines{{"TITLE", series->title(page)},
              {"AXIS MAXIMUM", ChartSeries::axisMaximum(series->maximum()).text()},
              {"LABEL", "VALUE"}};
  for (int k = 1; k <= ChartSeries::kPointsOfPage; ++k) {
    const int point = (page - 1) * ChartSeries::kPointsOfPage + k;
    const bool drawn = point <= series->points();
    lines.push_back({drawn ? series->label(point) : "", drawn ? series->value(point) : "0"});
  }
  print(std::cout, lines, true);
}

}  // namespace kestrelix::report_tool
