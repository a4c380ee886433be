#pragma once

#include "report/SectionEntry.h"
#include "sections/summary/clsVirtualMemoryPaging.h"

namespace kestrelix {

void gDispVirtualMemoryPaging_All(Workspace& workspace, const std::string& version);
void gDispVirtualMemoryPaging_Col(Workspace& workspace, const std::string& version,
                                  const ColRequest& request);

}  // namespace kestrelix
