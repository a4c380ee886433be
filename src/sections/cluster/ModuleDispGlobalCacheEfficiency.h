#pragma once

#include "report/SectionEntry.h"
#include "sections/cluster/clsGlobalCacheEfficiency.h"

namespace kestrelix {

void gDispGlobalCacheEfficiency_All(Workspace& workspace, const std::string& version);
void gDispGlobalCacheEfficiency_Col(Workspace& workspace, const std::string& version,
                                    const ColRequest& request);

}  // namespace kestrelix
