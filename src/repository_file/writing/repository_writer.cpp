#include "repository_file/writing/repository_writer.h"

#include <sqlite3.h>

#include <cstring>

#include "platform/ascii.h"
#include "repository_file/writing/indexes.h"
#include "repository_file/writing/password_hash.h"

namespace kestrelix::repository_file {

namespace {

constexpr int kApplicationId = 0x4B535458;
constexpr int kLayoutVersion = 1;

std::string identifier(std::string_view name) {
  std::string result = "\"";
  for (const char c : name) result += c == '"' ? std::string("\"\"") : std::string(1, c);
  return result + "\"";
}

std::string listed(const std::vector<std::string>& names) {
  std::string result;
  for (const std::string& name : names) result += (result.empty() ? "" : ", ") + identifier(name);
  return result;
}

// SQLite's words, and the system's where SQLite only says that the disk failed.
std::string failure(sqlite3* connection) {
  const int code = sqlite3_errcode(connection) & 0xff;
  int reason = 0;
  sqlite3_file_control(connection, "main", SQLITE_FCNTL_LAST_ERRNO, &reason);
  if ((code == SQLITE_IOERR || code == SQLITE_CANTOPEN) && reason != 0) return std::strerror(reason);
  return sqlite3_errmsg(connection);
}

/// While one lives SQLite's work goes on only as long as `progress` is for it.
class Watch {
 public:
  Watch(sqlite3* connection, Progress& progress) : connection_(connection), progress_(progress) {
    constexpr int kSteps = 10000;
    sqlite3_progress_handler(connection_, kSteps, look, this);
  }
  Watch(const Watch&) = delete;
  Watch& operator=(const Watch&) = delete;
  ~Watch() { sqlite3_progress_handler(connection_, 0, nullptr, nullptr); }

  bool ended() const { return ended_; }

 private:
  static int look(void* watch) {
    auto& self = *static_cast<Watch*>(watch);
    self.ended_ = !self.progress_.step(1, 1);
    return self.ended_ ? 1 : 0;
  }

