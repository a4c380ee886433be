// kestrelix-repository import: a repository from a folder of CSV files.
#include <iostream>
#include <string>

#include "commands.h"
#include "console/interrupt.h"
#include "console/password.h"
#include "console/progress.h"
#include "console/run.h"
#include "import/importer.h"

namespace kestrelix {
namespace {

constexpr const char* kAbout =
    R"(Makes the local repository FILE from the *.csv files of DIR, one for each table: stats$sysstat.csv,
V$LOCK_TYPE.CSV and so on, UTF-8, the column names in the first line. Any of a release's tables and columns
will do. An empty field is NULL, a date is YYYY-MM-DD HH24:MI:SS, a RAW is hex digits. A column that no release
has is kept: as a number if all its values are written in plain digits, else as text. Where release 11 has no
stats$bg_event_summary, it is made of stats$system_event.
)";

}  // namespace

int importCommand(std::span<const std::string> words) {
  std::string folder;
  NewFile file;
  console::PasswordSource password;
  importing::ImportOptions options;
  console::CommandLine line("kestrelix-repository import", kAbout);
  line.word("DIR", folder).word("FILE", file.name);
  line.text("--user", "NAME", options.account.user, "the file's account (PERFSTAT)");
  console::addPasswordOptions(line, password, ", else perfstat");
  line.flag("--keep-unknown", options.keepUnknown, "keep tables that no release has, which are refused else");
  file.addForceOption(line);
  if (!line.read(words, std::cout)) return console::kExitDone;
  // A login is written as user/password and is parted at the first slash.
  if (options.account.user.empty() || options.account.user.find('/') != std::string::npos)
    throw console::UsageError("a user name is not empty and has no slash");
  options.account.password = console::readPassword(password, options.account.password);
  if (options.account.password.empty()) throw console::UsageError("the password is empty");
  options.existing = file.existing();
  file.watchInterrupts();
  std::int64_t rows = 0;
  std::vector<importing::ImportedTable> tables;
  {
    console::ProgressBar bar("import");
    tables = importing::importFolder(folder, file.name, options, bar);
    console::interruptsEndNothingMore();
  }
  for (const auto& table : tables) {
    rows += table.rows;
    if (table.endsInLine)
      std::cerr << table.name << ": the last line of its file has no end; is the file whole?\n";
  }
  std::cout << file.name << ": " << tables.size() << " tables, " << rows << " rows\n";
  return console::kExitDone;
}

}  // namespace kestrelix
