#include "report/reading.h"

#include <algorithm>

#include "platform/cancelled.h"

namespace kestrelix {
namespace {

const TableColumn kStartTime{"START TIME", {Kind::Time}};
const TableColumn kEndTime{"END TIME", {Kind::Time}};
const TableColumn kStatus{"STATUS", {Kind::Text}};

/// One reading: an object of the Section with its binds on the database.
class Reading {
 public:
  Reading(const ReportSource& source, const Section& section, const ReleaseViews& views)
      : source_(source), object_(views.make()) {
    table_.title = section.text;
    // A reading that failed has left its binds in place.
    source_.database.parameters().clear();
    object_->Initialize(source_.database, source_.pairs, table_.failures, source_.version);
  }

  ReportTable all(const AnyListView& view, int pair);
  ReportTable all(const AnyMetricView& view, int pair);
  ReportTable col(const AnyListView& view, const ColRequest& request);
  ReportTable col(const AnyMetricView& view, int row);

 private:
  bool bind(int pair, const std::vector<std::string>& arguments) {
    return object_->setBAIND_VALUE(source_.pairs.keys(pair), arguments);
  }
  bool fetchEveryPair(const std::vector<std::string>& members, const std::vector<std::string>& arguments);
  ReportTable done() {
    table_.read = true;
    return std::move(table_);
  }

