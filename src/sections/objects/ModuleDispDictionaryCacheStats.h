#pragma once

#include "report/SectionEntry.h"
#include "sections/objects/clsDictionaryCacheStats.h"

namespace kestrelix {

void gDispDictionaryCacheStats1_All(Workspace& workspace, const std::string& version);
void gDispDictionaryCacheStats1_Col(Workspace& workspace, const std::string& version,
                                    const ColRequest& request);
void gDispDictionaryCacheStats2_All(Workspace& workspace, const std::string& version);
void gDispDictionaryCacheStats2_Col(Workspace& workspace, const std::string& version,
                                    const ColRequest& request);

}  // namespace kestrelix
