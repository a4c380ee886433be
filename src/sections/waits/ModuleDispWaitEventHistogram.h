#pragma once

#include "report/SectionEntry.h"
#include "sections/waits/clsWaitEventHistogram.h"

namespace kestrelix {

void gDispWaitEventHistogram_All(Workspace& workspace, const std::string& version);
void gDispWaitEventHistogram_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
