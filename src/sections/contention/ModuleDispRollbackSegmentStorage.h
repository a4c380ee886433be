#pragma once

#include "report/SectionEntry.h"
#include "sections/contention/clsRollbackSegmentStorage.h"

namespace kestrelix {

void gDispRollbackSegmentStorage_All(Workspace& workspace, const std::string& version);
void gDispRollbackSegmentStorage_Col(Workspace& workspace, const std::string& version,
                                     const ColRequest& request);

}  // namespace kestrelix
