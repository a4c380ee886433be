#include "sections/sql/ModuleDispSQLShaping.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

constexpr int kColumns = 5;
constexpr int kTextColumn = 4;

template <class Text>
void show(Grid& grid, const clsSQLShaping& shaping, int rows, Text text) {
  gridSetUp(grid, kColumns, rows);
  gridHeadings(grid, {"NO", shaping.Col1Name(), shaping.Col2Name(), shaping.Col3Name(), shaping.Col4Name()});
  gridNumbers(grid);
  grid.TextMatrix(1, 1, shaping.Col1Value());
  grid.TextMatrix(1, 2, shaping.Col2Value());
  grid.TextMatrix(1, 3, shaping.Col3Value());
  for (int i = 0; i < rows; ++i) grid.TextMatrix(i + 1, kTextColumn, text(i));
  gridShow(grid);
}

}  // namespace

void gDispSqlShapingToggle(bool& shaped, clsSQLShaping& shaping, Grid& grid) {
  if (grid.Rows() <= grid.FixedRows()) return;
  if (shaped)
    gDispSqlPiecesText(shaped, shaping, grid);
  else
    gDispSqlShapingText(shaped, shaping, grid);
}

void gDispSqlShapingText(bool& shaped, clsSQLShaping& shaping, Grid& grid) {
  if (!shaping.Initialize(grid) || !shaping.ExecShaping()) return;
  shaped = true;
  show(grid, shaping, shaping.shp_rownum(), [&](int i) { return shaping.shp_sql_text(i); });
}

void gDispSqlPiecesText(bool& shaped, const clsSQLShaping& shaping, Grid& grid) {
  shaped = false;
  show(grid, shaping, shaping.org_rownum(), [&](int i) { return shaping.org_sql_text(i); });
}

}  // namespace kestrelix
