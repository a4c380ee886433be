#pragma once

#include "report/SectionEntry.h"
#include "sections/contention/clsUndoSegmentStats.h"

namespace kestrelix {

void gDispUndoSegmentStats_All(Workspace& workspace, const std::string& version);

}  // namespace kestrelix
