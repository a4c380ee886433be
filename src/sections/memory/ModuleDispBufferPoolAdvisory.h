#pragma once

#include "report/views.h"

namespace kestrelix {

std::vector<ReleaseViews> bufferPoolAdvisoryViews();

}  // namespace kestrelix
