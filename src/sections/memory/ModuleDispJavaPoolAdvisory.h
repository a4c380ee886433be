#pragma once

#include "report/views.h"

namespace kestrelix {

std::vector<ReleaseViews> javaPoolAdvisoryViews();

}  // namespace kestrelix
