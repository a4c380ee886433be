#pragma once

#include "report/SectionEntry.h"
#include "sections/waits/clsWaitEvents.h"

namespace kestrelix {

void gDispWaitEvents_All(Workspace& workspace, const std::string& version);
void gDispWaitEvents_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
