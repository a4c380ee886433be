#pragma once

#include "navigation/workspace.h"
#include "shell/report_operations.h"

namespace kestrelix {

/// The operations of the program itself: the chart of this window, and the text and the plans of an SQL
/// ranking. They use the workspace, which outlives them.
ReportOperations connectedOperations(Workspace& workspace);

}  // namespace kestrelix
