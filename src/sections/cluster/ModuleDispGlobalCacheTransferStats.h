#pragma once

#include "report/SectionEntry.h"
#include "sections/cluster/clsGlobalCacheTransferStats.h"

namespace kestrelix {

/// By sending instance and class: the form on show.
void gDispGlobalCacheTransferStatsBlock_All(Workspace& workspace, const std::string& version);
void gDispGlobalCacheTransferStatsBlock_Col(Workspace& workspace, const std::string& version,
                                            const ColRequest& request);

/// By class alone: complete, and out of service.
void gDispGlobalCacheTransferStatsClass_All(Workspace& workspace, const std::string& version);
void gDispGlobalCacheTransferStatsClass_Col(Workspace& workspace, const std::string& version,
                                            const ColRequest& request);

/// Take the form that the constant in the source chooses.
void gDispGlobalCacheTransferStats_All(Workspace& workspace, const std::string& version);
void gDispGlobalCacheTransferStats_Col(Workspace& workspace, const std::string& version,
                                       const ColRequest& request);

}  // namespace kestrelix
