#pragma once

#include "report/SectionEntry.h"
#include "sections/summary/clsInstanceEfficiency.h"

namespace kestrelix {

void gDispInstanceEfficiency_All(Workspace& workspace, const std::string& version);
void gDispInstanceEfficiency_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
