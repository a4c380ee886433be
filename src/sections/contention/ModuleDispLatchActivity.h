#pragma once

#include "report/views.h"

namespace kestrelix {

std::vector<ReleaseViews> latchActivityViews();

}  // namespace kestrelix
