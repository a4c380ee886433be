#pragma once

#include "report/SectionEntry.h"
#include "sections/contention/clsLatchMissSources.h"

namespace kestrelix {

void gDispLatchMissSources_All(Workspace& workspace, const std::string& version);
void gDispLatchMissSources_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
