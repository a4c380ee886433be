#pragma once

#include "report/views.h"

namespace kestrelix {

std::vector<ReleaseViews> fileReadHistogramStatsViews();

}  // namespace kestrelix
