#pragma once

#include "report/SectionEntry.h"
#include "sections/summary/clsLoadProfile.h"

namespace kestrelix {

void gDispLoadProfile_All(Workspace& workspace, const std::string& version);
void gDispLoadProfile_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
