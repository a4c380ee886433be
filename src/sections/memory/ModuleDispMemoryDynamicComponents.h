#pragma once

#include "report/SectionEntry.h"
#include "sections/memory/clsMemoryDynamicComponents.h"

namespace kestrelix {

void gDispMemoryDynamicComponents_All(Workspace& workspace, const std::string& version);
void gDispMemoryDynamicComponents_Col(Workspace& workspace, const std::string& version,
                                      const ColRequest& request);

}  // namespace kestrelix
