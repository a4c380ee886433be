#pragma once

#include <functional>

#include "navigation/repository.h"
#include "platform/message_box.h"
#include "platform/progress.h"
#include "shell/MainControls.h"

namespace kestrelix {

/// What the two windows share: the repository, which the login opens and the main window reads, and what the
/// latter shows of it.
struct Workspace {
  /// Without `shown` nobody is told how far an action has come.
  explicit Workspace(MessageBoxes& messageBoxes, Progress* shown = nullptr)
      : boxes(messageBoxes), progress(shown != nullptr ? *shown : untold_) {}
  Workspace(const Workspace&) = delete;
  Workspace& operator=(const Workspace&) = delete;

  MessageBoxes& boxes;
  Progress& progress;
  Repository repository;
  MainControls controls;

  /// Unloads the main window: there is no state of it without instances or pairs.
  std::function<void()> unloadMain = [] {};

 private:
  Progress untold_;
};

}  // namespace kestrelix
