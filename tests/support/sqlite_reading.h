// Looks into a repository file with SQLite alone.
#pragma once

#include <sqlite3.h>

#include <filesystem>
#include <string>
#include <vector>

namespace kestrelix::repository_file {

using Texts = std::vector<std::string>;

/// First column of every row of a query, as text; what SQLite says where it refuses the query.
inline Texts readTexts(const std::filesystem::path& path, const std::string& sql) {
  sqlite3* connection = nullptr;
  sqlite3_stmt* statement = nullptr;
  sqlite3_open_v2(path.c_str(), &connection, SQLITE_OPEN_READONLY, nullptr);
  Texts result;
  if (sqlite3_prepare_v2(connection, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK)
    result.emplace_back(sqlite3_errmsg(connection));
  while (statement != nullptr && sqlite3_step(statement) == SQLITE_ROW) {
    const unsigned char* text = sqlite3_column_text(statement, 0);
    result.emplace_back(text == nullptr ? "(null)" : reinterpret_cast<const char*>(text));
  }
  sqlite3_finalize(statement);
  sqlite3_close(connection);
  return result;
}

}  // namespace kestrelix::repository_file
