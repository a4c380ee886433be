#pragma once

#include "report/SectionEntry.h"
#include "sections/activity_io/clsFileReadHistogramStats.h"

namespace kestrelix {

void gDispFileReadHistogramStats_All(Workspace& workspace, const std::string& version);
void gDispFileReadHistogramStats_Col(Workspace& workspace, const std::string& version,
                                     const ColRequest& request);

}  // namespace kestrelix
