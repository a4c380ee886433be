#pragma once

#include <string>

namespace kestrelix {

/// FROM and WHERE of the undo intervals that overlap the pair, as `ud` (stats$undostat).
std::string undoIntervals();

}  // namespace kestrelix
