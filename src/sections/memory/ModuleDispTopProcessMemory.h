#pragma once

#include "report/views.h"

namespace kestrelix {

std::vector<ReleaseViews> topProcessMemoryViews();

}  // namespace kestrelix
