#pragma once

#include "report/SectionEntry.h"
#include "sections/activity_io/clsIOStatbyFunctiondetail.h"

namespace kestrelix {

void gDispIOStatbyFunctiondetail_All(Workspace& workspace, const std::string& version);
void gDispIOStatbyFunctiondetail_Col(Workspace& workspace, const std::string& version,
                                     const ColRequest& request);

}  // namespace kestrelix
