#include "chart.h"

#include <charconv>
#include <iostream>

#include "report/clsGraphCommon.h"
#include "report_run.h"

namespace kestrelix::report_tool {
namespace {

void selectColumn(Grid& grid, int column) {
  if (column >= grid.Cols())
    throw UsageError("the series has no column " + std::to_string(column) + ", they go from 0 to " +
                     std::to_string(grid.Cols() - 1));
  grid.Col(column);
}

/// The page of that number, from 1, turned to from the first.
bool turnTo(clsGraphCommon& graph, const std::string& page, int pages) {
  int number = 0;
  const auto [end, error] = std::from_chars(page.data(), page.data() + page.size(), number);
  if (error != std::errc() || end != page.data() + page.size() || number < 1)
    throw UsageError("--page is a number from 1, start, end or max, not '" + page + "'");
  if (number > pages)
    throw UsageError("the chart has no page " + page + ", they go from 1 to " + std::to_string(pages));
  bool shown = graph.StartPage();
  for (int i = 1; shown && i < number; ++i) shown = graph.AtferPage();
  return shown;
}

bool show(clsGraphCommon& graph, const std::string& page, int pages) {
  if (page.empty() || page == "start") return graph.StartPage();
  if (page == "end") return graph.EndPage();
  if (page == "max") return graph.MaxValuePage();
  return turnTo(graph, page, pages);
}

}  // namespace

void chart(const Options& options, StderrBoxes& boxes) {
  if (!options.row) throw UsageError("--row is needed");
  if (!options.column) throw UsageError("--column is needed");
  ReportRun run(boxes, options);
  run.showAll();
  if (!boxes.any()) run.showCol();
  if (boxes.any()) throw ReportRun::Stopped{};

  MainControls& controls = run.workspace().controls;
  selectColumn(controls.MSFlexGridMain, *options.column);
  clsGraphCommon graph(boxes);
  Chart& drawn = controls.MSChartCommon;
  if (!graph.Initialize(controls.MSFlexGridMain, drawn, controls.ToolbarTop)) throw ReportRun::Stopped{};
  const int pages = (controls.MSFlexGridMain.Rows() - 1 + drawn.RowCount() - 1) / drawn.RowCount();
  if (!show(graph, options.page, pages)) throw ReportRun::Stopped{};

  Table table{{"TITLE", drawn.TitleText()}, {"AXIS MAXIMUM", drawn.valueScale().Maximum}, {"LABEL", "VALUE"}};
  for (int k = 1; k <= drawn.RowCount(); ++k) table.push_back({drawn.RowLabel(k), drawn.dataOf(k)});
  print(std::cout, table, true);
}

}  // namespace kestrelix::report_tool
