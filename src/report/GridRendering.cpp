#include "report/GridRendering.h"

#include <algorithm>

#include "platform/code_page.h"

namespace kestrelix {
namespace {

constexpr int kTwipsPerByte = 108;
constexpr int kLeastWidth = 500;

/// What a column of a Col view shows beside a section object's fields.
struct Text {
  std::string text;
};
enum class OfPair { StartTime, EndTime, Status };

struct ColColumn {
  std::string heading;
  std::variant<Accessor, Text, OfPair> source;

  std::string cell(const SectionObject& object, const clsSnapId& pairs, int i) const {
    if (const auto* accessor = std::get_if<Accessor>(&source)) return (*accessor)(object, i, i);
    if (const auto* text = std::get_if<Text>(&source)) return text->text;
    switch (std::get<OfPair>(source)) {
      case OfPair::StartTime:
        return pairs.START_SNAP_TIME(i);
      case OfPair::EndTime:
        return pairs.END_SNAP_TIME(i);
      case OfPair::Status:
        break;
    }
    return pairs.REPORT_STATUS(i);
  }
};

const ColColumn kStartTime{"START TIME", OfPair::StartTime};
const ColColumn kEndTime{"END TIME", OfPair::EndTime};
const ColColumn kStatus{"STATUS", OfPair::Status};

/// Runs the members for every pair on the one object, so that record i belongs to pair i.
bool fetchEveryPair(Workspace& workspace, SectionObject& object, const std::vector<std::string>& members,
                    const std::vector<std::string>& arguments) {
  const clsSnapId& pairs = *workspace.gSnapId;
  for (int i = 0; i < pairs.rownum(); ++i) {
    workspace.progress.step(i + 1, static_cast<int>(pairs.rownum()));
    const auto get = [&](const std::string& member) { return object.get(member, i); };
    if (!object.setBAIND_VALUE(pairs.keys(i), arguments) ||
        !std::all_of(members.begin(), members.end(), get) || !object.unsetBAIND_VALUE())
      return false;
  }
  return true;
}

void showEveryPair(Workspace& workspace, const SectionObject& object, const std::vector<ColColumn>& columns) {
  const clsSnapId& pairs = *workspace.gSnapId;
  Grid& grid = workspace.controls.MSFlexGridMain;
  const int count = static_cast<int>(pairs.rownum());
  gridSetUp(grid, static_cast<int>(columns.size()) + 1, count);
  std::vector<std::string> headings{"NO"};
  for (const ColColumn& column : columns) headings.push_back(column.heading);
  gridHeadings(grid, headings);
  gridNumbers(grid);
  for (int i = 0; i < count; ++i)
    for (std::size_t c = 0; c < columns.size(); ++c)
      grid.TextMatrix(i + 1, static_cast<int>(c) + 1, columns[c].cell(object, pairs, i));
  gridShow(grid);
}

bool bindSelected(Workspace& workspace, SectionObject& object, const std::string& version,
                  const std::vector<std::string>& arguments) {
  object.Initialize(*workspace.gOraDatabase, *workspace.gSnapId, workspace.boxes, version);
  return object.setBAIND_VALUE(workspace.gSnapId->keys(workspace.controls.ListSnapId.ListIndex()), arguments);
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

void gridSetUp(Grid& grid, int cols, int rows) {
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

void gridHeadings(Grid& grid, const std::vector<std::string>& headings) {
  for (std::size_t c = 0; c < headings.size(); ++c) grid.TextArray(static_cast<int>(c), headings[c]);
}

void gridNumbers(Grid& grid) {
  for (int r = grid.FixedRows(); r <= grid.Rows() - grid.FixedRows(); ++r)
    grid.TextMatrix(r, 0, std::to_string(r - grid.FixedRows() + 1));
}

void gridShow(Grid& grid) {
  gGridColumnFit(grid);
  grid.Visible(true);
  grid.Refresh();
}

void renderListAll(Workspace& workspace, SectionObject& object, std::string_view member, const ListView& view,
                   const std::string& version, const std::vector<std::string>& arguments) {
  const int pair = workspace.controls.ListSnapId.ListIndex();
  if (!bindSelected(workspace, object, version, arguments) || !object.get(member, pair)) return;
  object.unsetBAIND_VALUE();

  Grid& grid = workspace.controls.MSFlexGridMain;
  const bool headingsAlone = workspace.gSnapId->restarted(pair) && !object.showsRestart(member);
  const int rows = headingsAlone ? 0 : static_cast<int>(object.rownum());
  gridSetUp(grid, static_cast<int>(view.columns.size()) + 1, rows);
  std::vector<std::string> headings{"NO"};
  for (const ViewColumn& column : view.columns) headings.push_back(column.heading);
  gridHeadings(grid, headings);
  gridNumbers(grid);
  for (int i = 0; i < rows; ++i)
    for (std::size_t c = 0; c < view.columns.size(); ++c)
      grid.TextMatrix(i + 1, static_cast<int>(c) + 1, view.columns[c].accessor(object, i, pair));
  gridShow(grid);
}

void renderListCol(Workspace& workspace, SectionObject& object, std::string_view member, const ListView& view,
                   const std::string& version, const std::vector<std::string>& arguments) {
  object.Initialize(*workspace.gOraDatabase, *workspace.gSnapId, workspace.boxes, version);
  if (!fetchEveryPair(workspace, object, {std::string(member)}, arguments)) return;
  const ColColumn& time = view.ofPairs == OfPairs::StartTime ? kStartTime : kEndTime;
  std::vector<ColColumn> columns;
  for (const ViewColumn& column : view.colColumns.value_or(view.columns)) {
    if (columns.size() == view.keys) columns.push_back(time);
    columns.push_back({column.heading, column.accessor});
  }
  if (columns.size() == view.keys) columns.push_back(time);
  if (view.ofPairs == OfPairs::EndTimeAndStatus) columns.push_back(kStatus);
  showEveryPair(workspace, object, columns);
}

void renderMetricAll(Workspace& workspace, MetricSectionObject& object, const MetricView& view,
                     const std::string& version) {
  const int pair = workspace.controls.ListSnapId.ListIndex();
  if (!bindSelected(workspace, object, version, {}) || !object.getALL(pair)) return;
  object.unsetBAIND_VALUE();

  Grid& grid = workspace.controls.MSFlexGridMain;
  const bool headingsAlone = view.headingsAloneOnRestart && workspace.gSnapId->restarted(pair);
  const std::size_t rows = headingsAlone ? 0 : view.rows.size();
  gridSetUp(grid, static_cast<int>(view.headings.size()) + 2, static_cast<int>(rows));
  std::vector<std::string> headings{"NO", view.nameHeading};
  headings.insert(headings.end(), view.headings.begin(), view.headings.end());
  gridHeadings(grid, headings);
  gridNumbers(grid);
  for (std::size_t r = 0; r < rows; ++r) {
    const int row = static_cast<int>(r) + 1;
    grid.TextMatrix(row, 1, view.rows[r].label);
    for (const ViewColumn& cell : view.rows[r].cells) {
      const auto heading = std::find(view.headings.begin(), view.headings.end(), cell.heading);
      grid.TextMatrix(row, static_cast<int>(heading - view.headings.begin()) + 2,
                      cell.accessor(object, 0, pair));
    }
  }
  gridShow(grid);
}

void renderMetricCol(Workspace& workspace, MetricSectionObject& object, const MetricView& view,
                     const std::string& version, int row) {
  if (row < 1 || row > static_cast<int>(view.rows.size())) return;
  const MetricRow& metric = view.rows[static_cast<std::size_t>(row - 1)];
  object.Initialize(*workspace.gOraDatabase, *workspace.gSnapId, workspace.boxes, version);
  std::vector<std::string> members{metric.member};
  members.insert(members.end(), metric.furtherMembers.begin(), metric.furtherMembers.end());
  if (!fetchEveryPair(workspace, object, members, {})) return;
  std::vector<ColColumn> columns{{view.nameHeading, Text{metric.colLabel.value_or(metric.label)}}};
  if (metric.pairColumns) columns.push_back(kEndTime);
  for (const ViewColumn& cell : metric.colCells.value_or(metric.cells))
    columns.push_back({cell.heading, cell.accessor});
  if (metric.pairColumns) columns.push_back(kStatus);
  showEveryPair(workspace, object, columns);
}

}  // namespace kestrelix
