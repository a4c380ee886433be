#include "shell/report_operations.h"

#include <memory>

#include "report/clsGraphCommon.h"
#include "sections/sql/ModuleDispSQLPanels.h"
#include "sections/sql/ModuleDispSQLShaping.h"

namespace kestrelix {

ReportOperations reportOperations(Workspace& workspace) {
  ReportOperations operations;
  operations.gDispSqlText = [&workspace](const std::string& version) { gDispSqlText(workspace, version); };
  operations.gDispSQLPlan = [&workspace](const std::string& version) { gDispSQLPlan(workspace, version); };

  const auto mShaping = std::make_shared<clsSQLShaping>(workspace.boxes);
  operations.toggleShaping = [mShaping](bool& shaped, Grid& sqlGrid) {
    gDispSqlShapingToggle(shaped, *mShaping, sqlGrid);
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