  sqlite3* connection_;
  Progress& progress_;
  bool ended_ = false;
};

}  // namespace

TableWriter::TableWriter(sqlite3* connection, const std::filesystem::path& file, std::string name,
                         std::vector<NewColumn> columns)
    : connection_(connection), file_(file), name_(std::move(name)), columns_(std::move(columns)) {
  std::vector<std::string> names;
  std::string marks;
  for (NewColumn& column : columns_) {
    column.name = asciiLower(column.name);
    names.push_back(column.name);
    marks += marks.empty() ? "?" : ",?";
  }
  const std::string create = "CREATE TABLE " + identifier(name_) + " (" + listed(names) + ")";
  const std::string insert = "INSERT INTO " + identifier(name_) + " VALUES (" + marks + ")";
  if (sqlite3_exec(connection_, create.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK ||
      sqlite3_prepare_v3(connection_, insert.c_str(), -1, SQLITE_PREPARE_PERSISTENT, &statement_, nullptr) !=
          SQLITE_OK)
    fail(failure(connection_));
  numbers_.resize(columns_.size());
}

TableWriter::~TableWriter() { sqlite3_finalize(statement_); }

void TableWriter::fail(const std::string& why) const {
  throw RepositoryError(unwritable(file_, "table " + name_ + ": " + why));
}

void TableWriter::insert(std::span<const Cell> cells) {
  if (cells.size() > columns_.size()) fail("a row of too many values");
  const int count = static_cast<int>(cells.size());
  for (int i = 0; i < count; ++i) {
    const Cell& cell = cells[static_cast<std::size_t>(i)];
    const std::string_view view = cell.view();
    const int size = static_cast<int>(view.size());
    switch (cell.kind()) {
      case Cell::Kind::Null:
        sqlite3_bind_null(statement_, i + 1);
        break;
      case Cell::Kind::Integer:
        sqlite3_bind_int64(statement_, i + 1, cell.integer());
        numbers_[static_cast<std::size_t>(i)].see(cell.integer());
        break;
      case Cell::Kind::Text:
        sqlite3_bind_text(statement_, i + 1, view.data(), size, SQLITE_STATIC);
        break;
      case Cell::Kind::Number:
        numbers_[static_cast<std::size_t>(i)].integral = false;
        [[fallthrough]];
      case Cell::Kind::Raw:
        sqlite3_bind_blob(statement_, i + 1, view.data(), size, SQLITE_STATIC);
        break;
    }
  }
  for (int i = count; i < static_cast<int>(columns_.size()); ++i) sqlite3_bind_null(statement_, i + 1);
  const int result = sqlite3_step(statement_);
  sqlite3_reset(statement_);
  if (result != SQLITE_DONE) fail(failure(connection_));
}

RepositoryWriter::RepositoryWriter(std::filesystem::path path, const NewAccount& account,
                                   std::string_view createdBy, Existing existing)
    : file_(std::move(path)), existing_(existing) {
  const int result = sqlite3_open_v2(file_.path().c_str(), &connection_,
                                     SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
  try {
    if (result != SQLITE_OK) throw RepositoryError(unwritable(file_.target(), sqlite3_errstr(result)));
    // A failure drops the whole file, so nothing need be undone and no journal is kept.
    execute("PRAGMA journal_mode = OFF");
    execute("PRAGMA synchronous = OFF");
    execute("PRAGMA locking_mode = EXCLUSIVE");
    execute("PRAGMA cache_size = -65536");
    execute("PRAGMA temp_store = MEMORY");
    execute("PRAGMA application_id = " + std::to_string(kApplicationId));
    execute("PRAGMA user_version = " + std::to_string(kLayoutVersion));
    execute("BEGIN");
    writeSettings(account, createdBy);
  } catch (...) {
    close();
    throw;
  }
}

RepositoryWriter::~RepositoryWriter() { close(); }

void RepositoryWriter::close() {
  tables_.clear();
  sqlite3_close(connection_);
  connection_ = nullptr;
}

void RepositoryWriter::execute(const std::string& sql) {
  if (sqlite3_exec(connection_, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
    throw RepositoryError(unwritable(file_.target(), failure(connection_)));
}

void RepositoryWriter::writeSettings(const NewAccount& account, std::string_view createdBy) {
  TableWriter settings(connection_, file_.target(), "kestrelix$setting", {{"name"}, {"value"}});
  const std::string user = asciiUpper(account.user);
  const std::string hash = saltedHash(account.password, account.salt);
  settings.insert(std::array<Cell, 2>{"user_name", user});
  settings.insert(std::array<Cell, 2>{"password_hash", hash});
  settings.insert(std::array<Cell, 2>{"created_by", createdBy});
}

TableWriter& RepositoryWriter::addTable(std::string_view name, std::vector<NewColumn> columns) {
  const std::string lower = asciiLower(name);
  auto writer = std::make_unique<TableWriter>(connection_, file_.target(), lower, std::move(columns));
  return *tables_.emplace(lower, std::move(writer)).first->second;
}

TableWriter* RepositoryWriter::table(std::string_view name) {
  const auto found = tables_.find(name);
  return found == tables_.end() ? nullptr : found->second.get();
}

void RepositoryWriter::writeColumns() {
  TableWriter catalogue(
      connection_, file_.target(), "kestrelix$column",
      {{"table_name"}, {"column_name"}, {"position"}, {"oracle_type"}, {"integral"}, {"largest"}});
  for (const auto& [name, table] : tables_) {
    for (std::size_t i = 0; i < table->columns_.size(); ++i) {
      const NewColumn& column = table->columns_[i];
      const NumbersSeen& numbers = table->numbers_[i];
      const bool integral = column.type == statspack::Type::Number && numbers.integral;
      catalogue.insert(std::array<Cell, 6>{name, column.name, i + 1, statspack::typeName(column.type),
                                           integral ? 1 : 0, integral ? Cell(numbers.largest) : Cell()});
    }
  }
}

void RepositoryWriter::makeIndexes() {
  for (const auto& [name, table] : tables_) {
    std::vector<std::string> columns;
    for (const NewColumn& column : table->columns_) columns.push_back(column.name);
    int number = 0;
    for (const auto& index : indexesOf(name, columns))
      execute("CREATE INDEX " + identifier(name + "_" + std::to_string(++number)) + " ON " +
              identifier(name) + " (" + listed(index) + ")");
  }
}

void RepositoryWriter::finish(Progress& progress) {
  {
    const Watch watch(connection_, progress);
    try {
      makeIndexes();
      writeColumns();
      execute("ANALYZE");
      execute("COMMIT");
    } catch (const RepositoryError&) {
      if (watch.ended()) throw Cancelled();
      throw;
    }
  }
  advance(progress, 1, 1);
  close();
  file_.takeName(existing_);
}

}  // namespace kestrelix::repository_file
