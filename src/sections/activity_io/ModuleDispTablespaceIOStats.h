#pragma once

#include "report/views.h"

namespace kestrelix {

std::vector<ReleaseViews> tablespaceIOStatsViews();

}  // namespace kestrelix
