// query FILE 'select ...': runs Oracle SQL on a repository file and prints its rows as CSV (RFC 4180).
#include <iostream>
#include <optional>
#include <span>
#include <stdexcept>
#include <utility>
#include <vector>

#include "commands.h"
#include "documents/csv.h"
#include "platform/embedded/local_database.h"

namespace kestrelix {
namespace {

constexpr const char* kUsage =
    "usage: kestrelix-repository query FILE 'select ...' [--bind NAME=VALUE]... [--explain]\n"
    "\n"
    "Runs one Oracle query on a repository file. The first line of the CSV is the column names, a NULL is "
    "an\n"
    "empty field.\n"
    "\n"
    "  --bind NAME=VALUE    binds :NAME; a value that looks like a number is one, any other is a text\n"
    "  --bind NAME:s=VALUE  binds the text VALUE, whatever it looks like\n"
    "  --bind NAME:n=VALUE  binds the number VALUE\n"
    "                       an empty VALUE binds NULL\n"
    "  --explain            prints what SQLite is asked to run and runs nothing\n";

struct Request {
  std::string file;
  std::string sql;
  std::vector<std::string> binds;
  bool explain = false;
};

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

/// A statement may begin with a comment, which no option has blanks or line ends of.
bool isOption(const std::string& word) {
  return word.starts_with("--") && word.find_first_of(" \t\r\n") == std::string::npos;
}

/// Nothing for wrong usage, which has been told then.
std::optional<Request> requestOf(std::span<const std::string> arguments) {
  Request request;
  int plain = 0;
  const auto wrong = [](const std::string& why) {
    std::cerr << why << "\n\n" << kUsage;
    return std::nullopt;
  };
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const auto& word = arguments[i];
    if (word == "--explain") {
      request.explain = true;
    } else if (word == "--bind" && i + 1 < arguments.size()) {
      request.binds.push_back(arguments[++i]);
    } else if (isOption(word)) {
      return wrong(word == "--bind" ? "--bind needs NAME=VALUE" : "unknown option: " + word);
    } else if (plain == 2) {
      return wrong("one file and one statement are enough: " + word);
    } else {
      (plain++ == 0 ? request.file : request.sql) = word;
    }
  }
  if (plain != 2) return wrong("a file and a statement are needed");
  return request;
}

/// False when `text` is no NAME=VALUE. Fails with DatabaseError for a name that is there already, and a
/// number that is none.
bool addBind(Parameters& parameters, const std::string& text) {
  const auto equals = text.find('=');
  if (equals == std::string::npos || equals == 0) return false;
  std::string name = text.substr(0, equals);
  const std::string value = text.substr(equals + 1);
  ServerType type = value.empty() || looksLikeNumber(value) ? ServerType::Number : ServerType::String;
  if (name.size() > 2 && name[name.size() - 2] == ':') {
    if (name.back() != 's' && name.back() != 'n') return false;
    type = name.back() == 's' ? ServerType::String : ServerType::Number;
    name.resize(name.size() - 2);
  }
  parameters.Add(name, 0, 1);
  parameters(name).serverType(type);
  parameters(name).value(value);
  return true;
}

}  // namespace

int queryCommand(std::span<const std::string> arguments) {
  for (const auto& word : arguments)
    if (word == "--help") {
      std::cout << kUsage;
      return kExitDone;
    }
  const auto request = requestOf(arguments);
  if (!request) return kExitWrongUsage;
  embedded::LocalDatabase database(request->file);
  for (const auto& bind : request->binds) {
    std::string why;
    try {
      if (!addBind(database.parameters(), bind)) why = "no bind: " + bind;
    } catch (const DatabaseError& error) {
      why = error.what();
    }
    if (why.empty()) continue;
    std::cerr << why << "\n\n" << kUsage;
    return kExitWrongUsage;
  }
  if (request->explain) {
    std::cout << database.loweredText(request->sql) << "\n";
    return kExitDone;
  }
  bool headed = false;
  const auto names = database.stream(request->sql, [&](const auto& columns, const auto row) {
    if (!std::exchange(headed, true)) documents::writeCsvLine(std::cout, columns);
    documents::writeCsvLine(std::cout, row);
    if (!std::cout) throw std::runtime_error("the standard output cannot be written");
  });
  if (!headed) documents::writeCsvLine(std::cout, names);
  return kExitDone;
}

}  // namespace kestrelix
