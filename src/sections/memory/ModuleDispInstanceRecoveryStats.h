#pragma once

#include "report/SectionEntry.h"
#include "sections/memory/clsInstanceRecoveryStats.h"

namespace kestrelix {

void gDispInstanceRecoveryStats_All(Workspace& workspace, const std::string& version);
void gDispInstanceRecoveryStats_ColBegin(Workspace& workspace, const std::string& version,
                                         const ColRequest& request);
void gDispInstanceRecoveryStats_ColEnd(Workspace& workspace, const std::string& version,
                                       const ColRequest& request);

}  // namespace kestrelix
