#include "odbc/odbc_session.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <map>
#include <optional>

#include "odbc/connection_text.h"
#include "odbc/statement_text.h"
#include "odbc/utf16.h"
#include "platform/ascii.h"
#include "platform/result_rows.h"

namespace kestrelix::odbc {
namespace {

constexpr SQLULEN kLoginSeconds = 15;
constexpr SQLULEN kNumberDigits = 38;

/// The client's character set, unless the user has one: texts come and go as Unicode in any case, error texts
/// and the numbers' point don't.
void askForUnicode() { setenv("NLS_LANG", "AMERICAN_AMERICA.AL32UTF8", 0); }

/// A bind's value as the driver reads it during one execution.
struct BoundValue {
  std::vector<SQLWCHAR> wide;
  std::string narrow;
  SQLLEN length = SQL_NULL_DATA;
};

void bindValue(const Handle& statement, SQLUSMALLINT number, const Parameter& parameter, BoundValue& value) {
  const std::string& text = parameter.value();
  if (!text.empty()) value.length = SQL_NTS;
  if (parameter.serverType() == ServerType::Number) {
    value.narrow = text;
    const auto point = text.find('.');
    const auto scale = static_cast<SQLSMALLINT>(point == std::string::npos ? 0 : text.size() - point - 1);
    statement.check(SQLBindParameter(statement, number, SQL_PARAM_INPUT, SQL_C_CHAR, SQL_NUMERIC,
                                     kNumberDigits, scale, value.narrow.data(),
                                     static_cast<SQLLEN>(value.narrow.size() + 1), &value.length));
    return;
  }
  value.wide = toUtf16(text);
  const SQLULEN characters = std::max<SQLULEN>(1, value.wide.size() - 1);
  statement.check(SQLBindParameter(statement, number, SQL_PARAM_INPUT, SQL_C_WCHAR, SQL_VARCHAR, characters,
                                   0, value.wide.data(),
                                   static_cast<SQLLEN>(value.wide.size() * sizeof(SQLWCHAR)), &value.length));
}

/// The whole result, so that its statement is free to run again at once.
std::unique_ptr<Dynaset> fetchedRows(RowStream& stream) {
  std::vector<std::optional<std::string>> cells;
  std::size_t rows = 0;
  for (RowStream::Row row; stream.next(row); ++rows)
    std::move(row.begin(), row.end(), std::back_inserter(cells));
  return std::make_unique<ResultRows>(std::make_shared<const std::vector<std::string>>(stream.columns()),
                                      std::move(cells), rows);
}

const Handle& environment() {
  static const Handle handle(SQL_HANDLE_ENV, SQL_NULL_HANDLE);
  return handle;
}

/// The data source of that name as it is written, if there is one.
std::optional<std::string> dataSource(const std::string& name) {
  SQLCHAR source[256];
  SQLCHAR description[512];
  SQLSMALLINT length = 0;
  SQLSMALLINT ignored = 0;
  for (SQLUSMALLINT direction = SQL_FETCH_FIRST;
       SQL_SUCCEEDED(SQLDataSources(environment(), direction, source, sizeof source, &length, description,
                                    sizeof description, &ignored));
       direction = SQL_FETCH_NEXT) {
    const std::string found(reinterpret_cast<const char*>(source));
    if (asciiUpper(found) == asciiUpper(name)) return found;
  }
  return std::nullopt;
}

std::optional<std::string> oracleDriver() {
  SQLCHAR driver[256];
  SQLCHAR attributes[1024];
  SQLSMALLINT length = 0;
  SQLSMALLINT ignored = 0;
  for (SQLUSMALLINT direction = SQL_FETCH_FIRST;
       SQL_SUCCEEDED(SQLDrivers(environment(), direction, driver, sizeof driver, &length, attributes,
                                sizeof attributes, &ignored));
       direction = SQL_FETCH_NEXT) {
    const std::string found(reinterpret_cast<const char*>(driver));
    if (asciiUpper(found).find("ORACLE") != std::string::npos) return found;
  }
  return std::nullopt;
}

}  // namespace

class OdbcDatabase::Connection {
 public:
  explicit Connection(const std::string& connectionText) : handle_(SQL_HANDLE_DBC, environment()) {
    SQLSetConnectAttr(handle_, SQL_ATTR_LOGIN_TIMEOUT, reinterpret_cast<SQLPOINTER>(kLoginSeconds), 0);
    SQLSetConnectAttr(handle_, SQL_ATTR_ACCESS_MODE, reinterpret_cast<SQLPOINTER>(SQL_MODE_READ_ONLY), 0);
    auto text = toUtf16(connectionText);
    handle_.check(SQLDriverConnectW(handle_, nullptr, text.data(), static_cast<SQLSMALLINT>(text.size() - 1),
                                    nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT));
  }

