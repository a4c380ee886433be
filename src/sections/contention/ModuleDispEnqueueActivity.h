#pragma once

#include "report/SectionEntry.h"
#include "sections/contention/clsEnqueueactivity.h"

namespace kestrelix {

void gDispEnqueueActivity_All(Workspace& workspace, const std::string& version);
void gDispEnqueueActivity_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
