// A table in a grid. What is read comes whole before the grid is touched: a reading that failed leaves the
// grid with its former view.
#pragma once

#include "platform/controls/grid.h"
#include "report/report_table.h"

namespace kestrelix {

/// Fits each column to its longest cell, headings included: 108 twips a byte of code page 932, at least 500.
void gGridColumnFit(Grid& grid);

/// Shows the table with the running number of its rows as column "NO", figures at the right.
void showTable(Grid& grid, const ReportTable& table);

}  // namespace kestrelix
