// Fill MSFlexGridMain from a section object. The fetching comes before the grid is touched: a rendering that
// fails leaves the grid with its former view.
#pragma once

#include <string>
#include <vector>

#include "navigation/workspace.h"
#include "report/views.h"

namespace kestrelix {

/// Fits each column to its longest cell, headings included: 108 twips a byte of code page 932, at least 500.
void gGridColumnFit(Grid& grid);
/// Hides and empties the grid and gives it one heading row, one heading column, `cols` columns and `rows`
/// rows below the heading.
void gridSetUp(Grid& grid, int cols, int rows);
/// Writes the heading row.
void gridHeadings(Grid& grid, const std::vector<std::string>& headings);
/// Numbers the rows below it from 1, in column 0.
void gridNumbers(Grid& grid);
/// Fits, shows and refreshes.
void gridShow(Grid& grid);

/// The rows that `member` fetches for the selected pair. For a pair across a restart the headings alone,
/// unless the member's figures hold there.
void renderListAll(Workspace& workspace, SectionObject& object, std::string_view member, const ListView& view,
                   const std::string& version, const std::vector<std::string>& arguments = {});
/// One row a pair, of what `member` fetches for it.
void renderListCol(Workspace& workspace, SectionObject& object, std::string_view member, const ListView& view,
                   const std::string& version, const std::vector<std::string>& arguments);

/// All metrics of the selected pair.
void renderMetricAll(Workspace& workspace, MetricSectionObject& object, const MetricView& view,
                     const std::string& version);
/// One metric, by its row in the All view from 1, over all pairs. A row that the view lacks does nothing.
void renderMetricCol(Workspace& workspace, MetricSectionObject& object, const MetricView& view,
                     const std::string& version, int row);

}  // namespace kestrelix
