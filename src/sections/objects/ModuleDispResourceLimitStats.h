#pragma once

#include "report/SectionEntry.h"
#include "sections/objects/clsResourceLimitStats.h"

namespace kestrelix {

void gDispResourceLimitStats_All(Workspace& workspace, const std::string& version);
void gDispResourceLimitStats_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
