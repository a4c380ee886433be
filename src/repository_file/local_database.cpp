#include "repository_file/local_database.h"

#include <algorithm>
#include <ctime>
#include <iterator>
#include <string_view>
#include <utility>

#include "oracle_sql/date/date.h"
#include "oracle_sql/function_error.h"
#include "oracle_sql/syntax/error.h"
#include "platform/cancelled.h"
#include "platform/running_statement.h"
#include "repository_file/account.h"
#include "repository_file/repository_file.h"
#include "repository_file/statement_cache.h"
#include "repository_file/storage.h"

namespace kestrelix::repository_file {
namespace {

/// The place of a byte offset: lines from 1, columns in characters from 1.
sql::Place placeOf(std::string_view statement, std::uint32_t offset) {
  sql::Place place;
  place.offset = offset;
  for (std::size_t i = 0; i < offset && i < statement.size(); ++i) {
    if (statement[i] == '\n') {
      ++place.line;
      place.column = 1;
    } else if ((static_cast<unsigned char>(statement[i]) & 0xC0) != 0x80) {
      ++place.column;
    }
  }
  return place;
}

[[noreturn]] void fail(const sql::SqlError& error, const std::string& statement) {
  const char* state = error.kind() == sql::ErrorKind::Wrong         ? "42000"
                      : error.kind() == sql::ErrorKind::Unsupported ? "0A000"
                                                                    : "HY000";
  throw DatabaseError(state, error.oraCode(), error.render(statement), statement);
}

values::Date wallClock() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  values::DateFields fields;
  fields.year = local.tm_year + 1900;
  fields.month = local.tm_mon + 1;
  fields.day = local.tm_mday;
  fields.hour = local.tm_hour;
  fields.minute = local.tm_min;
  fields.second = local.tm_sec < 60 ? local.tm_sec : 59;
  return values::Date::fromFields(fields);
}

std::optional<std::string> cellText(sqlite3_stmt* row, int column, sql::TypeKind type) {
  const int stored = sqlite3_column_type(row, column);
  if (stored == SQLITE_NULL) return std::nullopt;
  switch (type) {
    case sql::TypeKind::Number:
      if (stored == SQLITE_INTEGER) return std::to_string(sqlite3_column_int64(row, column));
      return numberOf(row, column).toPlainText();
    case sql::TypeKind::Date:
      return values::toText(values::Value(values::Date{sqlite3_column_int64(row, column)}));
    case sql::TypeKind::Raw: {
      const auto* bytes = static_cast<const char*>(sqlite3_column_blob(row, column));
      return values::toText(values::Value::rawView(
          {bytes ? bytes : "", static_cast<std::size_t>(sqlite3_column_bytes(row, column))}));
    }
    default: {
      std::string text = columnText(row, column);
      if (text.empty()) return std::nullopt;
      return text;
    }
  }
}

/// Steps of SQLite's machine between two looks at whether the statement is to end: some microseconds.
constexpr int kStepsUnasked = 1000;

int isCancelled(void* running) { return static_cast<RunningStatement*>(running)->cancelled() ? 1 : 0; }

struct ResetStatement {
  void operator()(sqlite3_stmt* statement) const { sqlite3_reset(statement); }
};

}  // namespace

class LocalDatabase::Engine {
 public:
  explicit Engine(const std::filesystem::path& path)
      : connection_(openRepositoryFile(path)),
        catalogue_(connection_.get()),
        cache_(connection_.get(), catalogue_, evaluation_) {
    // SQLite forgets an interrupt that comes just before a statement's first step.
    sqlite3_progress_handler(connection_.get(), kStepsUnasked, isCancelled, &running_);
  }

  void cancel() { running_.cancel(); }

  sqlite3* connection() { return connection_.get(); }

  PreparedStatement& prepared(const std::string& text, const Parameters& binds, bool wideSums = false) {
    try {
      return cache_.get(text, binds, wideSums);
    } catch (const sql::SqlError& error) {
      fail(error, text);
    }
  }

  std::unique_ptr<ResultRows> run(const std::string& text, const Parameters& binds) {
    std::shared_ptr<const std::vector<std::string>> names;
    std::vector<std::optional<std::string>> cells;
    std::size_t rows = 0;
    const RunningStatement::Run run(running_);
    const auto collect = [&](bool wideSums) {
      cells.clear();
      names = walk(text, binds, wideSums, [&](const Names&, Row& row) {
        std::move(row.begin(), row.end(), std::back_inserter(cells));
      });
      rows = names->empty() ? 0 : cells.size() / names->size();
    };
    try {
      collect(false);
    } catch (const SumTooLarge&) {
      collect(true);
    }
    return std::make_unique<ResultRows>(std::move(names), std::move(cells), rows);
  }

  std::vector<std::string> stream(const std::string& text, const Parameters& binds, const RowSink& sink) {
    std::size_t given = 0;
    const RunningStatement::Run run(running_);
    const auto give = [&](const Names& names, Row& row) {
      ++given;
      sink(names, row);
    };
    try {
      return *walk(text, binds, false, give);
    } catch (const SumTooLarge&) {
      // The same rows in the same order: those that were given already are passed over.
      std::size_t toPass = given;
      return *walk(text, binds, true, [&](const Names& names, Row& row) {
        if (toPass == 0) return sink(names, row);
        --toPass;
      });
    }
  }

