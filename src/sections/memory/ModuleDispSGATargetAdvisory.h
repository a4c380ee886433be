#pragma once

#include "report/SectionEntry.h"
#include "sections/memory/clsSGATargetAdvisory.h"

namespace kestrelix {

void gDispSGATargetAdvisory_All(Workspace& workspace, const std::string& version);
void gDispSGATargetAdvisory_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
