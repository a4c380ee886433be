#include "shell/ModuleRangeCommon.h"

#include "platform/failure.h"
#include "shell/ModuleLoadCommon.h"

namespace kestrelix {
namespace {

constexpr const char* kModule = "ModuleRangeCommon";

/// Loads the pairs of the selected instance. On a failure the main window goes, and nothing is left to
/// select.
bool loadPairs(Workspace& workspace, bool useRange) {
  const int instance = workspace.controls.ComboDbInstance.ListIndex();
  if (gDispSnapId_Load(workspace, workspace.repository.gDbInstance->dbid(instance),
                       workspace.repository.gDbInstance->INSTANCE_NUMBER(instance), useRange))
    return true;
  workspace.unloadMain();
  return false;
}

bool narrow(Workspace& workspace, const char* member,
            bool (clsSnapRange::*take)(const clsSnapId&, int, Failures&)) {
  Repository& repository = workspace.repository;
  bool loaded = false;
  const bool done = guarded(workspace.boxes, kModule, member, [&] {
    Failures failures;
    (repository.gSnapRange.*take)(*repository.gSnapId, workspace.controls.ListSnapId.ListIndex(), failures);
    showFailures(workspace.boxes, failures);
    loaded = loadPairs(workspace, true);
    if (!loaded) return;
    workspace.controls.ListSnapId.ListIndex(0);
    repository.gSnapRange.Initialize(*repository.gSnapId);
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
    workspace.repository.gSnapRange.Initialize(*workspace.repository.gSnapId);
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
