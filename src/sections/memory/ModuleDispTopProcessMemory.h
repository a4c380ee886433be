#pragma once

#include "report/SectionEntry.h"
#include "sections/memory/clsTopProcessMemory.h"

namespace kestrelix {

void gDispTopProcessMemory_All(Workspace& workspace, const std::string& version);
void gDispTopProcessMemory_ColBegin(Workspace& workspace, const std::string& version,
                                    const ColRequest& request);
void gDispTopProcessMemory_ColEnd(Workspace& workspace, const std::string& version,
                                  const ColRequest& request);

}  // namespace kestrelix
