// The range of snapshots: what "START" and "END" do, and the load that every choice of an instance starts
// with. Each shows its box and gives false on a failure; a failed load of the pairs unloads the main window.
#pragma once

#include "shell/workspace.h"

namespace kestrelix {

/// All pairs of the selected instance; selects the first Section and the first pair.
bool gFrameRangeDataInit(Workspace& workspace);
/// The selected pair becomes the first of the list.
bool gFrameRangeSetStartId(Workspace& workspace);
/// The selected pair becomes the last of the list.
bool gFrameRangeSetEndId(Workspace& workspace);

}  // namespace kestrelix
