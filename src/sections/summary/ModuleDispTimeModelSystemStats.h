#pragma once

#include "report/SectionEntry.h"
#include "sections/summary/clsTimeModelSystemStats.h"

namespace kestrelix {

void gDispTimeModelSystemStats_All(Workspace& workspace, const std::string& version);
void gDispTimeModelSystemStats_Col(Workspace& workspace, const std::string& version,
                                   const ColRequest& request);

}  // namespace kestrelix
