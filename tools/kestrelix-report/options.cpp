#include "options.h"

#include <charconv>
#include <functional>
#include <map>

namespace kestrelix::report_tool {

const char* const kUsage =
    R"(kestrelix-report [options] command ...: the report without a window

options
  --repository FILE       a local repository file, or
  --tns NAME              a database by its TNS alias
  --user NAME             default PERFSTAT
  --password-file FILE    the password is the file's first line; else the variable
                          KESTRELIX_PASSWORD; else perfstat for a local file
  --format csv|text       default text

commands
  instances               the instances of the repository, with their index I
  pairs --instance I      the snapshot pairs of an instance, with their index P
  sections --instance I   the names of the Sections that the instance has
  section NAME --instance I --pair P [--row R] [--from P1] [--to P2]
                          the All view of a Section for a pair; with --row the
                          series that row R of that view leads to, over all pairs
                          or over those from P1 to P2
  chart NAME --instance I --pair P --row R --column C [--page N|start|end|max]
                          a page of 20 pairs of the chart of column C of that
                          series, "NO" being column 0: title, axis maximum, and
                          labels and values, as CSV
  sql NAME --instance I --pair P --row R [--shaped]
                          the stored text of the SQL in row R of an SQL ranking,
                          by its pieces or, shaped, by the statement's own lines
  plan NAME --instance I --pair P --row R
                          the execution plans that it used in the pair
  check --tns NAME        tries the name, the driver, the login and each table in turn
                          and says what is missing
  statements [--version V]
                          every statement that the program can send, for all
                          versions or for 9, 10 or 11; needs no repository

Boxes go to standard error. Exit status: 0, 1 if there was a critical box, 2 for
wrong usage.
)";

namespace {

int number(const std::string& option, const std::string& text) {
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size() || value < 0)
    throw UsageError(option + " takes a whole number from 0, not '" + text + "'");
  return value;
}

}  // namespace

Options parseOptions(const std::vector<std::string>& arguments) {
  Options options;
  using Set = std::function<void(const std::string&)>;
  const auto text = [](std::string& target) -> Set {
    return [&target](const std::string& v) { target = v; };
  };
  const auto whole = [](const std::string& option, std::optional<int>& target) -> Set {
    return [option, &target](const std::string& v) { target = number(option, v); };
  };
  const std::map<std::string, Set> valued{
      {"--repository", text(options.repository)},
      {"--tns", text(options.tns)},
      {"--user", text(options.user)},
      {"--password-file", text(options.passwordFile)},
      {"--format",
       [&](const std::string& v) {
         if (v != "csv" && v != "text") throw UsageError("--format is csv or text, not '" + v + "'");
         options.csv = v == "csv";
       }},
      {"--instance", whole("--instance", options.instance)},
      {"--pair", whole("--pair", options.pair)},
      {"--row", whole("--row", options.row)},
      {"--column", whole("--column", options.column)},
      {"--from", whole("--from", options.from)},
      {"--to", whole("--to", options.to)},
      {"--page", text(options.page)},
      {"--version", text(options.version)},
  };

  std::vector<std::string> words;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (argument == "--help" || argument == "-h") {
      options.help = true;
    } else if (argument == "--shaped") {
      options.shaped = true;
    } else if (const auto found = valued.find(argument); found != valued.end()) {
      if (++i == arguments.size()) throw UsageError(argument + " needs a value");
      found->second(arguments[i]);
    } else if (argument.starts_with('-')) {
      throw UsageError("there is no option " + argument);
    } else {
      words.push_back(argument);
    }
  }
  if (!words.empty()) options.command = words[0];
  if (words.size() > 1) options.name = words[1];
  if (words.size() > 2) throw UsageError("'" + words[2] + "' is one word too many");
  return options;
}

}  // namespace kestrelix::report_tool
