#pragma once

#include "report/SectionEntry.h"
#include "sections/waits/clsTopNWaitEvents.h"

namespace kestrelix {

void gDispTopNWaitEvents_All(Workspace& workspace, const std::string& version);
void gDispTopNWaitEvents_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
