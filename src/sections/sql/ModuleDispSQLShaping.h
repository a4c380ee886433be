// The SQL grid's two forms: the stored pieces, and the statement's own lines. `shaped` tells which one shows.
#pragma once

#include "platform/controls/grid.h"
#include "sections/sql/clsSQLShaping.h"

namespace kestrelix {

/// From one form to the other. A grid without rows has neither.
Failures gDispSqlShapingToggle(bool& shaped, clsSQLShaping& shaping, Grid& grid);
/// From the pieces in the grid to lines. After a failure the grid and `shaped` stay as they were.
Failures gDispSqlShapingText(bool& shaped, clsSQLShaping& shaping, Grid& grid);
/// Back to the pieces, as `shaping` has kept them.
void gDispSqlPiecesText(bool& shaped, const clsSQLShaping& shaping, Grid& grid);

}  // namespace kestrelix
