#pragma once

#include "report/SectionEntry.h"
#include "sections/memory/clsSQLMemoryStatistics.h"

namespace kestrelix {

void gDispSQLMemoryStatistics_All(Workspace& workspace, const std::string& version);
void gDispSQLMemoryStatistics_Col(Workspace& workspace, const std::string& version,
                                  const ColRequest& request);

}  // namespace kestrelix
