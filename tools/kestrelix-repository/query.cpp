// query FILE 'select ...': runs Oracle SQL on a repository file and prints its rows as CSV (RFC 4180).
#include <iostream>
#include <utility>
#include <vector>

#include "commands.h"
#include "console/run.h"
#include "documents/csv.h"
#include "repository_file/local_database.h"

namespace kestrelix {
namespace {

constexpr const char* kAbout =
    R"(Runs one Oracle query on a repository file. The first line of the CSV is the column names, a NULL is an
empty field.
)";

constexpr const char* kBindHelp =
    R"(binds :NAME; a value that looks like a number is one, any other is a text.
NAME:s=VALUE binds the text VALUE, whatever it looks like, NAME:n=VALUE the
number VALUE; an empty VALUE binds NULL)";

bool looksLikeNumber(const std::string& text) {
  std::size_t i = !text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0;
  bool digit = false;
  bool point = false;
  for (; i < text.size(); ++i) {
    if (text[i] == '.' && !point)
      point = true;
    else if (text[i] >= '0' && text[i] <= '9')
      digit = true;
    else
      return false;
  }
  return digit;
}

/// Fails with UsageError for what is no NAME=VALUE, a name that is there already, and a number that is none.
void addBind(Parameters& parameters, const std::string& text) {
  const auto equals = text.find('=');
  if (equals == std::string::npos || equals == 0) throw console::UsageError("no bind: " + text);
  std::string name = text.substr(0, equals);
  const std::string value = text.substr(equals + 1);
  ServerType type = value.empty() || looksLikeNumber(value) ? ServerType::Number : ServerType::String;
  if (name.size() > 2 && name[name.size() - 2] == ':') {
    if (name.back() != 's' && name.back() != 'n') throw console::UsageError("no bind: " + text);
    type = name.back() == 's' ? ServerType::String : ServerType::Number;
    name.resize(name.size() - 2);
  }
  try {
    parameters.Add(name, 0, 1);
    parameters(name).serverType(type);
    parameters(name).value(value);
  } catch (const DatabaseError& error) {
    throw console::UsageError(error.what());
  }
}

}  // namespace

int queryCommand(std::span<const std::string> words) {
  std::string file;
  std::string sql;
  std::vector<std::string> binds;
  bool explain = false;
  console::CommandLine line("kestrelix-repository query", kAbout);
  line.word("FILE", file)
      .word("'select ...'", sql)
      .texts("--bind", "NAME=VALUE", binds, kBindHelp)
      .flag("--explain", explain, "prints what SQLite is asked to run and runs nothing");
  if (!line.read(words, std::cout)) return console::kExitDone;
  repository_file::LocalDatabase database(file);
  for (const auto& bind : binds) addBind(database.parameters(), bind);
  if (explain) {
    std::cout << database.loweredText(sql) << "\n";
    return console::kExitDone;
  }
  bool headed = false;
  const auto names = database.stream(sql, [&](const auto& columns, const auto row) {
    if (!std::exchange(headed, true)) documents::writeCsvLine(std::cout, columns);
    documents::writeCsvLine(std::cout, row);
    console::checkOutput();
  });
  if (!headed) documents::writeCsvLine(std::cout, names);
  return console::kExitDone;
}

}  // namespace kestrelix
