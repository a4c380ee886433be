#include "shell/layout.h"

namespace kestrelix {

const WindowLayout& mainLayout() {
  static constexpr ControlPlace places[] = {
      {"ToolbarTop", "", 0, 0, 11685, 420},
      {"FrameDbInstance", "", 57, 451, 11554, 855},
      {"LabelDbInstance", "FrameDbInstance", 120, 240, 11295, 195},
      {"ComboDbInstance", "FrameDbInstance", 120, 440, 11295, 300},
      {"FrameSnapId", "", 54, 1328, 7905, 2610},
      {"LabelSnapId", "FrameSnapId", 120, 240, 7650, 195},
      {"ListSnapId", "FrameSnapId", 120, 435, 7650, 2040},
      {"FrameSection", "", 8040, 1328, 3570, 2610},
      {"ListSection", "", 8160, 1593, 3315, 2220},
      {"MSFlexGridMain", "", 51, 3982, 11580, 3929},
      {"MSFlexGridSql", "", 51, 3982, 11580, 3929},
      {"MSFlexGridPlan", "", 51, 3982, 11580, 3929},
      {"FrameGraph", "", 58, 451, 11554, 7434, 9.75},
      {"MSChartCommon", "FrameGraph", 95, 240, 11415, 7095},
  };
  static constexpr WindowLayout layout{11685, 7965, 9, places};
  return layout;
}

/// The order is that of the tab key, the grid last.
const WindowLayout& loginLayout() {
  static constexpr ControlPlace places[] = {
      {"LabelUSER", "", 120, 2745, 735, 255, 0, true}, {"TextUSER", "", 960, 2640, 3615, 375},
      {"LabelPASS", "", 120, 3180, 735, 255, 0, true}, {"TextPASS", "", 960, 3120, 3615, 375},
      {"LabelTNS", "", 120, 3645, 735, 255, 0, true},  {"TextTNS", "", 960, 3600, 3615, 375},
      {"CommandOK", "", 120, 4080, 1335, 495},         {"CommandCANCEL", "", 1560, 4080, 1455, 495},
      {"CommandDELETE", "", 3120, 4080, 1455, 495},    {"MSFlexGridLogin", "", 120, 120, 4455, 2415},
  };
  static constexpr WindowLayout layout{4680, 4665, 12, places};
  return layout;
}

}  // namespace kestrelix
