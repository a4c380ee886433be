#pragma once

#include "report/SectionEntry.h"
#include "sections/memory/clsBufferPoolStatistics.h"

namespace kestrelix {

void gDispBufferPoolStatistics_All(Workspace& workspace, const std::string& version);
void gDispBufferPoolStatistics_Col(Workspace& workspace, const std::string& version,
                                   const ColRequest& request);

}  // namespace kestrelix
