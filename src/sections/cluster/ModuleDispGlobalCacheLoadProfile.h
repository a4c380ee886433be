#pragma once

#include "report/SectionEntry.h"
#include "sections/cluster/clsGlobalCacheLoadProfile.h"

namespace kestrelix {

void gDispGlobalCacheLoadProfile_All(Workspace& workspace, const std::string& version);
void gDispGlobalCacheLoadProfile_Col(Workspace& workspace, const std::string& version,
                                     const ColRequest& request);

}  // namespace kestrelix
