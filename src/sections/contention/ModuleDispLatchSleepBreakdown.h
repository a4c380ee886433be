#pragma once

#include "report/SectionEntry.h"
#include "sections/contention/clsLatchSleepBreakdown.h"

namespace kestrelix {

void gDispLatchSleepBreakdown_All(Workspace& workspace, const std::string& version);
void gDispLatchSleepBreakdown_Col(Workspace& workspace, const std::string& version,
                                  const ColRequest& request);

}  // namespace kestrelix
