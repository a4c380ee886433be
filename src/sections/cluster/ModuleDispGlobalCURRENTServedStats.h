#pragma once

#include "report/SectionEntry.h"
#include "sections/cluster/clsGlobalCURRENTServedStats.h"

namespace kestrelix {

void gDispGlobalCURRENTServedStats_All(Workspace& workspace, const std::string& version);
void gDispGlobalCURRENTServedStats_Col(Workspace& workspace, const std::string& version,
                                       const ColRequest& request);

}  // namespace kestrelix
