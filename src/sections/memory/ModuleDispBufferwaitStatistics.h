#pragma once

#include "report/views.h"

namespace kestrelix {

std::vector<ReleaseViews> bufferwaitStatisticsViews();

}  // namespace kestrelix
