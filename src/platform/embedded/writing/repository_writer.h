// Makes a new local repository file.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "platform/embedded/writing/cell.h"
#include "statspack/release.h"

struct sqlite3;
struct sqlite3_stmt;

namespace kestrelix::embedded {

/// A repository file that cannot be written; what() names the file.
class RepositoryError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Who may open the file. Without a salt a random one is taken.
struct NewAccount {
  std::string user = "PERFSTAT";
  std::string password = "perfstat";
  std::optional<std::array<unsigned char, 16>> salt;
};

struct NewColumn {
  std::string name;
  statspack::Type type = statspack::Type::Number;
};

/// What the values of a column have in common.
struct NumbersSeen {
  bool integral = true;      ///< all are whole and fit 64 bits
  std::int64_t largest = 0;  ///< the largest absolute value of them

  void see(std::int64_t value) {
    const std::int64_t size = value == INT64_MIN ? INT64_MAX : value < 0 ? -value : value;
    if (size > largest) largest = size;
  }
};

/// Fills one table of a file in the making.
class TableWriter {
 public:
  TableWriter(sqlite3* connection, std::string name, std::vector<NewColumn> columns);
  TableWriter(TableWriter&&) = delete;
  ~TableWriter();

  const std::string& name() const { return name_; }
  const std::vector<NewColumn>& columns() const { return columns_; }

  /// One row, a cell for each column in order; columns behind the last cell are NULL.
  void insert(std::span<const Cell> cells);

 private:
  friend class RepositoryWriter;

  sqlite3* connection_;
  std::string name_;
  std::vector<NewColumn> columns_;
  std::vector<NumbersSeen> numbers_;
  sqlite3_stmt* statement_ = nullptr;
};

/// A repository file in the making. It is written beside its name, and takes it, over any file that has it,
/// when finish() has made it whole; a writer that goes before that leaves nothing behind. Failures are
/// RepositoryError.
class RepositoryWriter {
 public:
  /// `createdBy` is kept in the file.
  RepositoryWriter(std::filesystem::path path, const NewAccount& account, std::string_view createdBy);
  RepositoryWriter(RepositoryWriter&&) = delete;
  ~RepositoryWriter();

  /// Adds an empty table. Names are kept in lower case; a table that is there already fails.
  TableWriter& addTable(std::string_view name, std::vector<NewColumn> columns);
  /// The table of that name (in lower case), or null.
  TableWriter* table(std::string_view name);

  /// Makes the indexes, tells the columns and statistics, and gives the file its name.
  void finish();

 private:
  void execute(const std::string& sql);
  void writeSettings(const NewAccount& account, std::string_view createdBy);
  void writeColumns();

  std::filesystem::path path_;
  std::filesystem::path unfinished_;
  sqlite3* connection_ = nullptr;
  std::map<std::string, std::unique_ptr<TableWriter>, std::less<>> tables_;
};

}  // namespace kestrelix::embedded
