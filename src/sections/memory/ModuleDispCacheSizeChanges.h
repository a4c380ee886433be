#pragma once

#include "report/SectionEntry.h"
#include "sections/memory/clsCacheSizeChanges.h"

namespace kestrelix {

void gDispCacheSizeChanges_All(Workspace& workspace, const std::string& version);
void gDispCacheSizeChanges_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
