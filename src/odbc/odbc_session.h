// Oracle servers, and any other that ODBC reaches, behind the interface of platform/database.h.
#pragma once

#include <memory>
#include <string>

#include "odbc/row_stream.h"
#include "platform/database.h"

namespace kestrelix::odbc {

/// An open connection. Statements are prepared once a text and kept.
class OdbcDatabase final : public Database {
 public:
  /// Connects with an ODBC connection string; asks for read-only access and waits 15 seconds at most.
  explicit OdbcDatabase(const std::string& connectionText);
  ~OdbcDatabase() override;

  std::unique_ptr<Dynaset> DbCreateDynaset(const std::string& sql, long options) override;
  void cancel() override;

  /// Runs a query and hands each row to `take`, without keeping them: for results of any length.
  template <class Take>
  void stream(const std::string& sql, Take&& take) {
    const RunningStatement::Run running(running_);
    const auto rows = run(sql);
    RowStream::Row row;
    while (rows->next(row)) take(rows->columns(), row);
  }
  /// Whether the driver knows that the connection has broken.
  bool isLost() const;
  /// Requests that have gone to the server: preparations, executions and fetches.
  long roundTrips() const;

 private:
  class Connection;
  std::unique_ptr<RowStream> run(const std::string& sql);

  RunningStatement running_;
  std::unique_ptr<Connection> connection_;
};

/// Finds a database by its name: an ODBC data source of that name (without regard to case), or else the
/// installed driver whose name contains "Oracle", with the name as its net service name. ODBC's own
/// configuration is the only one.
class OdbcSession final : public Session {
 public:
  std::unique_ptr<Database> OpenDatabase(const std::string& name, const std::string& connect,
                                         long options) override;
};

/// The same, for whoever needs more than the interface.
std::unique_ptr<OdbcDatabase> openOdbc(const std::string& name, const std::string& connect);
/// What the name leads to, in words: "the ODBC data source PROD", "the ODBC driver Oracle 19"; empty if to
/// nothing.
std::string leadsTo(const std::string& name);

}  // namespace kestrelix::odbc
