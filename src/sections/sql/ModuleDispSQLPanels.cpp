#include "sections/sql/ModuleDispSQLPanels.h"

#include "report/GridRendering.h"
#include "sections/sql/clsSQLPlan.h"
#include "sections/sql/clsSQLText.h"

namespace kestrelix {
namespace {

constexpr int kHashColumn = 1;  // of the main grid and of the panels
constexpr int kFirstOwnColumn = 4;

/// The pair and the statement that a panel is about.
struct Subject {
  int pair;
  PairKeys keys;
  std::string hash;
  bool restarted;
};

/// A pair across a restart lists no statement, so there is none to name.
Subject subjectOf(const Workspace& workspace) {
  const int pair = workspace.controls.ListSnapId.ListIndex();
  const bool restarted = workspace.gSnapId->restarted(pair);
  const Grid& main = workspace.controls.MSFlexGridMain;
  return {pair, workspace.gSnapId->keys(pair),
          restarted ? std::string() : main.TextMatrix(main.Row(), kHashColumn), restarted};
}

bool bindStatement(Workspace& workspace, SectionObject& object, const Subject& subject,
                   const std::string& version) {
  // A rendering that failed has left its binds in place.
  workspace.gOraDatabase->parameters().clear();
  object.Initialize(*workspace.gOraDatabase, *workspace.gSnapId, workspace.boxes, version);
  return object.setBAIND_VALUE(subject.keys, {subject.hash});
}

/// Which statement and which snapshots stands in the first row alone.
void show(Grid& grid, const SectionObject& object, const Subject& subject, const std::string& version,
          const std::vector<ViewColumn>& columns) {
  const int rows = subject.restarted ? 0 : static_cast<int>(object.rownum());
  gridSetUp(grid, kFirstOwnColumn + static_cast<int>(columns.size()), rows);
  std::vector<std::string> headings{"NO", version == "9" ? "HASH_VALUE" : "OLD_HASH_VALUE", "START_ID",
                                    "END_ID"};
  for (const ViewColumn& column : columns) headings.push_back(column.heading);
  gridHeadings(grid, headings);
  gridNumbers(grid);
  if (rows > 0) {
    grid.TextMatrix(1, kHashColumn, subject.hash);
    grid.TextMatrix(1, 2, subject.keys.startSnapId);
    grid.TextMatrix(1, 3, subject.keys.endSnapId);
  }
  for (int i = 0; i < rows; ++i)
    for (std::size_t c = 0; c < columns.size(); ++c)
      grid.TextMatrix(i + 1, kFirstOwnColumn + static_cast<int>(c),
                      columns[c].accessor(object, i, subject.pair));
  gridShow(grid);
}

}  // namespace

void gDispSqlText(Workspace& workspace, const std::string& version) {
  const Subject subject = subjectOf(workspace);
  clsSQLText object;
  if (!bindStatement(workspace, object, subject, version) || !object.get("getSQL_TEXT", subject.pair)) return;
  object.unsetBAIND_VALUE();
  show(workspace.controls.MSFlexGridSql, object, subject, version, {{"SQL_TEXT", &clsSQLText::SQL_TEXT}});
}

void gDispSQLPlan(Workspace& workspace, const std::string& version) {
  const Subject subject = subjectOf(workspace);
  clsSQLPlan object;
  if (!bindStatement(workspace, object, subject, version) || !object.getSQL_PLAN(subject.pair)) return;
  object.unsetBAIND_VALUE();
  show(workspace.controls.MSFlexGridPlan, object, subject, version,
       {{"OPERATION", &clsSQLPlan::OPERATION},
        {"PHV_OBJECTNAME", &clsSQLPlan::PHV_OBJECTNAME},
        {"ROWS", &clsSQLPlan::ROWS_VALUE},
        {"BYTES", &clsSQLPlan::BYTES_VALUE},
        {"COST", &clsSQLPlan::COST_VALUE}});
}

}  // namespace kestrelix
