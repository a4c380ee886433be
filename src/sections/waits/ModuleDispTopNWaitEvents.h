#pragma once

#include "report/views.h"

namespace kestrelix {

std::vector<ReleaseViews> topNWaitEventsViews();

}  // namespace kestrelix
