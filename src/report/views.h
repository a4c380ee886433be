// What is shown of a section object: headings, fields and what the figures are, as data. A view is declared
// for one class of objects, so that a field of another one doesn't compile, and read with the class
// forgotten.
#pragma once

#include <concepts>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "report/SectionObject.h"
#include "report/measure.h"
#include "report/versions.h"

namespace kestrelix {

/// A field of a record under its heading.
struct ViewColumn {
  std::string heading;
  std::size_t field;
  Measure measure;
};

/// A column of a view over the records of `Object`.
template <class Object>
struct Column : ViewColumn {
  Column(std::string heading_, typename Object::Field field_, Kind kind, std::string_view unit_ = unit::none)
      : ViewColumn{std::move(heading_), static_cast<std::size_t>(field_), {kind, unit_}} {}
};

/// What a Col view shows of the pairs: "END TIME" and "STATUS"; or, where a row belongs to one of the two
/// snapshots and its first cell tells which ("B" or "E"), that snapshot's "START TIME" or "END TIME" alone.
enum class OfPairs { EndTimeAndStatus, SnapshotOfRow };

/// The two views of a list Section. The All view has the columns; the Col view has the pair's time besides,
/// behind the first `keys` columns, and "STATUS" at the end.
template <class C>
struct BasicListView {
  std::string all;  ///< the member of the All view
  std::string col;  ///< of the Col view; empty where there is none
  std::vector<C> columns;
  std::size_t keys = 1;
  OfPairs ofPairs = OfPairs::EndTimeAndStatus;
  /// The Col view's own columns, where they differ by more than that.
  std::optional<std::vector<C>> colColumns;
  /// What the All view binds, in the order of the object's arguments.
  std::vector<std::string> allArguments = {};
  /// What the Col view binds for the texts of the key cells; without it the texts themselves.
  std::vector<std::string> (*colArguments)(const std::vector<std::string>& keys) = nullptr;
};

/// One metric: its row in the All view, and the member and columns of its Col view.
template <class C>
struct BasicMetricRow {
  std::string label;
  std::string member;
  std::vector<C> cells;  ///< each stands under its heading
  /// The Col view's own label and columns, where they differ from the All view's.
  std::optional<std::string> colLabel;
  std::optional<std::vector<C>> colCells;
  /// The Col view shows the pair's "END TIME" and "STATUS" around the columns.
  bool pairColumns = true;
  /// Members that the Col view runs besides, where the row's figures come from several.
  std::vector<std::string> furtherMembers = {};
};

/// The views of a metric Section: the column of labels and the headings, one row a metric.
template <class C>
struct BasicMetricView {
  std::vector<std::string> headings;
  std::vector<BasicMetricRow<C>> rows;
  /// The All view of a pair across a restart has no rows; else their cells are empty.
  bool headingsAloneOnRestart = false;
  /// The heading of the column of labels.
  std::string nameHeading = "NAME";
};

template <class Object>
using ListView = BasicListView<Column<Object>>;
template <class Object>
using MetricRow = BasicMetricRow<Column<Object>>;
template <class Object>
using MetricView = BasicMetricView<Column<Object>>;

using AnyListView = BasicListView<ViewColumn>;
using AnyMetricRow = BasicMetricRow<ViewColumn>;
using AnyMetricView = BasicMetricView<ViewColumn>;

/// How a Section is read from the repositories of some releases.
struct ReleaseViews {
  Versions versions;
  std::unique_ptr<SectionObject> (*make)();
  std::variant<AnyListView, AnyMetricView> view;
};

template <class Object>
ReleaseViews viewsOf(Versions versions, const ListView<Object>& view);
template <class Object>
ReleaseViews viewsOf(Versions versions, const MetricView<Object>& view);

// ---- how the class is forgotten ----

template <class Object>
std::unique_ptr<SectionObject> make() {
  return std::make_unique<Object>();
}

template <class C>
std::optional<std::vector<ViewColumn>> anyColumns(const std::optional<std::vector<C>>& columns) {
  if (!columns) return std::nullopt;
  return std::vector<ViewColumn>(columns->begin(), columns->end());
}

template <class Object>
ReleaseViews viewsOf(Versions versions, const ListView<Object>& view) {
  return {versions, make<Object>,
          AnyListView{view.all,
                      view.col,
                      {view.columns.begin(), view.columns.end()},
                      view.keys,
                      view.ofPairs,
                      anyColumns(view.colColumns),
                      view.allArguments,
                      view.colArguments}};
}

template <class Object>
ReleaseViews viewsOf(Versions versions, const MetricView<Object>& view) {
  static_assert(std::derived_from<Object, MetricSectionObject>);
  AnyMetricView any{view.headings, {}, view.headingsAloneOnRestart, view.nameHeading};
  for (const MetricRow<Object>& row : view.rows)
    any.rows.push_back({row.label,
                        row.member,
                        {row.cells.begin(), row.cells.end()},
                        row.colLabel,
                        anyColumns(row.colCells),
                        row.pairColumns,
                        row.furtherMembers});
  return {versions, make<Object>, std::move(any)};
}

}  // namespace kestrelix
