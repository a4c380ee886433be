#include "options.h"

#include <iostream>

#include "commands.h"
#include "platform/ascii.h"

namespace kestrelix::report_tool {
namespace {

constexpr const char* kExitStatus =
    R"(
Boxes go to standard error. Exit status: 0, 1 if there was a critical box, 2 for
wrong usage.
)";

}  // namespace

std::optional<Options> readOptions(std::span<const std::string> words) {
  Options options;
  std::string format;
  console::CommandLine line("kestrelix-report",
                            "The report without a window.\n\n" + commandHelp() + kExitStatus);
  line.word("COMMAND", options.command)
      .optionalWord("NAME", options.name)
      .text("--repository", "FILE", options.repository, "a local repository file, or")
      .text("--tns", "NAME", options.tns, "a database by its TNS alias")
      .text("--user", "NAME", options.user, "default PERFSTAT");
  console::addPasswordOptions(line, options.password, ", else perfstat for a local file");
  line.choice("--format", {"csv", "text"}, format, "default text")
      .whole<int>("--instance", "I", options.instance, "the instance, from 0")
      .whole<int>("--pair", "P", options.pair, "the pair, from 0")
      .whole<int>("--row", "R", options.row, "the row of the view, from 1")
      .whole<int>("--column", "C", options.column, "the column of the series, from 0")
      .whole<int>("--from", "P1", options.from, "the first pair of the range")
      .whole<int>("--to", "P2", options.to, "the last pair of the range")
      .text("--page", "N", options.page, "the page of the chart, from 1, or start, end or max; default start")
      .flag("--shaped", options.shaped, "the SQL by its own lines")
      .choice("--version", {"9", "10", "11"}, options.version, "the statements for this release alone");
  if (!line.read(words, std::cout)) return std::nullopt;
  options.csv = format == "csv";
  return options;
}

std::string connectText(const Options& options) {
  const bool local = !options.repository.empty();
  return asciiUpper(options.user) + "/" + console::readPassword(options.password, local ? "perfstat" : "");
}

}  // namespace kestrelix::report_tool
