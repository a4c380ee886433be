#pragma once

#include "report/views.h"

namespace kestrelix {

std::vector<ReleaseViews> memoryDynamicComponentsViews();

}  // namespace kestrelix
