#pragma once

#include "report/SectionEntry.h"
#include "sections/waits/clsBackgroundWaitEvents.h"

namespace kestrelix {

void gDispBackgroundWaitEvents_All(Workspace& workspace, const std::string& version);
void gDispBackgroundWaitEvents_Col(Workspace& workspace, const std::string& version,
                                   const ColRequest& request);

}  // namespace kestrelix
