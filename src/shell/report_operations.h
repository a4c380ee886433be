// The operations behind the toolbar that the main window reaches by name only. One that is not connected
// does nothing, and its button stays off.
#pragma once

#include <functional>
#include <string>

#include "shell/workspace.h"

namespace kestrelix {

/// The chart pager: draws the current column of a Col view, a page of points at a time. Each gives false when
/// it has refused or failed, its box shown.
struct GraphOperations {
  std::function<bool(Grid&, Chart&, Toolbar&)> Initialize;
  std::function<bool()> StartPage;
  std::function<bool()> BeforePage;
  std::function<bool()> AtferPage;
  std::function<bool()> EndPage;
  std::function<bool()> MaxValuePage;
};

struct ReportOperations {
  /// Show the text and the plan of the SQL in the main grid's current row.
  std::function<void(const std::string& version)> gDispSqlText;
  std::function<void(const std::string& version)> gDispSQLPlan;
  /// Turns the text in the SQL grid into its reading form, or back.
  std::function<void(bool& shaped, Grid& sqlGrid)> toggleShaping;
  GraphOperations graph;
};

/// Fill MSFlexGridSql, a row a piece of the statement's text, and MSFlexGridPlan, a row a step of a plan. The
/// caller shows the grid and hides the others.
void gDispSqlText(Workspace& workspace, const std::string& version);
void gDispSQLPlan(Workspace& workspace, const std::string& version);

/// All of them, on that workspace, which must outlive them.
ReportOperations reportOperations(Workspace& workspace);

}  // namespace kestrelix
