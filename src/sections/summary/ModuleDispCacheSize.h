#pragma once

#include "report/SectionEntry.h"
#include "sections/summary/clsCacheSize.h"

namespace kestrelix {

void gDispCacheSize_All(Workspace& workspace, const std::string& version);
void gDispCacheSize_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
