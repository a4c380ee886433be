#include "commands.h"

#include <iostream>
#include <map>

#include "chart.h"
#include "check.h"
#include "report_run.h"
#include "sections/EveryStatement.h"

namespace kestrelix::report_tool {
namespace {

void instances(const Options& options, StderrBoxes& boxes) {
  ReportRun run(boxes, options);
  run.loadInstances();
  const clsDbInstance& rows = *run.workspace().gDbInstance;
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
  const clsSnapId& rows = *run.workspace().gSnapId;
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
  const ListBox& list = run.workspace().controls.ListSection;
  for (int i = 0; i < list.ListCount(); ++i) std::cout << list.List(i) << '\n';
}

/// What a failed rendering leaves in the grid is no view of the Section: nothing is printed then.
void section(const Options& options, StderrBoxes& boxes) {
  ReportRun run(boxes, options);
  run.showAll();
  if (!boxes.critical() && options.row) run.showCol();
  if (!boxes.critical()) print(std::cout, cells(run.workspace().controls.MSFlexGridMain), options.csv);
}

void sql(const Options& options, StderrBoxes& boxes) {
  ReportRun run(boxes, options);
  run.showAll();
  if (!boxes.critical()) run.showSqlText();
  if (!boxes.critical()) print(std::cout, cells(run.workspace().controls.MSFlexGridSql), options.csv);
}

void plan(const Options& options, StderrBoxes& boxes) {
  ReportRun run(boxes, options);
  run.showAll();
  if (!boxes.critical()) run.showSqlPlan();
  if (!boxes.critical()) print(std::cout, cells(run.workspace().controls.MSFlexGridPlan), options.csv);
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

using Command = void (*)(const Options&, StderrBoxes&);
const std::map<std::string, Command> kCommands{
    {"instances", instances},   {"pairs", pairs}, {"sections", sections},
    {"section", section},       {"sql", sql},     {"plan", plan},
    {"statements", statements}, {"chart", chart}, {"check", check}};

}  // namespace

void runCommand(const Options& options, StderrBoxes& boxes) {
  const auto found = kCommands.find(options.command);
  if (found == kCommands.end()) throw UsageError("there is no command " + options.command);
  found->second(options, boxes);
}

}  // namespace kestrelix::report_tool
