#pragma once

#include "report/SectionEntry.h"

namespace kestrelix {

void gDispSnapshot_All(Workspace& workspace, const std::string& version);
void gDispSnapshot_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
