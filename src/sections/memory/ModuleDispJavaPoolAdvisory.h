#pragma once

#include "report/SectionEntry.h"
#include "sections/memory/clsJavaPoolAdvisory.h"

namespace kestrelix {

void gDispJavaPoolAdvisory_All(Workspace& workspace, const std::string& version);
void gDispJavaPoolAdvisory_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
