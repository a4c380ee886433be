// Makes a new local repository file.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/progress.h"
#include "repository_file/writing/cell.h"
#include "repository_file/writing/repository_error.h"
#include "repository_file/writing/unfinished_file.h"
#include "statspack/release.h"

struct sqlite3;
struct sqlite3_stmt;

namespace kestrelix::repository_file {

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

/// Fills one table of a file in the making. Failures are RepositoryError.
class TableWriter {
 public:
  /// `file` is the repository's name, for errors; it must outlive this object.
  TableWriter(sqlite3* connection, const std::filesystem::path& file, std::string name,
              std::vector<NewColumn> columns);
  TableWriter(TableWriter&&) = delete;
  ~TableWriter();

  const std::string& name() const { return name_; }
  const std::vector<NewColumn>& columns() const { return columns_; }

  /// One row, a cell for each column in order; columns behind the last cell are NULL.
  void insert(std::span<const Cell> cells);

 private:
  friend class RepositoryWriter;
  [[noreturn]] void fail(const std::string& why) const;

  sqlite3* connection_;
  const std::filesystem::path& file_;
  std::string name_;
  std::vector<NewColumn> columns_;
  std::vector<NumbersSeen> numbers_;
  sqlite3_stmt* statement_ = nullptr;
};

/// A repository file in the making. It is written beside its name, and takes it when finish() has made it
/// whole; a writer that goes before that leaves nothing behind. Failures are RepositoryError.
class RepositoryWriter {
 public:
  /// `createdBy` is kept in the file. With Existing::Keep a file of that name stays, and finish() fails.
  RepositoryWriter(std::filesystem::path path, const NewAccount& account, std::string_view createdBy,
                   Existing existing = Existing::Replace);
  RepositoryWriter(RepositoryWriter&&) = delete;
  ~RepositoryWriter();

  /// Adds an empty table. Names are kept in lower case; a table that is there already fails.
  TableWriter& addTable(std::string_view name, std::vector<NewColumn> columns);
  /// The table of that name (in lower case), or null.
  TableWriter* table(std::string_view name);

  /// Makes the indexes, tells the columns and statistics, and gives the file its name. `progress` is told
  /// that all is done, 1 of 1, again and again until just before that. Throws Cancelled when it is to go no
  /// further; nothing is made then.
  void finish(Progress& progress = Progress::none());

 private:
  void execute(const std::string& sql);
  void close();
  void makeIndexes();
  void writeSettings(const NewAccount& account, std::string_view createdBy);
  void writeColumns();

  UnfinishedFile file_;
  Existing existing_;
  sqlite3* connection_ = nullptr;
  std::map<std::string, std::unique_ptr<TableWriter>, std::less<>> tables_;
};

}  // namespace kestrelix::repository_file
