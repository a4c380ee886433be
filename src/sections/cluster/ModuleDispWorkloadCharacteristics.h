#pragma once

#include "report/SectionEntry.h"
#include "sections/cluster/clsWorkloadCharacteristics.h"

namespace kestrelix {

void gDispWorkloadCharacteristics_All(Workspace& workspace, const std::string& version);
void gDispWorkloadCharacteristics_Col(Workspace& workspace, const std::string& version,
                                      const ColRequest& request);

}  // namespace kestrelix
