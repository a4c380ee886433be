#pragma once

#include "report/SectionEntry.h"
#include "sections/activity_io/clsOSStatisticsdetail.h"

namespace kestrelix {

void gDispOSStatisticsdetail_All(Workspace& workspace, const std::string& version);
void gDispOSStatisticsdetail_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
