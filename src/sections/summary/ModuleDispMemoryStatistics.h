#pragma once

#include "report/SectionEntry.h"
#include "sections/summary/clsMemoryStatistics.h"

namespace kestrelix {

void gDispMemoryStatistics_All(Workspace& workspace, const std::string& version);
void gDispMemoryStatistics_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
