#pragma once

#include "report/SectionEntry.h"
#include "sections/memory/clsMemoryTargetAdvice.h"

namespace kestrelix {

void gDispMemoryTargetAdvice_All(Workspace& workspace, const std::string& version);
void gDispMemoryTargetAdvice_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
