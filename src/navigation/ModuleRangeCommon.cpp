#include "navigation/ModuleRangeCommon.h"

#include "navigation/ModuleLoadCommon.h"
#include "platform/guarded.h"

namespace kestrelix {
namespace {

constexpr const char* kModule = "ModuleRangeCommon";

/// Loads the pairs of the selected instance. On a failure the main window goes, and nothing is left to
/// select.
bool loadPairs(Workspace& workspace, bool useRange) {
  const int instance = workspace.controls.ComboDbInstance.ListIndex();
  if (gDispSnapId_Load(workspace, workspace.gDbInstance->dbid(instance),
                       workspace.gDbInstance->INSTANCE_NUMBER(instance), useRange))
    return true;
  workspace.unloadMain();
  return false;
}

bool narrow(Workspace& workspace, const char* member, bool (clsSnapRange::*take)(int)) {
  bool loaded = false;
  const bool done = guarded(workspace.boxes, kModule, member, [&] {
    (*workspace.gSnapRange.*take)(workspace.controls.ListSnapId.ListIndex());
    loaded = loadPairs(workspace, true);
    if (!loaded) return;
    workspace.controls.ListSnapId.ListIndex(0);
    workspace.gSnapRange->Initialize(*workspace.gSnapId);
  });
  return done && loaded;
}

}  // namespace

bool gFrameRangeDataInit(Workspace& workspace) {
  bool loaded = false;
  const bool done = guarded(workspace.boxes, kModule, "gFrameRangeDataInit", [&] {
    loaded = loadPairs(workspace, false);
    if (!loaded) return;
    workspace.controls.ListSection.ListIndex(0);
    workspace.controls.ListSnapId.ListIndex(0);
    workspace.gSnapRange->Initialize(*workspace.gSnapId);
  });
  return done && loaded;
}

bool gFrameRangeSetStartId(Workspace& workspace) {
  return narrow(workspace, "gFrameRangeSetStartId", &clsSnapRange::gSetStartId);
}

bool gFrameRangeSetEndId(Workspace& workspace) {
  return narrow(workspace, "gFrameRangeSetEndId", &clsSnapRange::gSetEndId);
}

}  // namespace kestrelix
