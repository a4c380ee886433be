// One Section of the catalogue, as one row of a table.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "navigation/workspace.h"
#include "report/SectionObject.h"
#include "report/versions.h"

namespace kestrelix {

/// What a Col view is asked with: the row of the All view that was double-clicked, from 1, and the texts of
/// its key cells.
struct ColRequest {
  int row;
  std::vector<std::string> keys;
};

using AllFunction = void (*)(Workspace&, const std::string& version);
using ColFunction = void (*)(Workspace&, const std::string& version, const ColRequest&);

/// How a row of the All view leads to its Col view.
struct ColEntry {
  enum class Kind {
    Rows,      ///< by the row itself, which is one metric
    Keys,      ///< by the texts of the key columns; with no key column, the row is ignored
    BeginEnd,  ///< column 1 tells begin ("B") from end ("E") rows; any other text does nothing
    Refused,   ///< there is no time series
  };
  Kind kind = Kind::Refused;
  std::vector<int> keyColumns;
  ColFunction col = nullptr;
  ColFunction endCol = nullptr;  ///< of the end rows
};

inline ColEntry byRow(ColFunction col) { return {ColEntry::Kind::Rows, {}, col, nullptr}; }
inline ColEntry byKeys(std::vector<int> columns, ColFunction col) {
  return {ColEntry::Kind::Keys, std::move(columns), col, nullptr};
}
inline ColEntry anyRow(ColFunction col) { return {ColEntry::Kind::Keys, {}, col, nullptr}; }
inline ColEntry beginOrEnd(std::vector<int> columns, ColFunction begin, ColFunction end) {
  return {ColEntry::Kind::BeginEnd, std::move(columns), begin, end};
}
inline ColEntry refused() { return {}; }

using MakeSection = std::unique_ptr<SectionObject> (*)();
template <class Object>
std::unique_ptr<SectionObject> make() {
  return std::make_unique<Object>();
}

struct SectionEntry {
  std::string_view text;  ///< the Section's identity: its text in the list
  int code;
  Versions versions;
  bool needsRac;
  bool sqlButtons;   ///< "GRID", "SQL" and "PLAN" are on
  MakeSection make;  ///< its section object, for whoever asks for the statements
  AllFunction all;
  ColEntry col;
};

using SectionList = std::span<const SectionEntry>;

}  // namespace kestrelix
