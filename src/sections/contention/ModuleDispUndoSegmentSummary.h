#pragma once

#include "report/SectionEntry.h"
#include "sections/contention/clsUndoSegmentSummary.h"

namespace kestrelix {

void gDispUndoSegmentSummary_All(Workspace& workspace, const std::string& version);
void gDispUndoSegmentSummary_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
