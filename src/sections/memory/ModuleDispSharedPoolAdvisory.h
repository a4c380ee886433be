#pragma once

#include "report/SectionEntry.h"
#include "sections/memory/clsSharedPoolAdvisory.h"

namespace kestrelix {

void gDispSharedPoolAdvisory_All(Workspace& workspace, const std::string& version);
void gDispSharedPoolAdvisory_Col(Workspace& workspace, const std::string& version, const ColRequest& request);

}  // namespace kestrelix
