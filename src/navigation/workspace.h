// What the loaders and renderers of one report window reach: its connection, its lists and its controls.
#pragma once

#include <functional>
#include <memory>

#include "navigation/clsDbInstance.h"
#include "navigation/clsSnapId.h"
#include "navigation/clsSnapRange.h"
#include "platform/controls.h"
#include "platform/database.h"
#include "platform/message_box.h"
#include "platform/progress.h"

namespace kestrelix {

/// The controls of the main window, by name.
struct MainControls {
  static constexpr int kGridWidth = 11580;  // twips

  Label Title{"FormMain"};
  Toolbar ToolbarTop{"ToolbarTop"};
  Frame FrameDbInstance{"FrameDbInstance"};
  Label LabelDbInstance{"LabelDbInstance"};
  ComboBox ComboDbInstance{"ComboDbInstance"};
  Frame FrameSnapId{"FrameSnapId"};
  Label LabelSnapId{"LabelSnapId"};
  ListBox ListSnapId{"ListSnapId"};
  Frame FrameSection{"FrameSection"};
  ListBox ListSection{"ListSection"};
  Grid MSFlexGridMain{"MSFlexGridMain", kGridWidth};
  Grid MSFlexGridSql{"MSFlexGridSql", kGridWidth};
  Grid MSFlexGridPlan{"MSFlexGridPlan", kGridWidth};
  Frame FrameGraph{"FrameGraph"};
  Chart MSChartCommon{"MSChartCommon"};
};

/// One connection with one report on it. The members named g... are what every part of the report shares.
struct Workspace {
  /// Without `shown` nobody is told how far an action has come.
  explicit Workspace(MessageBoxes& messageBoxes, Progress* shown = nullptr)
      : boxes(messageBoxes), progress(shown != nullptr ? *shown : untold_) {}
  Workspace(const Workspace&) = delete;
  Workspace& operator=(const Workspace&) = delete;

  MessageBoxes& boxes;
  Progress& progress;
  MainControls controls;

  std::unique_ptr<Session> gOraSession;
  std::unique_ptr<Database> gOraDatabase;
  std::unique_ptr<clsDbInstance> gDbInstance;
  std::unique_ptr<clsSnapId> gSnapId;
  std::unique_ptr<clsSnapRange> gSnapRange;

  /// Unloads the main window: there is no state of it without instances or pairs.
  std::function<void()> unloadMain = [] {};

 private:
  Progress untold_;
};

}  // namespace kestrelix