 private:
  using Names = std::vector<std::string>;
  using Row = std::vector<std::optional<std::string>>;
  /// A sum of whole numbers left 64 bits: the statement has to run with sums of NUMBER.
  struct SumTooLarge {};

  /// Runs the statement and hands over its rows, each in turn; gives the names of the columns.
  std::shared_ptr<const std::vector<std::string>> walk(const std::string& text, const Parameters& binds,
                                                       bool wideSums,
                                                       const std::function<void(const Names&, Row&)>& sink) {
    PreparedStatement& statement = prepared(text, binds, wideSums);
    sqlite3_stmt* handle = statement.handle.get();
    evaluation_.failure.reset();
    evaluation_.sumTooLarge = false;
    evaluation_.rownums.assign(static_cast<std::size_t>(statement.lowered.rownumCounters), 0);
    if (statement.asksClock) evaluation_.context.now = wallClock();
    bind(statement, binds);
    const RunningStatement::Call call(
        running_, [this] { sqlite3_interrupt(connection_.get()); }, text);
    // Whatever ends the walk, the statement is free to run again.
    const std::unique_ptr<sqlite3_stmt, ResetStatement> reset(handle);

    const auto& columns = statement.lowered.columns;
    Row row(columns.size());
    while (next(statement, text, binds)) {
      for (std::size_t i = 0; i < columns.size(); ++i)
        row[i] = cellText(handle, static_cast<int>(i), columns[i].type);
      sink(*statement.names, row);
    }
    return statement.names;
  }

  /// Whether there is a row; an error is told in Oracle's terms and with its place.
  bool next(const PreparedStatement& statement, const std::string& text, const Parameters& binds) {
    running_.check(text);
    try {
      return step(statement.handle.get());
    } catch (const Cancelled&) {
      throw Cancelled(text);
    } catch (const DatabaseError& error) {
      if (evaluation_.failure) {
        const auto failure = *std::exchange(evaluation_.failure, std::nullopt);
        const sql::Place place = placeOf(text, failure.offset);
        const bool unsupported = failure.code == values::FunctionError::kUnsupported;
        fail(unsupported ? sql::SqlError::unsupported(failure.message, place)
                         : sql::SqlError::wrong(failure.code, failure.message, place),
             text);
      }
      if (evaluation_.sumTooLarge) throw SumTooLarge();
      if (hasFrameOutOfRange(statement, binds))
        fail(sql::SqlError::wrong(1428, "the offset of a frame is out of range", {}), text);
      throw DatabaseError(error.sqlState(), error.nativeCode(), error.what(), text);
    }
  }

  /// SQLite refuses a frame whose offset is null or negative, if it comes to a row: of a bind, since literals
  /// are looked at before.
  static bool hasFrameOutOfRange(const PreparedStatement& statement, const Parameters& binds) {
    const auto& offsets = statement.lowered.frameBinds;
    return std::any_of(offsets.begin(), offsets.end(), [&](const std::string& name) {
      const std::string& value = binds.find(name)->value();
      return value.empty() || values::Number::parse(value)->isNegative();
    });
  }

  void bind(PreparedStatement& statement, const Parameters& binds) {
    for (const auto& parameter : statement.parameters) {
      const Parameter& bind = *binds.find(parameter.bind);
      if (bind.value().empty())
        sqlite3_bind_null(statement.handle.get(), parameter.position);
      else if (bind.serverType() == ServerType::String)
        sqlite3_bind_text(statement.handle.get(), parameter.position, bind.value().data(),
                          static_cast<int>(bind.value().size()), SQLITE_TRANSIENT);
      else
        bindNumber(statement.handle.get(), parameter.position, *values::Number::parse(bind.value()));
    }
  }

  RunningStatement running_;
  Evaluation evaluation_;
  ConnectionHandle connection_;
  FileCatalogue catalogue_;
  StatementCache cache_;
};

LocalDatabase::LocalDatabase(const std::filesystem::path& path) : engine_(std::make_unique<Engine>(path)) {}
LocalDatabase::~LocalDatabase() = default;

std::unique_ptr<Dynaset> LocalDatabase::DbCreateDynaset(const std::string& sql, long /*options*/) {
  return run(sql);
}

void LocalDatabase::cancel() { engine_->cancel(); }

std::unique_ptr<ResultRows> LocalDatabase::run(const std::string& sql) {
  return engine_->run(sql, parameters());
}

std::vector<std::string> LocalDatabase::stream(const std::string& sql, const RowSink& sink) {
  return engine_->stream(sql, parameters(), sink);
}

void LocalDatabase::logOn(const Credentials& credentials) {
  checkAccount(engine_->connection(), credentials);
}

std::string LocalDatabase::loweredText(const std::string& sql) {
  return engine_->prepared(sql, parameters()).lowered.text;
}

}  // namespace kestrelix::repository_file
