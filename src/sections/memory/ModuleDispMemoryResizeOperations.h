#pragma once

#include "report/SectionEntry.h"
#include "sections/memory/clsMemoryResizeOperations.h"

namespace kestrelix {

void gDispMemoryResizeOperations_All(Workspace& workspace, const std::string& version);
void gDispMemoryResizeOperations_Col(Workspace& workspace, const std::string& version,
                                     const ColRequest& request);

}  // namespace kestrelix
