// Rows of the demo repository, told in the columns that a topic knows.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "demo/timeline.h"
#include "repository_file/writing/repository_writer.h"

namespace kestrelix::demo {

using repository_file::Cell;
using repository_file::NewColumn;
using repository_file::RepositoryWriter;
using repository_file::TableWriter;

/// Writes rows of one table for one release: columns that this release lacks stay NULL, and rows of a table
/// that it lacks go nowhere, so that a topic is written once for all releases.
class Rows {
 public:
  Rows() = default;
  Rows(TableWriter* table, const statspack::Table* known, std::string_view columns);

  /// One row, a value for each of the columns in order.
  template <class... Values>
  void add(const Values&... values) {
    if (table_ == nullptr) return;
    std::size_t next = 0;
    (set(next++, Cell(values)), ...);
    insert(next);
  }
  /// One row of a table whose columns begin with the snapshot's three.
  template <class... Values>
  void at(const Snapshot& snapshot, const Values&... values) {
    add(snapshot.id, snapshot.dbid, snapshot.instance, values...);
  }

 private:
  void set(std::size_t place, Cell cell) {
    if (const int column = places_.at(place); column >= 0) row_[static_cast<std::size_t>(column)] = cell;
  }
  void insert(std::size_t told);

  TableWriter* table_ = nullptr;
  std::vector<int> places_;  // of each told column in the table, -1 for none
  std::vector<Cell> row_;
};

/// The tables of the repository in the making.
class Tables {
 public:
  /// Makes the tables of all releases, empty.
  explicit Tables(RepositoryWriter& writer);

  /// `columns` is a list of names with blanks between.
  Rows rows(const Database& database, std::string_view table, std::string_view columns);
  /// The same for a table with a row or more per snapshot; for Rows::at.
  Rows perSnapshot(const Database& database, std::string_view table, std::string_view columns);
  /// True the first time that it is asked for `key`: for rows that databases share.
  bool first(const std::string& key) { return seen_.insert(key).second; }

 private:
  RepositoryWriter& writer_;
  std::set<std::string> seen_;
};

}  // namespace kestrelix::demo
