#pragma once

#include "report/views.h"

namespace kestrelix {

/// By sending instance and class: the form on show.
std::vector<ReleaseViews> globalCacheTransferStatsBlockViews();
/// By class alone: complete, and out of service.
std::vector<ReleaseViews> globalCacheTransferStatsClassViews();
/// The form that the constant in the source chooses.
std::vector<ReleaseViews> globalCacheTransferStatsViews();

}  // namespace kestrelix
