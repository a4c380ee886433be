#pragma once

#include "report/SectionEntry.h"
#include "sections/cluster/clsMessagingStatistics.h"

namespace kestrelix {

void gDispMessagingStatistics_All(Workspace& workspace, const std::string& version);
void gDispMessagingStatistics_Col(Workspace& workspace, const std::string& version,
                                  const ColRequest& request);

}  // namespace kestrelix
