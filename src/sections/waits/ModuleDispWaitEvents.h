#pragma once

#include "report/views.h"

namespace kestrelix {

std::vector<ReleaseViews> waitEventsViews();

}  // namespace kestrelix
