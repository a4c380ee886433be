#include "shell/report_operations.h"

#include <memory>

#include "report/clsGraphCommon.h"
#include "sections/sql/ModuleDispSQLShaping.h"
#include "sections/sql/sqlPanels.h"
#include "shell/ModuleDispCommon.h"

namespace kestrelix {

namespace {

constexpr int kHashColumn = 1;  // of the main grid

/// Reads a panel of the statement in the main grid's current row. For a pair across a restart, which lists
/// none, whatever the grid shows.
void showPanel(Workspace& workspace, const std::string& version, Grid& panel,
               ReportTable (*read)(const ReportSource&, int pair, const std::string& hash)) {
  const Repository& repository = workspace.repository;
  const int pair = workspace.controls.ListSnapId.ListIndex();
  const Grid& main = workspace.controls.MSFlexGridMain;
  const std::string hash =
      repository.gSnapId->restarted(pair) ? std::string() : main.TextMatrix(main.Row(), kHashColumn);
  showRead(workspace.boxes, panel,
           read({*repository.gOraDatabase, *repository.gSnapId, version, workspace.progress}, pair, hash));
}

}  // namespace

void gDispSqlText(Workspace& workspace, const std::string& version) {
  showPanel(workspace, version, workspace.controls.MSFlexGridSql, readSqlText);
}

void gDispSQLPlan(Workspace& workspace, const std::string& version) {
  showPanel(workspace, version, workspace.controls.MSFlexGridPlan, readSqlPlan);
}

ReportOperations reportOperations(Workspace& workspace) {
  ReportOperations operations;
  operations.gDispSqlText = [&workspace](const std::string& version) { gDispSqlText(workspace, version); };
  operations.gDispSQLPlan = [&workspace](const std::string& version) { gDispSQLPlan(workspace, version); };

  const auto mShaping = std::make_shared<clsSQLShaping>();
  operations.toggleShaping = [mShaping, &workspace](bool& shaped, Grid& sqlGrid) {
    showFailures(workspace.boxes, gDispSqlShapingToggle(shaped, *mShaping, sqlGrid));
  };

  const auto mGraph = std::make_shared<clsGraphCommon>(workspace.boxes);
  operations.graph = {[mGraph](Grid& grid, Chart& chart, Toolbar& toolbar) {
                        return mGraph->Initialize(grid, chart, toolbar);
                      },
                      [mGraph] { return mGraph->StartPage(); },
                      [mGraph] { return mGraph->BeforePage(); },
                      [mGraph] { return mGraph->AtferPage(); },
                      [mGraph] { return mGraph->EndPage(); },
                      [mGraph] { return mGraph->MaxValuePage(); }};
  return operations;
}

}  // namespace kestrelix
