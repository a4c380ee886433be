// kestrelix-repository copy: a local repository from a server.
#include <algorithm>
#include <iostream>
#include <optional>

#include "commands.h"
#include "console/interrupt.h"
#include "console/password.h"
#include "console/progress.h"
#include "console/run.h"
#include "odbc/odbc_session.h"
#include "platform/ascii.h"
#include "repository_file/writing/repository_writer.h"
#include "statspack/release.h"

namespace kestrelix {
namespace {

constexpr const char* kAbout =
    R"(Brings the stats$ tables of a server into the local repository FILE, through ODBC as kestrelix itself would.
What the server lacks is skipped and said. The account of FILE is PERFSTAT, password perfstat.
)";

class CopyError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct CopyOptions {
  std::string tns;
  std::string user;
  console::PasswordSource password;
  NewFile file;
  std::optional<std::int64_t> dbid;
  std::optional<std::int64_t> instance;
  std::optional<std::int64_t> from;
  std::optional<std::int64_t> to;
};

/// False when the help was asked for, which is printed then.
bool read(std::span<const std::string> words, CopyOptions& options) {
  console::CommandLine line("kestrelix-repository copy", kAbout);
  line.word("FILE", options.file.name)
      .text("--tns", "NAME", options.tns, "an ODBC data source, or a net service name for Oracle's driver")
      .text("--user", "U", options.user, "the user to log on as");
  console::addPasswordOptions(line, options.password, "");
  line.whole<std::int64_t>("--dbid", "D", options.dbid, "only the database with this DBID")
      .whole<std::int64_t>("--instance", "N", options.instance, "only this instance")
      .whole<std::int64_t>("--from", "ID", options.from, "only snapshots from this one on")
      .whole<std::int64_t>("--to", "ID", options.to, "only snapshots up to this one");
  options.file.addForceOption(line);
  if (!line.read(words, std::cout)) return false;
  if (options.tns.empty()) throw console::UsageError("--tns is needed");
  if (options.user.empty()) throw console::UsageError("--user is needed");
  return true;
}

/// Whether the server says that the table is not there, or not for this user: the states of syntax and access
/// errors of ODBC 3 and 2, ORA-00942 and ORA-01031, or the general state of drivers that have no other. What
/// else fails a line that broke, say, must not pass for a table that is missing.
bool tellsOfMissing(const DatabaseError& error) {
  const std::string& state = error.sqlState();
  for (const char* missing : {"42", "S0", "37", "HY000", "S1000"})
    if (state.starts_with(missing)) return true;
  return error.nativeCode() == 942 || error.nativeCode() == 1031;
}

/// The columns that the server has of a table, nothing where it lacks the table.
std::optional<std::vector<std::string>> columnsOf(odbc::OdbcDatabase& database, const std::string& table) {
  try {
    const auto rows = database.DbCreateDynaset("select * from " + table + " where 1 = 0", kDynasetOptions);
    std::vector<std::string> names;
    for (const std::string& name : rows->columns()) names.push_back(asciiLower(name));
    return names;
  } catch (const DatabaseError& error) {
    if (!tellsOfMissing(error) || database.isLost()) throw;
    const std::string text = error.what();
    std::cerr << table << ": skipped: " << text.substr(0, text.find('\n')) << '\n';
    return std::nullopt;
  }
}

std::string statementFor(const std::string& table, const std::vector<std::string>& columns,
                         const CopyOptions& options) {
  std::string text = "select ";
  for (std::size_t i = 0; i < columns.size(); ++i) text += (i == 0 ? "" : ", ") + columns[i];
  text += " from " + table;
  const char* joint = " where ";
  const auto narrow = [&](const char* column, const char* comparison,
                          const std::optional<std::int64_t>& value) {
    if (!value || std::find(columns.begin(), columns.end(), column) == columns.end()) return;
    text += joint + std::string(column) + comparison + std::to_string(*value);
    joint = " and ";
  };
  narrow("dbid", " = ", options.dbid);
  narrow("instance_number", " = ", options.instance);
  narrow("snap_id", " >= ", options.from);
  narrow("snap_id", " <= ", options.to);
  return text;
}

/// Copies one table; gives its rows.
std::int64_t copyTable(odbc::OdbcDatabase& database, repository_file::RepositoryWriter& writer,
                       const statspack::Table& known, const std::vector<std::string>& names,
                       const CopyOptions& options) {
  std::vector<repository_file::NewColumn> columns;
  for (const std::string& name : names) {
    const statspack::Column* column = known.column(name);
    // A column that no release has is kept as the text that the server gives.
    columns.push_back({name, column == nullptr ? statspack::Type::Varchar2 : column->type});
  }
  repository_file::TableWriter& table = writer.addTable(known.name, columns);
  std::vector<repository_file::Cell> cells(columns.size());
  std::vector<std::string> scratch(columns.size());
  std::int64_t rows = 0;
  database.stream(
      statementFor(known.name, names, options), [&](const auto&, const odbc::RowStream::Row& row) {
        for (std::size_t i = 0; i < cells.size(); ++i) {
          try {
            cells[i] = row[i] ? repository_file::Cell::fromText(columns[i].type, *row[i], scratch[i])
                              : repository_file::Cell();
          } catch (const repository_file::BadValue& error) {
            throw CopyError(known.name + ", column " + columns[i].name + ", value '" + *row[i] +
                            "': " + error.what());
          }
        }
        table.insert(cells);
        ++rows;
      });
  return rows;
}

}  // namespace

int copyCommand(std::span<const std::string> words) {
  CopyOptions options;
  if (!read(words, options)) return console::kExitDone;
  const repository_file::Existing existing = options.file.existing();
  const std::string login = asciiUpper(options.user) + "/" + console::readPassword(options.password, "");
  options.file.watchInterrupts();
  const auto database = odbc::openOdbc(asciiUpper(options.tns), login);
  const console::CancelledByInterrupts cancelled(*database);
  repository_file::RepositoryWriter writer(options.file.name, {}, "kestrelix-repository copy", existing);
  const auto& tables = statspack::everyRelease().tables();
  std::int64_t rows = 0;
  std::int64_t copied = 0;
  {
    console::ProgressBar bar("copy");
    for (std::size_t i = 0; i < tables.size(); ++i) {
      advance(bar, static_cast<std::int64_t>(i), static_cast<std::int64_t>(tables.size()));
      const auto columns = columnsOf(*database, tables[i].name);
      if (!columns) continue;
      rows += copyTable(*database, writer, tables[i], *columns, options);
      ++copied;
    }
    if (copied == 0) throw CopyError(options.tns + " has none of the tables; nothing was made");
    writer.finish(bar);
    console::interruptsEndNothingMore();
  }
  std::cout << options.file.name << ": " << copied << " tables, " << rows << " rows\n";
  return console::kExitDone;
}

}  // namespace kestrelix
