// One Section of the catalogue, as one row of a table.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "report/views.h"

namespace kestrelix {

/// How a row of the All view leads to its Col view.
struct ColKey {
  enum class Kind {
    Row,      ///< by the row itself, which is one metric
    Cells,    ///< by the texts of cells; with none of them any row leads to the one series
    Ends,     ///< by the texts of cells of which the first tells begin ("B") from end ("E") rows
    Refused,  ///< there is no time series
  };
  Kind kind = Kind::Refused;
  std::vector<int> columns = {};  ///< as a grid counts: its running number is column 0
};

inline ColKey byRow() { return {ColKey::Kind::Row}; }
inline ColKey byCells(std::vector<int> columns) { return {ColKey::Kind::Cells, std::move(columns)}; }
inline ColKey anyRow() { return {ColKey::Kind::Cells}; }
inline ColKey byEnds(std::vector<int> columns) { return {ColKey::Kind::Ends, std::move(columns)}; }
inline ColKey refused() { return {}; }

/// What a refused time series is told with.
inline constexpr const char* kNoSeries = "The time series display is not supported.";

struct Section {
  std::string_view text;  ///< the Section's identity: its text in the list
  int code;
  Versions versions;
  bool needsRac = false;
  bool sqlButtons = false;  ///< "GRID", "SQL" and "PLAN" are on
  ColKey col;
  std::vector<ReleaseViews> views;

  /// The views of a release; null where it has none. Views that are the same for all releases are so for a
  /// refused one too.
  const ReleaseViews* viewsOf(std::string_view version) const;
};

/// Only the value "YES" of `parallel` counts as a cluster database.
bool isListed(const Section& section, std::string_view version, std::string_view parallel);

using SectionList = std::span<const Section>;

/// The Section of that text; null where the list lacks it.
const Section* findSection(SectionList sections, std::string_view text);

}  // namespace kestrelix
