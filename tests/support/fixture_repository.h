// A small repository file for tests, told as rows of text.
#pragma once

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <initializer_list>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/ascii.h"
#include "repository_file/writing/repository_writer.h"
#include "statspack/release.h"

namespace kestrelix::testing_support {

/// The tables of one release, empty but for the rows told here, in a file of the system's temporary folder
/// that goes with the object. Account PERFSTAT, password perfstat.
///
///   FixtureRepository fixture("10");
///   fixture.common({{"dbid", "1"}, {"instance_number", "1"}});
///   fixture.snapshot("1", "2026-01-05 10:00:00").snapshot("2", "2026-01-05 11:00:00");
///   fixture.rows("stats$sysstat", {"snap_id", "name", "value"}, {{"1", "redo size", "100"}});
///   open(fixture.write());
class FixtureRepository {
 public:
  using Values = std::initializer_list<std::pair<std::string_view, std::string_view>>;

  /// `major` is "9", "10" or "11", or empty for the tables and columns of all three.
  explicit FixtureRepository(std::string_view major = "")
      : schema_(major.empty() ? statspack::everyRelease() : statspack::release(major)) {
    static int count = 0;
    path_ = std::filesystem::temp_directory_path() /
            ("kestrelix-fixture-" + std::to_string(::getpid()) + "-" + std::to_string(++count) + ".sqlite");
  }
  FixtureRepository(const FixtureRepository&) = delete;
  FixtureRepository& operator=(const FixtureRepository&) = delete;
  ~FixtureRepository() {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
  }

  /// Values of every row told from here on whose table has the column and that does not tell it itself.
  FixtureRepository& common(Values values) {
    for (const auto& [column, value] : values) common_[asciiLower(column)] = value;
    return *this;
  }

  /// One row as {column, text}; dates are YYYY-MM-DD HH24:MI:SS, the empty text is NULL, untold columns are
  /// NULL.
  FixtureRepository& row(std::string_view table, Values values) {
    return row(table, std::vector<std::pair<std::string_view, std::string_view>>(values));
  }
  FixtureRepository& row(std::string_view table,
                         const std::vector<std::pair<std::string_view, std::string_view>>& values) {
    Row cells;
    for (const auto& [column, value] : values) cells[asciiLower(column)] = value;
    add(table, std::move(cells));
    return *this;
  }

  /// Several rows of the same columns.
  FixtureRepository& rows(std::string_view table, std::initializer_list<std::string_view> columns,
                          std::initializer_list<std::initializer_list<std::string_view>> lines) {
    for (const auto& line : lines) {
      if (line.size() != columns.size()) throw std::logic_error("fixture: a row of another length");
      Row cells;
      auto value = line.begin();
      for (const std::string_view column : columns) cells[asciiLower(column)] = *value++;
      add(table, std::move(cells));
    }
    return *this;
  }

  /// A row of stats$snapshot, of an instance that started long before unless told.
  FixtureRepository& snapshot(std::string_view id, std::string_view time, std::string_view level = "7",
                              std::string_view startup = "2000-01-01 00:00:00") {
    return row("stats$snapshot",
               {{"snap_id", id}, {"snap_time", time}, {"snap_level", level}, {"startup_time", startup}});
  }

  /// Leaves a table out of the file.
  FixtureRepository& without(std::string_view table) {
    left_.insert(asciiLower(table));
    return *this;
  }

  /// Lets every row stand again, with other figures, under another database, another instance and a purged
  /// snapshot, and before the row itself: a statement that finds them lacks a condition.
  FixtureRepository& withNeighbours(bool told = true) {
    neighbours_ = told;
    return *this;
  }

  const std::filesystem::path& path() const { return path_; }

