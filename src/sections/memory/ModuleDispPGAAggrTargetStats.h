#pragma once

#include "report/views.h"

namespace kestrelix {

std::vector<ReleaseViews> pgaAggrTargetStats1Views();
std::vector<ReleaseViews> pgaAggrTargetStats2Views();

}  // namespace kestrelix
