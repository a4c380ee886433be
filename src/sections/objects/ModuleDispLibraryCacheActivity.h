#pragma once

#include "report/SectionEntry.h"
#include "sections/objects/clsLibraryCacheActivity.h"

namespace kestrelix {

void gDispLibraryCacheActivity1_All(Workspace& workspace, const std::string& version);
void gDispLibraryCacheActivity1_Col(Workspace& workspace, const std::string& version,
                                    const ColRequest& request);
void gDispLibraryCacheActivity2_All(Workspace& workspace, const std::string& version);
void gDispLibraryCacheActivity2_Col(Workspace& workspace, const std::string& version,
                                    const ColRequest& request);

}  // namespace kestrelix
