#pragma once

#include "report/views.h"

namespace kestrelix {

std::vector<ReleaseViews> osStatisticsViews();

}  // namespace kestrelix
