#include "shell/scroll.h"

namespace kestrelix {

void scrollByWheel(Grid& grid, int direction, bool overflows) {
  const int top = grid.TopRow();
  if (direction == -1 && top >= 1 && top < grid.Rows() && overflows)
    grid.TopRow(top + 1);
  else if (direction == 1 && top >= 2 && top <= grid.Rows() && overflows)
    grid.TopRow(top - 1);
}

}  // namespace kestrelix
