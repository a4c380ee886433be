// kestrelix-repository copy: a local repository from a server.
#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <iostream>
#include <map>
#include <optional>

#include "commands.h"
#include "interrupt.h"
#include "platform/ascii.h"
#include "platform/embedded/writing/repository_writer.h"
#include "platform/odbc/odbc_session.h"
#include "progress.h"
#include "statspack/release.h"

namespace kestrelix {
namespace {

constexpr const char* kHelp =
    R"(usage: kestrelix-repository copy --tns NAME --user U FILE [--dbid D] [--instance N] [--from ID] [--to ID]
                                 [--password-stdin] [--force]

Brings the stats$ tables of a server into the local repository FILE, through ODBC as kestrelix itself would.
What the server lacks is skipped and said.

  --tns NAME        an ODBC data source, or a net service name for Oracle's driver
  --user U          the user to log on as; the password is the variable KESTRELIX_PASSWORD
  --password-stdin  the password is the first line of the standard input
  --dbid D          only the database with this DBID
  --instance N      only this instance
  --from ID         only snapshots from this one on
  --to ID           only snapshots up to this one
  --force           replace FILE if it is there, once the new one is whole

The account of FILE is PERFSTAT, password perfstat.
)";

class CopyError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct CopyOptions {
  std::string tns;
  std::string user;
  std::string file;
  bool passwordFromInput = false;
  bool force = false;
  /// By the column that each narrows, with its comparison: "snap_id >= ".
  std::vector<std::pair<std::string, std::string>> filters;
};

bool isWhole(const std::string& text) {
  std::int64_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  return error == std::errc() && end == text.data() + text.size();
}

/// Nothing for wrong usage, which has been told then.
std::optional<CopyOptions> parse(std::span<const std::string> arguments) {
  const std::map<std::string, std::string> filters{{"--dbid", "dbid = "},
                                                   {"--instance", "instance_number = "},
                                                   {"--from", "snap_id >= "},
                                                   {"--to", "snap_id <= "}};
  CopyOptions options;
  const auto wrong = [](const std::string& why) {
    std::cerr << why << "\n\n" << kHelp;
    return std::nullopt;
  };
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& word = arguments[i];
    if (word == "--force") {
      options.force = true;
    } else if (word == "--password-stdin") {
      options.passwordFromInput = true;
    } else if (word.starts_with("--")) {
      const auto filter = filters.find(word);
      if (word != "--tns" && word != "--user" && filter == filters.end())
        return wrong("unknown option: " + word);
      if (++i == arguments.size()) return wrong(word + " needs a value");
      if (word == "--tns") options.tns = arguments[i];
      if (word == "--user") options.user = arguments[i];
      if (filter != filters.end()) {
        if (!isWhole(arguments[i])) return wrong(word + " takes a whole number");
        options.filters.emplace_back(filter->second, arguments[i]);
      }
    } else if (options.file.empty()) {
      options.file = word;
    } else {
      return wrong("one file is enough: " + word);
    }
  }
  if (options.tns.empty() || options.user.empty() || options.file.empty())
    return wrong("--tns, --user and a file are needed");
  return options;
}

std::string password(const CopyOptions& options) {
  std::string text;
  if (options.passwordFromInput) {
    std::getline(std::cin, text);
    if (text.ends_with('\r')) text.pop_back();
  } else if (const char* variable = std::getenv("KESTRELIX_PASSWORD")) {
    text = variable;
  }
  return text;
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
  for (const auto& [comparison, value] : options.filters) {
    const std::string column = comparison.substr(0, comparison.find(' '));
    if (std::find(columns.begin(), columns.end(), column) == columns.end()) continue;
    text += joint + comparison + value;
    joint = " and ";
  }
  return text;
}

/// Copies one table; gives its rows.
std::int64_t copyTable(odbc::OdbcDatabase& database, embedded::RepositoryWriter& writer,
                       const statspack::Table& known, const std::vector<std::string>& names,
                       const CopyOptions& options) {
  std::vector<embedded::NewColumn> columns;
  for (const std::string& name : names) {
    const statspack::Column* column = known.column(name);
    // A column that no release has is kept as the text that the server gives.
    columns.push_back({name, column == nullptr ? statspack::Type::Varchar2 : column->type});
  }
  embedded::TableWriter& table = writer.addTable(known.name, columns);
  std::vector<embedded::Cell> cells(columns.size());
  std::vector<std::string> scratch(columns.size());
  std::int64_t rows = 0;
  database.stream(statementFor(known.name, names, options), [&](const auto&,
                                                                const odbc::RowStream::Row& row) {
    for (std::size_t i = 0; i < cells.size(); ++i) {
      try {
        cells[i] = row[i] ? embedded::Cell::fromText(columns[i].type, *row[i], scratch[i]) : embedded::Cell();
      } catch (const embedded::BadValue& error) {
        throw CopyError(known.name + ", column " + columns[i].name + ", value '" + *row[i] +
                        "': " + error.what());
      }
    }
    table.insert(cells);
    ++rows;
    checkInterrupts();
  });
  return rows;
}

}  // namespace

int copyCommand(std::span<const std::string> arguments) {
  if (!arguments.empty() && (arguments[0] == "--help" || arguments[0] == "-h")) {
    std::cout << kHelp;
    return kExitDone;
  }
  const auto options = parse(arguments);
  if (!options) return kExitWrongUsage;
  if (!options->force && refuseToReplace(options->file)) return kExitFailed;
  const auto database =
      odbc::openOdbc(asciiUpper(options->tns), asciiUpper(options->user) + "/" + password(*options));
  watchInterrupts();
  embedded::RepositoryWriter writer(options->file, {}, "kestrelix-repository copy",
                                    options->force ? embedded::Existing::Replace : embedded::Existing::Keep);
  const auto& tables = statspack::everyRelease().tables();
  std::int64_t rows = 0;
  std::int64_t copied = 0;
  {
    ProgressBar bar("copy");
    for (std::size_t i = 0; i < tables.size(); ++i) {
      checkInterrupts();
      bar.show(static_cast<std::int64_t>(i), static_cast<std::int64_t>(tables.size()));
      const auto columns = columnsOf(*database, tables[i].name);
      if (!columns) continue;
      rows += copyTable(*database, writer, tables[i], *columns, *options);
      ++copied;
    }
  }
  if (copied == 0) throw CopyError(options->tns + " has none of the tables; nothing was made");
  writer.finish(checkInterrupts);
  std::cout << options->file << ": " << copied << " tables, " << rows << " rows\n";
  return kExitDone;
}

}  // namespace kestrelix
