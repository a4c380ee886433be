#pragma once

#include "report/views.h"

namespace kestrelix {

std::vector<ReleaseViews> pgaAggrTargetHistogramViews();

}  // namespace kestrelix
