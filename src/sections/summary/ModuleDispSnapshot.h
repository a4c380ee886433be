#pragma once

#include "report/SectionEntry.h"
#include "sections/summary/clsSnapshot.h"

namespace kestrelix {

void gDispSnapshot_All(Workspace& workspace, const std::string& version);
void gDispSnapshot_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
