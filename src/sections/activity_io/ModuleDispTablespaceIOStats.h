#pragma once

#include "report/SectionEntry.h"
#include "sections/activity_io/clsTablespaceIOStats.h"

namespace kestrelix {

void gDispTablespaceIOStats_All(Workspace& workspace, const std::string& version);
void gDispTablespaceIOStats_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
