#pragma once

#include "report/views.h"

namespace kestrelix {

std::vector<ReleaseViews> instanceActivityStats1Views();
std::vector<ReleaseViews> instanceActivityStats2Views();
std::vector<ReleaseViews> instanceActivityStats3Views();

}  // namespace kestrelix
