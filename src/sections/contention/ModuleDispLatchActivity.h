#pragma once

#include "report/SectionEntry.h"
#include "sections/contention/clsLatchActivity.h"

namespace kestrelix {

void gDispLatchActivity_All(Workspace& workspace, const std::string& version);
void gDispLatchActivity_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