  const ReportSource& source_;
  std::unique_ptr<SectionObject> object_;
  ReportTable table_;
};

ReportTable Reading::all(const AnyListView& view, int pair) {
  if (!bind(pair, view.allArguments) || !object_->get(view.all, pair)) return std::move(table_);
  object_->unsetBAIND_VALUE();
  table_.status = source_.pairs.REPORT_STATUS(pair);
  for (const ViewColumn& column : view.columns) table_.columns.push_back({column.heading, column.measure});
  if (source_.pairs.restarted(pair) && !object_->showsRestart(view.all)) return done();
  for (int i = 0; i < object_->rownum(); ++i) {
    std::vector<std::string>& row = table_.rows.emplace_back();
    for (const ViewColumn& column : view.columns) row.push_back(object_->value(column.field, i, pair));
  }
  return done();
}

/// What a heading stands for is told by the metrics below it: a figure, if all of them are.
Measure measureUnder(const std::string& heading, const AnyMetricView& view) {
  std::optional<Measure> common;
  for (const AnyMetricRow& row : view.rows)
    for (const ViewColumn& cell : row.cells)
      if (cell.heading == heading && (!common || !cell.measure.isFigure())) common = cell.measure;
  return common.value_or(Measure());
}

ReportTable Reading::all(const AnyMetricView& view, int pair) {
  // viewsOf() takes no other object for a metric view.
  auto& metrics = static_cast<MetricSectionObject&>(*object_);
  if (!bind(pair, {}) || !metrics.getALL(pair)) return std::move(table_);
  object_->unsetBAIND_VALUE();
  table_.status = source_.pairs.REPORT_STATUS(pair);
  table_.columns.push_back({view.nameHeading, {Kind::Key}});
  for (const std::string& heading : view.headings)
    table_.columns.push_back({heading, measureUnder(heading, view)});
  if (view.headingsAloneOnRestart && source_.pairs.restarted(pair)) return done();
  for (const AnyMetricRow& metric : view.rows) {
    std::vector<std::string>& row = table_.rows.emplace_back(table_.columns.size());
    std::vector<Measure>& measures = table_.measures.emplace_back(table_.columns.size());
    row[0] = metric.label;
    measures[0] = {Kind::Key};
    for (const ViewColumn& cell : metric.cells) {
      const auto heading = std::find(view.headings.begin(), view.headings.end(), cell.heading);
      const auto at = static_cast<std::size_t>(heading - view.headings.begin()) + 1;
      row[at] = object_->value(cell.field, 0, pair);
      measures[at] = cell.measure;
    }
  }
  return done();
}

/// Runs the members for every pair on the one object, so that record i belongs to pair i.
bool Reading::fetchEveryPair(const std::vector<std::string>& members,
                             const std::vector<std::string>& arguments) {
  const int pairs = static_cast<int>(source_.pairs.rownum());
  for (int i = 0; i < pairs; ++i) {
    if (!source_.progress.step(i + 1, pairs)) {
      // As if the pair's first member had been cancelled while it ran.
      table_.failures.push_back({failureText(object_->className(), members.front()), Cancelled().what()});
      return false;
    }
    const auto get = [&](const std::string& member) { return object_->get(member, i); };
    if (!bind(i, arguments) || !std::all_of(members.begin(), members.end(), get) ||
        !object_->unsetBAIND_VALUE())
      return false;
  }
  return true;
}

ReportTable Reading::col(const AnyListView& view, const ColRequest& request) {
  const bool ofEnds = view.ofPairs == OfPairs::SnapshotOfRow;
  const bool start = ofEnds && request.keys.at(0) == "B";
  if (ofEnds && !start && request.keys.at(0) != "E") return std::move(table_);
  const auto arguments = view.colArguments != nullptr ? view.colArguments(request.keys) : request.keys;
  if (!fetchEveryPair({view.col}, arguments)) return std::move(table_);

  const std::vector<ViewColumn>& columns = view.colColumns ? *view.colColumns : view.columns;
  const auto time = std::min(view.keys, columns.size());
  for (const ViewColumn& column : columns) table_.columns.push_back({column.heading, column.measure});
  table_.columns.insert(table_.columns.begin() + static_cast<std::ptrdiff_t>(time),
                        start ? kStartTime : kEndTime);
  if (!ofEnds) table_.columns.push_back(kStatus);
  const clsSnapId& pairs = source_.pairs;
  for (int i = 0; i < pairs.rownum(); ++i) {
    std::vector<std::string>& row = table_.rows.emplace_back();
    for (const ViewColumn& column : columns) row.push_back(object_->value(column.field, i, i));
    row.insert(row.begin() + static_cast<std::ptrdiff_t>(time),
               start ? pairs.START_SNAP_TIME(i) : pairs.END_SNAP_TIME(i));
    if (!ofEnds) row.push_back(pairs.REPORT_STATUS(i));
  }
  return done();
}

ReportTable Reading::col(const AnyMetricView& view, int row) {
  if (row < 1 || row > static_cast<int>(view.rows.size())) return std::move(table_);
  const AnyMetricRow& metric = view.rows[static_cast<std::size_t>(row - 1)];
  std::vector<std::string> members{metric.member};
  members.insert(members.end(), metric.furtherMembers.begin(), metric.furtherMembers.end());
  if (!fetchEveryPair(members, {})) return std::move(table_);

  const std::vector<ViewColumn>& cells = metric.colCells ? *metric.colCells : metric.cells;
  table_.columns.push_back({view.nameHeading, {Kind::Key}});
  if (metric.pairColumns) table_.columns.push_back(kEndTime);
  for (const ViewColumn& cell : cells) table_.columns.push_back({cell.heading, cell.measure});
  if (metric.pairColumns) table_.columns.push_back(kStatus);
  const clsSnapId& pairs = source_.pairs;
  for (int i = 0; i < pairs.rownum(); ++i) {
    std::vector<std::string>& cellsOf = table_.rows.emplace_back();
    cellsOf.push_back(metric.colLabel.value_or(metric.label));
    if (metric.pairColumns) cellsOf.push_back(pairs.END_SNAP_TIME(i));
    for (const ViewColumn& cell : cells) cellsOf.push_back(object_->value(cell.field, i, i));
    if (metric.pairColumns) cellsOf.push_back(pairs.REPORT_STATUS(i));
  }
  return done();
}

}  // namespace

ColRequest colRequest(const Section& section, const Grid& grid, int row) {
  ColRequest request{row};
  for (const int column : section.col.columns)
    request.keys.push_back(column < grid.Cols() ? grid.TextMatrix(row, column) : std::string());
  return request;
}

ColRequest colRequest(const Section& section, const ReportTable& table, int row) {
  ColRequest request{row};
  const std::vector<std::string>& cells = table.rows.at(static_cast<std::size_t>(row - 1));
  for (const int column : section.col.columns) {
    const auto at = static_cast<std::size_t>(column - 1);
    request.keys.push_back(at < cells.size() ? cells[at] : std::string());
  }
  return request;
}

ReportTable readAll(const ReportSource& source, const Section& section, int pair) {
  const ReleaseViews* views = section.viewsOf(source.version);
  if (views == nullptr) return {};
  return std::visit([&](const auto& view) { return Reading(source, section, *views).all(view, pair); },
                    views->view);
}

ReportTable readCol(const ReportSource& source, const Section& section, const ColRequest& request) {
  const ReleaseViews* views = section.viewsOf(source.version);
  if (views == nullptr || section.col.kind == ColKey::Kind::Refused) return {};
  Reading reading(source, section, *views);
  if (const auto* list = std::get_if<AnyListView>(&views->view)) return reading.col(*list, request);
  const bool ofRow = section.col.kind == ColKey::Kind::Row;
  return reading.col(std::get<AnyMetricView>(views->view), ofRow ? request.row : 1);
}

SectionReader& directReader() {
  static SectionReader reader;
  return reader;
}

}  // namespace kestrelix
