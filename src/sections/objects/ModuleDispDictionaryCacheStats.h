#pragma once

#include "report/views.h"

namespace kestrelix {

std::vector<ReleaseViews> dictionaryCacheStats1Views();
std::vector<ReleaseViews> dictionaryCacheStats2Views();

}  // namespace kestrelix
