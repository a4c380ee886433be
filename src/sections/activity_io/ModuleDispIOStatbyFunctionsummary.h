#pragma once

#include "report/SectionEntry.h"
#include "sections/activity_io/clsIOStatbyFunctionsummary.h"

namespace kestrelix {

void gDispIOStatbyFunctionsummary_All(Workspace& workspace, const std::string& version);
void gDispIOStatbyFunctionsummary_Col(Workspace& workspace, const std::string& version,
                                      const ColRequest& request);

}  // namespace kestrelix
