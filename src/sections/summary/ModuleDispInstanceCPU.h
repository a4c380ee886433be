#pragma once

#include "report/SectionEntry.h"
#include "sections/summary/clsInstanceCPU.h"

namespace kestrelix {

void gDispInstanceCPU_All(Workspace& workspace, const std::string& version);
void gDispInstanceCPU_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
