#pragma once

#include "report/SectionEntry.h"
#include "sections/summary/clsHostCPU.h"

namespace kestrelix {

void gDispHostCPU_All(Workspace& workspace, const std::string& version);
void gDispHostCPU_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
