#include "commands.h"

#include <iostream>

#include "chart.h"
#include "check.h"
#include "console/help_list.h"
#include "report_run.h"
#include "sections/EveryStatement.h"
#include "sections/SectionList.h"
#include "sections/sql/clsSQLShaping.h"

namespace kestrelix::report_tool {
namespace {

void instances(const Options& options, StderrBoxes& boxes) {
  ReportRun run(boxes, options);
  run.loadInstances();
  const clsDbInstance& rows = *run.repository().gDbInstance;
  Table table{
      {"INDEX", "DBID", "DB_NAME", "VERSION", "INSTANCE_NUMBER", "INSTANCE_NAME", "HOST_NAME", "RAC"}};
  for (int i = 0; i < rows.rownum(); ++i)
    table.push_back({std::to_string(i), rows.dbid(i), rows.DB_NAME(i), rows.VERSION(i),
                     rows.INSTANCE_NUMBER(i), rows.INSTANCE_NAME(i), rows.HOST_NAME(i), rows.PARALLEL(i)});
  print(std::cout, table, options.csv);
}

void pairs(const Options& options, StderrBoxes& boxes) {
  ReportRun run(boxes, options);
  run.loadInstance();
  const clsSnapId& rows = *run.repository().gSnapId;
  Table table{{"INDEX", "START TIME", "END TIME", "START ID", "END ID", "STATUS"}};
  for (int i = 0; i < rows.rownum(); ++i)
    table.push_back({std::to_string(i + options.from.value_or(0)), rows.START_SNAP_TIME(i),
                     rows.END_SNAP_TIME(i), rows.START_SNAP_ID(i), rows.END_SNAP_ID(i),
                     rows.REPORT_STATUS(i)});
  print(std::cout, table, options.csv);
}

void sections(const Options& options, StderrBoxes& boxes) {
  ReportRun run(boxes, options);
  run.loadInstance();
  for (const Section& section : sectionList())
    if (run.isListed(section)) std::cout << section.text << '\n';
}

void section(const Options& options, StderrBoxes& boxes) {
  ReportRun run(boxes, options);
  const ReportTable all = run.all();
  print(std::cout, cells(options.row ? run.col(all) : all), options.csv);
}

/// The statement's own lines, from the table of its pieces.
ReportTable shaped(const ReportTable& pieces, StderrBoxes& boxes) {
  if (pieces.rows.empty()) return pieces;
  clsSQLShaping shaping;
  Failures failures;
  const bool done = shaping.Initialize(pieces, failures) && shaping.ExecShaping(failures);
  showFailures(boxes, failures);
  if (!done) throw ReportRun::Stopped{};
  return shaping.lines();
}

void sql(const Options& options, StderrBoxes& boxes) {
  ReportRun run(boxes, options);
  const ReportTable pieces = run.sqlText(run.all());
  print(std::cout, cells(options.shaped ? shaped(pieces, boxes) : pieces), options.csv);
}

void plan(const Options& options, StderrBoxes& boxes) {
  ReportRun run(boxes, options);
  print(std::cout, cells(run.sqlPlan(run.all())), options.csv);
}

/// What the program can send, for whoever has to know what a tool runs on a server.
void statements(const Options& options, StderrBoxes&) {
  const Versions wanted = options.version.empty() ? kAllVersions : versionOf(options.version);
  Table table{{"CLASS", "MEMBER", "VIEW", "VERSIONS", "TEXT"}};
  for (const SentStatement& sent : everyStatement()) {
    if ((sent.versions & wanted) == 0) continue;
    std::string versions;
    for (const char* version : {"9", "10", "11"})
      if ((sent.versions & versionOf(version)) != 0)
        versions += (versions.empty() ? "" : " ") + std::string(version);
    table.push_back({sent.owner, sent.member, sent.view, versions, sent.text});
  }
  print(std::cout, table, options.csv);
}

struct Command {
  const char* name;
  const char* options;
  const char* help;
  void (*run)(const Options&, StderrBoxes&);
};

constexpr Command kCommands[] = {
    {"instances", "", "the instances of the repository, with their index I", instances},
    {"pairs", " --instance I", "the snapshot pairs of an instance, with their index P", pairs},
    {"sections", " --instance I", "the names of the Sections that the instance has", sections},
    {"section", " NAME --instance I --pair P [--row R] [--from P1] [--to P2]",
     "the All view of a Section for a pair; with --row the\n"
     "series that row R of that view leads to, over all pairs\n"
     "or over those from P1 to P2",
     section},
    {"chart", " NAME --instance I --pair P --row R --column C [--page N|start|end|max]",
     "a page of 20 pairs of the chart of column C of that\n"
     "series, \"NO\" being column 0: title, axis maximum, and\n"
     "labels and values, as CSV",
     chart},
    {"sql", " NAME --instance I --pair P --row R [--shaped]",
     "the stored text of the SQL in row R of an SQL ranking,\n"
     "by its pieces or, shaped, by the statement's own lines",
     sql},
    {"plan", " NAME --instance I --pair P --row R", "the execution plans that it used in the pair", plan},
    {"check", " --tns NAME",
     "tries the name, the driver, the login and each table in\n"
     "turn and says what is missing",
     check},
    {"statements", " [--version V]",
     "every statement that the program can send, for all\n"
     "versions or for 9, 10 or 11; needs no repository",
     statements},
};

}  // namespace

std::string commandHelp() {
  std::vector<console::HelpEntry> entries;
  for (const Command& command : kCommands)
    entries.push_back({std::string(command.name) + command.options, command.help});
  return console::helpList(entries);
}

void runCommand(const Options& options, StderrBoxes& boxes) {
  for (const Command& command : kCommands)
    if (options.command == command.name) return command.run(options, boxes);
  throw UsageError("there is no command " + options.command);
}

}  // namespace kestrelix::report_tool
