#pragma once

#include "report/SectionEntry.h"
#include "sections/objects/clsinitParameters.h"

namespace kestrelix {

void gDispinitParameters_All(Workspace& workspace, const std::string& version);
void gDispinitParameters_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
