// What the grid shows of a section object: headings and accessors, as data.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "report/SectionObject.h"

namespace kestrelix {

/// An accessor of a section object, kept with the class forgotten: it is called on the object that it came
/// from.
class Accessor {
 public:
  template <class Object>
  Accessor(std::string (Object::*accessor)(int, int) const)
      : accessor_(static_cast<std::string (SectionObject::*)(int, int) const>(accessor)) {}

  std::string operator()(const SectionObject& object, int row, int pairIndex) const {
    return (object.*accessor_)(row, pairIndex);
  }

 private:
  std::string (SectionObject::*accessor_)(int, int) const;
};

struct ViewColumn {
  std::string heading;
  Accessor accessor;
};

/// What a Col view shows of the pairs: "END TIME" and "STATUS", or, where a row belongs to one of the two
/// snapshots, that snapshot's "START TIME" or "END TIME" alone.
enum class OfPairs { EndTimeAndStatus, StartTime, EndTime };

/// The two views of a list Section. The All view has "NO" and the columns; the Col view has the pair's time
/// besides, behind the first `keys` columns, and "STATUS" at the end.
struct ListView {
  std::vector<ViewColumn> columns;
  std::size_t keys = 1;
  OfPairs ofPairs = OfPairs::EndTimeAndStatus;
  /// The Col view's own columns, where they differ by more than that.
  std::optional<std::vector<ViewColumn>> colColumns;

  /// The same view with other columns of the pair.
  ListView with(OfPairs shown) const {
    ListView view = *this;
    view.ofPairs = shown;
    return view;
  }
};

/// One metric: its row in the All view, and the member and columns of its Col view.
struct MetricRow {
  std::string label;
  std::string member;
  std::vector<ViewColumn> cells;  ///< each stands under its heading
  /// The Col view's own label and columns, where they differ from the All view's.
  std::optional<std::string> colLabel;
  std::optional<std::vector<ViewColumn>> colCells;
  /// The Col view shows the pair's "END TIME" and "STATUS" around the columns.
  bool pairColumns = true;
  /// Members that the Col view runs besides, where the row's figures come from several.
  std::vector<std::string> furtherMembers;
};

/// The views of a metric Section: "NO", "NAME" and the headings, one row a metric.
struct MetricView {
  std::vector<std::string> headings;
  std::vector<MetricRow> rows;
  /// The All view of a pair across a restart has no rows; else their cells are empty.
  bool headingsAloneOnRestart = false;
  /// The heading of the column of labels.
  std::string nameHeading = "NAME";
};

}  // namespace kestrelix
