#pragma once

#include "report/SectionEntry.h"
#include "sections/memory/clsBufferPoolAdvisory.h"

namespace kestrelix {

void gDispBufferPoolAdvisory_All(Workspace& workspace, const std::string& version);
void gDispBufferPoolAdvisory_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
