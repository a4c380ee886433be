#include "repository_file/sqlite_handle.h"

#include "platform/cancelled.h"

namespace kestrelix::repository_file {

StatementHandle prepare(sqlite3* connection, const std::string& sql) {
  sqlite3_stmt* statement = nullptr;
  const int result = sqlite3_prepare_v3(connection, sql.c_str(), static_cast<int>(sql.size()) + 1,
                                        SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
  if (result == SQLITE_INTERRUPT) throw Cancelled(sql);
  if (result != SQLITE_OK)
    throw DatabaseError("HY000", 0, std::string("the local repository: ") + sqlite3_errmsg(connection), sql);
  return StatementHandle(statement);
}

bool step(sqlite3_stmt* statement) {
  switch (sqlite3_step(statement)) {
    case SQLITE_ROW:
      return true;
    case SQLITE_DONE:
      return false;
    case SQLITE_INTERRUPT:
      sqlite3_reset(statement);
      throw Cancelled(sqlite3_sql(statement));
    default: {
      const std::string text = sqlite3_errmsg(sqlite3_db_handle(statement));
      sqlite3_reset(statement);
      throw DatabaseError("HY000", 0, "the local repository: " + text, sqlite3_sql(statement));
    }
  }
}

std::string columnText(sqlite3_stmt* statement, int column) {
  const auto* text = sqlite3_column_text(statement, column);
  if (!text) return {};
  return {reinterpret_cast<const char*>(text),
          static_cast<std::size_t>(sqlite3_column_bytes(statement, column))};
}

}  // namespace kestrelix::repository_file
