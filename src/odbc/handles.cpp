#include "odbc/handles.h"

#include "platform/database.h"

namespace kestrelix::odbc {

Handle::Handle(SQLSMALLINT type, SQLHANDLE parent) : type_(type) {
  if (!SQL_SUCCEEDED(SQLAllocHandle(type, parent, &handle_)))
    throw DatabaseError("HY001", 0, "ODBC gives no handle");
  if (type == SQL_HANDLE_ENV)
    check(SQLSetEnvAttr(handle_, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0));
}

Handle::~Handle() {
  if (type_ == SQL_HANDLE_DBC) SQLDisconnect(handle_);
  SQLFreeHandle(type_, handle_);
}

void Handle::check(SQLRETURN result, const std::string& statement) const {
  if (SQL_SUCCEEDED(result) || result == SQL_NO_DATA) return;
  SQLCHAR state[6] = "";
  SQLCHAR text[2048] = "";
  SQLINTEGER native = 0;
  SQLSMALLINT length = 0;
  if (!SQL_SUCCEEDED(SQLGetDiagRec(type_, handle_, 1, state, &native, text, sizeof text, &length)))
    throw DatabaseError("HY000", 0, "ODBC failed without telling why", statement);
  throw DatabaseError(reinterpret_cast<const char*>(state), native, reinterpret_cast<const char*>(text),
                      statement);
}

}  // namespace kestrelix::odbc
