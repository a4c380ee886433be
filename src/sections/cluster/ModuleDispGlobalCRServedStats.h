#pragma once

#include "report/SectionEntry.h"
#include "sections/cluster/clsGlobalCRServedStats.h"

namespace kestrelix {

void gDispGlobalCRServedStats_All(Workspace& workspace, const std::string& version);
void gDispGlobalCRServedStats_Col(Workspace& workspace, const std::string& version,
                                  const ColRequest& request);

}  // namespace kestrelix
