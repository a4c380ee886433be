#include "sections/sql/ModuleDispSQLShaping.h"

#include "report/GridRendering.h"

namespace kestrelix {

Failures gDispSqlShapingToggle(bool& shaped, clsSQLShaping& shaping, Grid& grid) {
  if (grid.Rows() <= grid.FixedRows()) return {};
  if (!shaped) return gDispSqlShapingText(shaped, shaping, grid);
  gDispSqlPiecesText(shaped, shaping, grid);
  return {};
}

Failures gDispSqlShapingText(bool& shaped, clsSQLShaping& shaping, Grid& grid) {
  Failures failures;
  if (!shaping.Initialize(grid, failures) || !shaping.ExecShaping(failures)) return failures;
  shaped = true;
  showTable(grid, shaping.lines());
  return failures;
}

void gDispSqlPiecesText(bool& shaped, const clsSQLShaping& shaping, Grid& grid) {
  shaped = false;
  showTable(grid, shaping.pieces());
}

}  // namespace kestrelix
