// ODBC handles that free themselves, and ODBC's diagnostics as DatabaseError.
#pragma once

#include <sql.h>
#include <sqlext.h>

#include <string>

#include "platform/running_statement.h"

namespace kestrelix::odbc {

/// One handle of SQL_HANDLE_ENV, SQL_HANDLE_DBC or SQL_HANDLE_STMT.
class Handle {
 public:
  /// Fails with DatabaseError. `parent` is SQL_NULL_HANDLE for an environment.
  Handle(SQLSMALLINT type, SQLHANDLE parent);
  ~Handle();
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  SQLHANDLE get() const { return handle_; }
  operator SQLHANDLE() const { return handle_; }

  /// Fails with DatabaseError, of the handle's first diagnostic record, unless `result` is a success.
  void check(SQLRETURN result, const std::string& statement = {}) const;
  /// Makes a call on this statement's handle that may wait for the server. The result has been checked; it
  /// fails with Cancelled, whatever the driver tells, when the statement was cancelled by the call's end.
  template <class OdbcCall>
  SQLRETURN wait(RunningStatement& running, const std::string& statement, OdbcCall&& call) const {
    const SQLRETURN result = [&] {
      const RunningStatement::Call waiting(
          running, [this] { SQLCancel(handle_); }, statement);
      return call();
    }();
    running.check(statement);
    check(result, statement);
    return result;
  }

 private:
  SQLSMALLINT type_;
  SQLHANDLE handle_ = SQL_NULL_HANDLE;
};

}  // namespace kestrelix::odbc
