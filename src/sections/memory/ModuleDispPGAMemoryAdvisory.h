#pragma once

#include "report/SectionEntry.h"
#include "sections/memory/clsPGAMemoryAdvisory.h"

namespace kestrelix {

void gDispPGAMemoryAdvisory_All(Workspace& workspace, const std::string& version);
void gDispPGAMemoryAdvisory_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
