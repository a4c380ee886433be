#pragma once

#include "report/SectionEntry.h"
#include "sections/contention/clsRollbackSegmentStats.h"

namespace kestrelix {

void gDispRollbackSegmentStats_All(Workspace& workspace, const std::string& version);
void gDispRollbackSegmentStats_Col(Workspace& workspace, const std::string& version,
                                   const ColRequest& request);

}  // namespace kestrelix
