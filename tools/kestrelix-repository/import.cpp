// kestrelix-repository import: a repository from a folder of CSV files.
#include <iostream>
#include <string>

#include "commands.h"
#include "interrupt.h"
#include "platform/embedded/import/importer.h"
#include "progress.h"

namespace kestrelix {

namespace {

constexpr const char* kHelp =
    "usage: kestrelix-repository import DIR FILE [--user NAME] [--password-stdin] [--keep-unknown] "
    "[--force]\n\n"
    "Makes the local repository FILE from the *.csv files of DIR, one for each table: stats$sysstat.csv,\n"
    "V$LOCK_TYPE.CSV and so on, UTF-8, the column names in the first line. Any of a release's tables and "
    "columns\n"
    "will do. An empty field is NULL, a date is YYYY-MM-DD HH24:MI:SS, a RAW is hex digits. A column that no "
    "release\n"
    "has is kept: as a number if all its values are written in plain digits, else as text. Where release 11 "
    "has no\n"
    "stats$bg_event_summary, it is made of stats$system_event.\n\n"
    "  --user NAME       the file's account (PERFSTAT)\n"
    "  --password-stdin  its password is the first line of the standard input (perfstat)\n"
    "  --keep-unknown    keep tables that no release has, which are refused else\n"
    "  --force           replace FILE if it is there, once the new one is whole\n";

int wrongUsage(const std::string& why) {
  std::cerr << why << "\n\n" << kHelp;
  return kExitWrongUsage;
}

}  // namespace

int importCommand(std::span<const std::string> arguments) {
  embedded::ImportOptions options;
  std::vector<std::string> plain;
  bool force = false;
  bool asksPassword = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& word = arguments[i];
    if (word == "--help" || word == "-h") {
      std::cout << kHelp;
      return kExitDone;
    }
    if (word == "--force")
      force = true;
    else if (word == "--keep-unknown")
      options.keepUnknown = true;
    else if (word == "--password-stdin")
      asksPassword = true;
    else if (word == "--user" && i + 1 < arguments.size())
      options.account.user = arguments[++i];
    else if (word.starts_with("-"))
      return wrongUsage(word == "--user" ? "--user needs a name" : "unknown option: " + word);
    else
      plain.push_back(word);
  }
  if (plain.size() != 2) return wrongUsage("a folder and a file are needed");
  // A login is written as user/password and is parted at the first slash.
  if (options.account.user.empty() || options.account.user.find('/') != std::string::npos)
    return wrongUsage("a user name is not empty and has no slash");
  if (asksPassword) {
    options.account.password.clear();
    std::getline(std::cin, options.account.password);
    if (options.account.password.ends_with('\r')) options.account.password.pop_back();
    if (options.account.password.empty()) return wrongUsage("no password on the standard input");
  }
  if (!force && refuseToReplace(plain[1])) return kExitFailed;
  options.existing = force ? embedded::Existing::Replace : embedded::Existing::Keep;
  watchInterrupts();
  std::int64_t rows = 0;
  std::vector<embedded::ImportedTable> tables;
  {
    ProgressBar bar("import");
    tables = embedded::importFolder(plain[0], plain[1], options, [&](std::int64_t done, std::int64_t all) {
      checkInterrupts();
      bar.show(done, all);
    });
  }
  for (const auto& table : tables) {
    rows += table.rows;
    if (table.endsInLine)
      std::cerr << table.name << ": the last line of its file has no end; is the file whole?\n";
  }
  std::cout << plain[1] << ": " << tables.size() << " tables, " << rows << " rows\n";
  return kExitDone;
}

}  // namespace kestrelix
