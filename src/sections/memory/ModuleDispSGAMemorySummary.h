#pragma once

#include "report/SectionEntry.h"
#include "sections/memory/clsSGAMemorySummary.h"

namespace kestrelix {

void gDispSGAMemorySummary_All(Workspace& workspace, const std::string& version);
void gDispSGAMemorySummary_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
