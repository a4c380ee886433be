#pragma once

#include "report/SectionEntry.h"
#include "sections/memory/clsPGAAggrTargetHistogram.h"

namespace kestrelix {

void gDispPGAAggrTargetHistogram_All(Workspace& workspace, const std::string& version);
void gDispPGAAggrTargetHistogram_Col(Workspace& workspace, const std::string& version,
                                     const ColRequest& request);

}  // namespace kestrelix
