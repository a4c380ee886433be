#include "report_run.h"

#include "app/back_ends.h"
#include "navigation/ModuleLoadCommon.h"
#include "navigation/ModuleRangeCommon.h"
#include "navigation/version_gate.h"
#include "platform/ascii.h"
#include "platform/guarded.h"
#include "report/ModuleDispCommon.h"
#include "sections/SectionList.h"
#include "sections/sql/ModuleDispSQLPanels.h"
#include "sections/sql/ModuleDispSQLShaping.h"

namespace kestrelix::report_tool {

namespace {

int needed(const std::optional<int>& value, const char* option) {
  if (!value) throw UsageError(std::string(option) + " is needed");
  return *value;
}

int within(int value, int count, const char* what) {
  if (value >= count)
    throw UsageError("there is no " + std::string(what) + " " + std::to_string(value) +
                     ", they go from 0 to " + std::to_string(count - 1));
  return value;
}

}  // namespace

ReportRun::ReportRun(MessageBoxes& boxes, const Options& options) : options_(options), workspace_(boxes) {
  for (const char* key : {"GRID", "SQL", "PLAN", "GRAPH_START", "GRAPH_LEFT", "GRAPH_DISP", "GRAPH_MAX",
                          "LIST", "GRAPH_RIGHT", "GRAPH_END", "START", "END", "COPY", "HELP"})
    workspace_.controls.ToolbarTop.Add(key, key, "");
}

void ReportRun::connect() {
  if (options_.repository.empty() == options_.tns.empty())
    throw UsageError("name the repository by one of --repository FILE and --tns NAME");
  const std::string connect = connectText(options_);
  const bool open = guarded(workspace_.boxes, "ModuleCommon", "OPEN_Conect", [&] {
    if (options_.repository.empty())
      workspace_.gOraSession = anySession(programFolder());
    else
      workspace_.gOraSession = embedded::localSession(options_.repository);
    workspace_.gOraDatabase = workspace_.gOraSession->OpenDatabase(
        options_.repository.empty() ? asciiUpper(options_.tns) : options_.repository, connect,
        kDatabaseOptions);
  });
  if (open) return;
  workspace_.boxes.show(BoxIcon::Critical, "データベースの接続に失敗しました");
  throw Stopped{};
}

void ReportRun::loadInstances() {
  connect();
  if (!gDispDbInstance_Load(workspace_)) throw Stopped{};
}

void ReportRun::loadInstance() {
  loadInstances();
  const int instance = within(needed(options_.instance, "--instance"),
                              static_cast<int>(workspace_.gDbInstance->rownum()), "instance");
  workspace_.controls.ComboDbInstance.ListIndex(instance);
  if (!gDispSnapId_Load(workspace_, workspace_.gDbInstance->dbid(instance),
                        workspace_.gDbInstance->INSTANCE_NUMBER(instance), false))
    throw Stopped{};
  version_ = majorVersion(workspace_.gDbInstance->VERSION(instance));
  if (!passVersionGate(workspace_.boxes, version_)) throw Stopped{};
  gDispSectionList(workspace_, sectionList(), version_, workspace_.gDbInstance->PARALLEL(instance));
  narrow();
}

/// The ends are rows of the whole list, so the last one comes first: narrowing the front would renumber it.
void ReportRun::narrow() {
  const int count = static_cast<int>(workspace_.gSnapId->rownum());
  if (options_.pair) within(*options_.pair, count, "pair");
  if (!options_.from && !options_.to) return;
  const int from = within(options_.from.value_or(0), count, "pair");
  const int to = within(options_.to.value_or(count - 1), count, "pair");
  if (from > to) throw UsageError("--from lies behind --to");
  if (options_.pair && (*options_.pair < from || *options_.pair > to))
    throw UsageError("--pair lies outside of --from and --to");
  workspace_.gSnapRange = std::make_unique<clsSnapRange>(workspace_.boxes);
  workspace_.gSnapRange->Initialize(*workspace_.gSnapId);
  workspace_.controls.ListSnapId.ListIndex(to);
  if (!gFrameRangeSetEndId(workspace_)) throw Stopped{};
  workspace_.controls.ListSnapId.ListIndex(from);
  if (!gFrameRangeSetStartId(workspace_)) throw Stopped{};
}

/// --pair counts in the whole list.
int ReportRun::pairIndex() const { return needed(options_.pair, "--pair") - options_.from.value_or(0); }

void ReportRun::selectSection() {
  ListBox& list = workspace_.controls.ListSection;
  for (int i = 0; i < list.ListCount(); ++i) {
    if (list.List(i) != options_.name) continue;
    list.ListIndex(i);
    return;
  }
  throw UsageError("the instance has no Section '" + options_.name + "'");
}

void ReportRun::showAll() {
  if (options_.name.empty()) throw UsageError("name a Section");
  needed(options_.instance, "--instance");
  needed(options_.pair, "--pair");
  loadInstance();
  selectSection();
  workspace_.controls.ListSnapId.ListIndex(pairIndex());
  gDispSectionAll(workspace_, sectionList(), version_);
}

void ReportRun::selectRow() {
  Grid& grid = workspace_.controls.MSFlexGridMain;
  const int row = needed(options_.row, "--row");
  if (grid.Rows() < 2) throw UsageError("the view has no rows");
  if (row < 1 || row >= grid.Rows())
    throw UsageError("the view has no row " + std::to_string(row) + ", they go from 1 to " +
                     std::to_string(grid.Rows() - 1));
  grid.Row(row);
}

void ReportRun::showCol() {
  selectRow();
  gDispSectionCol(workspace_, sectionList(), version_);
}

void ReportRun::selectSqlRow() {
  if (!workspace_.controls.ToolbarTop.Enabled("SQL"))
    throw UsageError("'" + options_.name + "' lists no SQL statements");
  selectRow();
}

void ReportRun::showSqlText() {
  selectSqlRow();
  gDispSqlText(workspace_, version_);
  if (!options_.shaped) return;
  clsSQLShaping shaping(workspace_.boxes);
  bool shaped = false;
  gDispSqlShapingToggle(shaped, shaping, workspace_.controls.MSFlexGridSql);
}

void ReportRun::showSqlPlan() {
  selectSqlRow();
  gDispSQLPlan(workspace_, version_);
}

}  // namespace kestrelix::report_tool
