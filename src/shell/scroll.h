#pragma once

#include "platform/controls/grid.h"

namespace kestrelix {

/// Moves the grid by one row for a turn of the wheel: down for -1 (towards the user), up for 1. A grid that
/// shows all its rows (`overflows` is false) stays.
void scrollByWheel(Grid& grid, int direction, bool overflows);

}  // namespace kestrelix
