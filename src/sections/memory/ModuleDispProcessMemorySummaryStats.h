#pragma once

#include "report/SectionEntry.h"
#include "sections/memory/clsProcessMemorySummaryStats.h"

namespace kestrelix {

void gDispProcessMemorySummaryStats_All(Workspace& workspace, const std::string& version);
void gDispProcessMemorySummaryStats_ColBegin(Workspace& workspace, const std::string& version,
                                             const ColRequest& request);
void gDispProcessMemorySummaryStats_ColEnd(Workspace& workspace, const std::string& version,
                                           const ColRequest& request);

}  // namespace kestrelix
