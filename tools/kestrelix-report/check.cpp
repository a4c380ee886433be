#include "check.h"

#include <iostream>
#include <set>

#include "app/back_ends.h"
#include "navigation/version_gate.h"
#include "platform/ascii.h"
#include "report_run.h"
#include "statspack/release.h"

namespace kestrelix::report_tool {
namespace {

class CheckFailed : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

std::string whereTo(const Options& options, const std::string& name) {
  if (!options.repository.empty()) return "the local file " + options.repository;
  if (const auto file = localRepository(programFolder(), name); !file.empty())
    return "the local file " + file.string();
  return odbc::leadsTo(name);
}

std::unique_ptr<Database> logOn(Session& session, const std::string& name, const std::string& connect) {
  try {
    return session.OpenDatabase(name, connect, kDatabaseOptions);
  } catch (const DatabaseError& error) {
    throw CheckFailed(std::string("login: failed: ") + error.what());
  }
}

/// The major versions of the instances that the repository tells of.
std::set<std::string> versions(Database& database) {
  std::set<std::string> majors;
  const auto rows =
      database.DbCreateDynaset("select distinct VERSION from stats$database_instance ", kDynasetOptions);
  for (; !rows->Eof(); rows->MoveNext()) majors.insert(majorVersion(rows->Fields("VERSION").value()));
  return majors;
}

/// The error of reading the table, empty if it can be read.
std::string unreadable(Database& database, const std::string& table) {
  try {
    database.DbCreateDynaset("select * from " + table + " where 1 = 0 ", kDynasetOptions);
    return {};
  } catch (const DatabaseError& error) {
    const std::string text = error.what();
    return text.substr(0, text.find('\n'));
  }
}

}  // namespace

void check(const Options& options, StderrBoxes& boxes) {
  if (options.repository.empty() == options.tns.empty())
    throw UsageError("name the database by one of --tns NAME and --repository FILE");
  const std::string name = options.repository.empty() ? asciiUpper(options.tns) : options.repository;
  const std::string way = whereTo(options, name);
  if (way.empty())
    throw CheckFailed("name: there is no local file, no ODBC data source and no Oracle driver for " + name);
  std::cout << "name: " << name << " leads to " << way << std::endl;

  const auto session =
      options.repository.empty() ? anySession(programFolder()) : repository_file::localSession(name);
  const auto database = logOn(*session, name, connectText(options));
  std::cout << "login: " << asciiUpper(options.user) << " is connected" << std::endl;

  if (const std::string error = unreadable(*database, "stats$database_instance"); !error.empty())
    throw CheckFailed("table stats$database_instance: " + error);
  int missing = 0;
  int releases = 0;
  std::set<std::string> majors;
  try {
    majors = versions(*database);
  } catch (const DatabaseError& error) {
    throw CheckFailed(std::string("table stats$database_instance: ") + error.what());
  }
  for (const std::string& major : majors) {
    const Failures refused = versionGate(major);
    showFailures(boxes, refused);
    if (!refused.empty()) continue;
    ++releases;
    for (const statspack::Table& table : statspack::release(major).tables()) {
      const std::string error = unreadable(*database, table.name);
      if (error.empty()) continue;
      ++missing;
      std::cout << "table " << table.name << " of release " << major << ": " << error << '\n';
    }
  }
  if (releases == 0) throw CheckFailed("stats$database_instance tells of no Oracle 9, 10 or 11 instance");
  if (missing > 0) throw CheckFailed(std::to_string(missing) + " tables can't be read");
  std::cout << "tables: all of them can be read\n";
}

}  // namespace kestrelix::report_tool