  std::unique_ptr<RowStream> run(const std::string& sql, const Parameters& parameters,
                                 RunningStatement& running) {
    Prepared& prepared = prepare(sql, running);
    SQLFreeStmt(prepared.handle, SQL_CLOSE);
    SQLFreeStmt(prepared.handle, SQL_RESET_PARAMS);
    std::vector<BoundValue> values(prepared.binds.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
      const Parameter* parameter = parameters.find(prepared.binds[i]);
      if (parameter == nullptr)
        throw DatabaseError("07002", 1008, "the bind " + prepared.binds[i] + " has no value", sql);
      bindValue(prepared.handle, static_cast<SQLUSMALLINT>(i + 1), *parameter, values[i]);
    }
    ++executions_;
    prepared.handle.wait(running, sql, [&] { return SQLExecute(prepared.handle); });
    return std::make_unique<RowStream>(prepared.handle, sql, running);
  }

  void count(const RowStream& rows) { executions_ += rows.fetches(); }
  long roundTrips() const { return executions_; }
  bool isLost() const {
    SQLUINTEGER dead = SQL_CD_FALSE;
    return SQL_SUCCEEDED(
               SQLGetConnectAttr(handle_, SQL_ATTR_CONNECTION_DEAD, &dead, SQL_IS_UINTEGER, nullptr)) &&
           dead == SQL_CD_TRUE;
  }

 private:
  struct Prepared {
    explicit Prepared(SQLHANDLE connection) : handle(SQL_HANDLE_STMT, connection) {}
    Handle handle;
    std::vector<std::string> binds;
  };

  Prepared& prepare(const std::string& sql, RunningStatement& running) {
    if (const auto known = prepared_.find(sql); known != prepared_.end()) return *known->second;
    const MarkedStatement marked = markBinds(sql);
    auto prepared = std::make_unique<Prepared>(handle_.get());
    prepared->binds = marked.binds;
    // A brace outside of a text begins no escape sequence of ODBC's here.
    SQLSetStmtAttr(prepared->handle, SQL_ATTR_NOSCAN, reinterpret_cast<SQLPOINTER>(SQL_NOSCAN_ON), 0);
    SQLSetStmtAttr(prepared->handle, SQL_ATTR_CURSOR_TYPE,
                   reinterpret_cast<SQLPOINTER>(SQL_CURSOR_FORWARD_ONLY), 0);
    SQLSetStmtAttr(prepared->handle, SQL_ATTR_CONCURRENCY, reinterpret_cast<SQLPOINTER>(SQL_CONCUR_READ_ONLY),
                   0);
    auto text = toUtf16(marked.text);
    ++executions_;
    prepared->handle.wait(running, sql, [&] {
      return SQLPrepareW(prepared->handle, text.data(), static_cast<SQLINTEGER>(text.size() - 1));
    });
    return *prepared_.emplace(sql, std::move(prepared)).first->second;
  }

  Handle handle_;
  std::map<std::string, std::unique_ptr<Prepared>> prepared_;
  long executions_ = 0;
};

OdbcDatabase::OdbcDatabase(const std::string& connectionText) {
  askForUnicode();
  connection_ = std::make_unique<Connection>(connectionText);
}

OdbcDatabase::~OdbcDatabase() = default;

std::unique_ptr<RowStream> OdbcDatabase::run(const std::string& sql) {
  return connection_->run(sql, parameters(), running_);
}

void OdbcDatabase::cancel() { running_.cancel(); }

std::unique_ptr<Dynaset> OdbcDatabase::DbCreateDynaset(const std::string& sql, long /*options*/) {
  const RunningStatement::Run running(running_);
  const auto rows = run(sql);
  auto fetched = fetchedRows(*rows);
  connection_->count(*rows);
  return fetched;
}

bool OdbcDatabase::isLost() const { return connection_->isLost(); }

long OdbcDatabase::roundTrips() const { return connection_->roundTrips(); }

std::unique_ptr<OdbcDatabase> openOdbc(const std::string& name, const std::string& connect) {
  const Credentials credentials = splitConnect(connect);
  if (const auto source = dataSource(name))
    return std::make_unique<OdbcDatabase>(dataSourceText(*source, credentials));
  if (const auto driver = oracleDriver(); driver && !name.empty())
    return std::make_unique<OdbcDatabase>(oracleDriverText(*driver, name, credentials));
  throw DatabaseError(
      "IM002", 12154,
      "there is no ODBC data source '" + name + "', and no ODBC driver for Oracle is installed");
}

std::unique_ptr<Database> OdbcSession::OpenDatabase(const std::string& name, const std::string& connect,
                                                    long /*options*/) {
  return openOdbc(name, connect);
}

std::string leadsTo(const std::string& name) {
  if (const auto source = dataSource(name)) return "the ODBC data source " + *source;
  if (const auto driver = oracleDriver(); driver && !name.empty()) return "the ODBC driver " + *driver;
  return {};
}

}  // namespace kestrelix::odbc
