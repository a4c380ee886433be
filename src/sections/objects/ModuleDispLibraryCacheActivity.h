#pragma once

#include "report/views.h"

namespace kestrelix {

std::vector<ReleaseViews> libraryCacheActivity1Views();
std::vector<ReleaseViews> libraryCacheActivity2Views();

}  // namespace kestrelix
