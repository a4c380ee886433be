#pragma once

#include "report/SectionEntry.h"
#include "sections/memory/clsBufferwaitStatistics.h"

namespace kestrelix {

void gDispBufferwaitStatistics_All(Workspace& workspace, const std::string& version);
void gDispBufferwaitStatistics_Col(Workspace& workspace, const std::string& version,
                                   const ColRequest& request);

}  // namespace kestrelix
