#pragma once

#include "report/SectionEntry.h"
#include "sections/memory/clsPGAAggrTargetStats.h"

namespace kestrelix {

void gDispPGAAggrTargetStats1_All(Workspace& workspace, const std::string& version);
void gDispPGAAggrTargetStats1_Col(Workspace& workspace, const std::string& version,
                                  const ColRequest& request);
void gDispPGAAggrTargetStats2_All(Workspace& workspace, const std::string& version);
void gDispPGAAggrTargetStats2_ColBegin(Workspace& workspace, const std::string& version,
                                       const ColRequest& request);
void gDispPGAAggrTargetStats2_ColEnd(Workspace& workspace, const std::string& version,
                                     const ColRequest& request);

}  // namespace kestrelix
