#pragma once

#include "report/SectionEntry.h"
#include "sections/cluster/clsInterconnectPingStats.h"

namespace kestrelix {

void gDispInterconnectPingStats_All(Workspace& workspace, const std::string& version);
void gDispInterconnectPingStats_Col(Workspace& workspace, const std::string& version,
                                    const ColRequest& request);

}  // namespace kestrelix
