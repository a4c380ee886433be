#include "shell/ReportConnections.h"

#include <memory>

#include "report/clsGraphCommon.h"
#include "sections/sql/ModuleDispSQLPanels.h"
#include "sections/sql/ModuleDispSQLShaping.h"

namespace kestrelix {

ReportOperations connectedOperations(Workspace& workspace) {
  const auto shaping = std::make_shared<clsSQLShaping>(workspace.boxes);
  const auto graph = std::make_shared<clsGraphCommon>(workspace.boxes);
  ReportOperations operations;
  operations.gDispSqlText = [&workspace](const std::string& version) { gDispSqlText(workspace, version); };
  operations.gDispSQLPlan = [&workspace](const std::string& version) { gDispSQLPlan(workspace, version); };
  operations.toggleShaping = [shaping](bool& shaped, Grid& grid) {
    gDispSqlShapingToggle(shaped, *shaping, grid);
  };
  operations.graph = {
      [graph](Grid& grid, Chart& chart, Toolbar& toolbar) { return graph->Initialize(grid, chart, toolbar); },
      [graph] { return graph->StartPage(); },
      [graph] { return graph->BeforePage(); },
      [graph] { return graph->AtferPage(); },
      [graph] { return graph->EndPage(); },
      [graph] { return graph->MaxValuePage(); }};
  return operations;
}

}  // namespace kestrelix
