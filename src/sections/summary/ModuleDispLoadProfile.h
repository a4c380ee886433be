#pragma once

#include "report/views.h"

namespace kestrelix {

std::vector<ReleaseViews> loadProfileViews();

}  // namespace kestrelix
