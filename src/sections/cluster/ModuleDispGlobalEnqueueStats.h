#pragma once

#include "report/SectionEntry.h"
#include "sections/cluster/clsGlobalEnqueueStats.h"

namespace kestrelix {

void gDispGlobalEnqueueStats_All(Workspace& workspace, const std::string& version);
void gDispGlobalEnqueueStats_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
