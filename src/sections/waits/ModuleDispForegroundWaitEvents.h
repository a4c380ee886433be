#pragma once

#include "report/SectionEntry.h"
#include "sections/waits/clsForegroundWaitEvents.h"

namespace kestrelix {

void gDispForegroundWaitEvents_All(Workspace& workspace, const std::string& version);
void gDispForegroundWaitEvents_Col(Workspace& workspace, const std::string& version,
                                   const ColRequest& request);

}  // namespace kestrelix
