#pragma once

#include "report/SectionEntry.h"
#include "sections/contention/clsMutexSleep.h"

namespace kestrelix {

void gDispMutexSleep_All(Workspace& workspace, const std::string& version);
void gDispMutexSleep_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
