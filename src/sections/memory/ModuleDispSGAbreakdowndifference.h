#pragma once

#include "report/SectionEntry.h"
#include "sections/memory/clsSGAbreakdowndifference.h"

namespace kestrelix {

void gDispSGAbreakdowndifference_All(Workspace& workspace, const std::string& version);
void gDispSGAbreakdowndifference_Col(Workspace& workspace, const std::string& version,
                                     const ColRequest& request);

}  // namespace kestrelix
