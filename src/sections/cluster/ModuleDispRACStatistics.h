#pragma once

#include "report/SectionEntry.h"
#include "sections/cluster/clsRACStatistics.h"

namespace kestrelix {

void gDispRACStatistics_All(Workspace& workspace, const std::string& version);
void gDispRACStatistics_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
