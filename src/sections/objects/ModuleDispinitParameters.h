#pragma once

#include "report/views.h"

namespace kestrelix {

std::vector<ReleaseViews> initParametersViews();

}  // namespace kestrelix
