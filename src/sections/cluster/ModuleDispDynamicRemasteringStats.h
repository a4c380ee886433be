#pragma once

#include "report/SectionEntry.h"
#include "sections/cluster/clsDynamicRemasteringStats.h"

namespace kestrelix {

void gDispDynamicRemasteringStats_All(Workspace& workspace, const std::string& version);
void gDispDynamicRemasteringStats_Col(Workspace& workspace, const std::string& version,
                                      const ColRequest& request);

}  // namespace kestrelix
