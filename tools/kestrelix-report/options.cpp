#include "options.h"

#include <iostream>

#include "platform/ascii.h"

namespace kestrelix::report_tool {
namespace {

constexpr const char* kAbout =
    R"(The report without a window.

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

}  // namespace

std::optional<Options> readOptions(std::span<const std::string> words) {
  Options options;
  std::string format;
  console::CommandLine line("kestrelix-report", kAbout);
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
