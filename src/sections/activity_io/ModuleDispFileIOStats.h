#pragma once

#include "report/SectionEntry.h"
#include "sections/activity_io/clsFileIOStats.h"

namespace kestrelix {

void gDispFileIOStats_All(Workspace& workspace, const std::string& version);
void gDispFileIOStats_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
