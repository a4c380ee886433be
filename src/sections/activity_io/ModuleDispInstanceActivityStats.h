#pragma once

#include "report/SectionEntry.h"
#include "sections/activity_io/clsInstanceActivityStats.h"

namespace kestrelix {

void gDispInstanceActivityStats1_All(Workspace& workspace, const std::string& version);
void gDispInstanceActivityStats1_Col(Workspace& workspace, const std::string& version,
                                     const ColRequest& request);
void gDispInstanceActivityStats2_All(Workspace& workspace, const std::string& version);
void gDispInstanceActivityStats2_Col(Workspace& workspace, const std::string& version,
                                     const ColRequest& request);
void gDispInstanceActivityStats3_All(Workspace& workspace, const std::string& version);
void gDispInstanceActivityStats3_Col(Workspace& workspace, const std::string& version,
                                     const ColRequest& request);

}  // namespace kestrelix
