// The two panels behind a ranking: the stored text and the plans of the statement in the current row of the
// main grid, in grids of their own. The caller shows the grid and hides the others.
#pragma once

#include "navigation/workspace.h"

namespace kestrelix {

/// Fills MSFlexGridSql, a row a piece of the text.
void gDispSqlText(Workspace& workspace, const std::string& version);
/// Fills MSFlexGridPlan, a row a step of a plan.
void gDispSQLPlan(Workspace& workspace, const std::string& version);

}  // namespace kestrelix
