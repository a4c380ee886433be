#pragma once

#include "report/SectionEntry.h"
#include "sections/activity_io/clsOSStatistics.h"

namespace kestrelix {

void gDispOSStatistics_All(Workspace& workspace, const std::string& version);
void gDispOSStatistics_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
