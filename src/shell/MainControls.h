#pragma once

#include "platform/controls.h"

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

}  // namespace kestrelix