  /// Writes the file, over any earlier one, and tells where it is.
  const std::filesystem::path& write() {
    repository_file::RepositoryWriter writer(path_, {}, "a test");
    for (const statspack::Table& table : schema_.tables()) {
      if (left_.contains(table.name)) continue;
      std::vector<repository_file::NewColumn> columns;
      for (const statspack::Column& column : table.columns) columns.push_back({column.name, column.type});
      repository_file::TableWriter& written = writer.addTable(table.name, std::move(columns));
      if (neighbours_) writeRows(written, neighboursOf(table));
      writeRows(written, rows_[table.name]);
    }
    writer.finish();
    return path_;
  }

 private:
  using Row = std::map<std::string, std::string>;

  void add(std::string_view table, Row cells) {
    const statspack::Table* known = schema_.table(table);
    if (known == nullptr) throw std::logic_error("fixture: no table " + std::string(table));
    for (const auto& [column, value] : cells)
      if (known->column(column) == nullptr)
        throw std::logic_error("fixture: no column " + column + " in " + known->name);
    for (const auto& [column, value] : common_)
      if (known->column(column) != nullptr) cells.try_emplace(column, value);
    rows_[known->name].push_back(std::move(cells));
  }

  /// The list of instances has none, that of snapshots no further one of the same instance, and what is found
  /// by its time, whichever snapshot took it, none of another snapshot.
  std::vector<Row> neighboursOf(const statspack::Table& table) const {
    std::vector<Row> neighbours;
    const auto told = rows_.find(table.name);
    if (told == rows_.end() || table.name == "stats$database_instance") return neighbours;
    const bool keyed = std::any_of(table.columns.begin(), table.columns.end(),
                                   [](const statspack::Column& column) { return column.keyPlace > 0; });
    const std::pair<std::string_view, const char*> elsewhere[] = {
        {"dbid", "0"}, {"instance_number", "0"}, {"snap_id", "0"}};
    for (const auto& [key, place] : elsewhere) {
      const statspack::Column* kept = table.column(key);
      if (kept == nullptr || (keyed && kept->keyPlace == 0)) continue;
      if (key == "snap_id" && (table.name == "stats$snapshot" || table.name == "stats$undostat" ||
                               table.name == "stats$memory_resize_ops"))
        continue;
      for (const bool larger : {false, true})
        for (Row row : told->second) {
          for (auto& [column, value] : row) value = otherFigure(*table.column(column), value, larger);
          row[std::string(key)] = place;
          neighbours.push_back(std::move(row));
        }
    }
    return neighbours;
  }

  /// Another value, larger or smaller, for what is neither a key of the table nor of another one. The figures
  /// of stats$parameter are texts. What lay hours apart lies days apart.
  static std::string otherFigure(const statspack::Column& column, const std::string& value, bool larger) {
    const bool isKey = column.keyPlace > 0 || column.name == "dbid" || column.name == "instance_number" ||
                       column.name.ends_with("_id") || column.name.ends_with("hash_value");
    if (isKey) return value;
    if (column.type == statspack::Type::Date && !value.empty())
      return "1999-01-1" + value.substr(12, 1) + value.substr(10);
    if (column.name != "value" && column.type != statspack::Type::Number) return value;
    return larger ? value + "7" : "1";
  }

  void writeRows(repository_file::TableWriter& table, const std::vector<Row>& rows) {
    for (const Row& row : rows) {
      std::vector<repository_file::Cell> cells;
      std::vector<std::string> scratch(table.columns().size());
      for (std::size_t i = 0; i < table.columns().size(); ++i) {
        const auto found = row.find(table.columns()[i].name);
        const std::string_view text = found == row.end() ? std::string_view() : found->second;
        cells.push_back(repository_file::Cell::fromText(table.columns()[i].type, text, scratch[i]));
      }
      table.insert(cells);
    }
  }

  const statspack::Release& schema_;
  std::filesystem::path path_;
  std::map<std::string, std::string> common_;
  std::map<std::string, std::vector<Row>> rows_;
  std::set<std::string> left_;
  bool neighbours_ = false;
};

}  // namespace kestrelix::testing_support
