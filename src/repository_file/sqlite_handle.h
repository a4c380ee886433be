// Owners of SQLite's connection and statement handles.
#pragma once

#include <sqlite3.h>

#include <memory>
#include <string>

namespace kestrelix::repository_file {

struct CloseConnection {
  void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
};
using ConnectionHandle = std::unique_ptr<sqlite3, CloseConnection>;

struct FinalizeStatement {
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using StatementHandle = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

/// Prepares one statement; throws DatabaseError with SQLite's own text when it does not stand, and Cancelled
/// when it was interrupted.
StatementHandle prepare(sqlite3* connection, const std::string& sql);

/// Moves to the next row and tells whether there is one; throws DatabaseError when the file cannot be read,
/// and Cancelled when it was interrupted.
bool step(sqlite3_stmt* statement);

/// Column `column` of the current row as text; NULL gives the empty text.
std::string columnText(sqlite3_stmt* statement, int column);

}  // namespace kestrelix::repository_file
