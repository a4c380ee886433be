#include "shell/FormMain.h"

#include "navigation/version_gate.h"
#include "shell/ModuleCommon.h"
#include "shell/ModuleDispCommon.h"
#include "shell/ModuleLoadCommon.h"
#include "shell/ModuleRangeCommon.h"
#include "shell/scroll.h"

namespace kestrelix {
namespace {

constexpr Colour kColViewColour = 0xE0E0E0;
constexpr int kRowsShown = 17;  // heading included
constexpr int kRowsShownAboveScrollBar = 16;
constexpr int kShapedColumn = 4;
constexpr int kKeyC = 67;

struct ToolbarButton {
  const char* key;
  const char* toolTip;
  const char* image;
};
constexpr ToolbarButton kButtons[] = {{"GRID", "GRID(Ctrl+G)", "IMG1"},
                                      {"SQL", "SQL(Ctrl+S)", "IMG2"},
                                      {"PLAN", "PLAN(Ctrl+P)", "IMG3"},
                                      {"GRAPH_START", "GRAPH_START", "IMG11"},
                                      {"GRAPH_LEFT", "GRAPH_LEFT", "IMG6"},
                                      {"GRAPH_DISP", "GRAPH_DISP", "IMG7"},
                                      {"GRAPH_MAX", "GRAPH_MAX", "IMG12"},
                                      {"LIST", "LIST", "IMG10"},
                                      {"GRAPH_RIGHT", "GRAPH_RIGHT", "IMG8"},
                                      {"GRAPH_END", "GRAPH_END", "IMG13"},
                                      {"START", "START", ""},
                                      {"END", "END", ""},
                                      {"COPY", "COPY", "IMG5"},
                                      {"HELP", "HELP", "IMG15"}};

template <class Operation>
bool run(const Operation& operation) {
  return operation && operation();
}

}  // namespace

FormMain::FormMain(Workspace& workspace, const ShellServices& services, ReportOperations operations)
    : workspace_(workspace),
      controls_(workspace.controls),
      services_(services),
      operations_(std::move(operations)) {
  setUpControls();
  connectEvents();
}

void FormMain::setUpControls() {
  for (const ToolbarButton& button : kButtons)
    controls_.ToolbarTop.Add(button.key, button.toolTip, button.image);
  controls_.Title.Caption("FormMain");
  controls_.FrameDbInstance.Caption("DB INSTANCE");
  controls_.FrameSnapId.Caption("SNAP ID");
  controls_.FrameSection.Caption("SECTION");
  controls_.FrameGraph.Caption("GRAPH");
  // A name that no Section bears: the first pair is selected before the Sections are listed.
  controls_.ListSection.AddItem("ListSection");
}

void FormMain::connectEvents() {
  const auto when = [this](void (FormMain::*handler)()) {
    return [this, handler] {
      if (unloaded_) return;
      const Action action(workspace_.progress);
      (this->*handler)();
    };
  };
  controls_.ComboDbInstance.Click.connect(when(&FormMain::ComboDbInstance_Click));
  controls_.ListSnapId.Click.connect(when(&FormMain::ListSnapId_Click));
  controls_.MSFlexGridMain.DblClick.connect(when(&FormMain::MSFlexGridMain_DblClick));
  controls_.MSFlexGridSql.DblClick.connect(when(&FormMain::MSFlexGridSql_DblClick));
  controls_.FrameGraph.DblClick.connect([this] {
    if (!unloaded_) ShowGraphPanel(false);
  });
  controls_.ToolbarTop.ButtonClick.connect([this](const std::string& key) {
    if (unloaded_) return;
    const Action action(workspace_.progress);
    ToolbarTop_ButtonClick(key);
  });
  workspace_.unloadMain = [this] { Unload(); };
}

void FormMain::Load(clsWheelMouse::Handle hWnd, const FormLogin& login) {
  const Action action(workspace_.progress);
  m_CWheel = std::make_unique<clsWheelMouse>();
  m_CWheel->MouseWheel.connect([this](int direction) { m_CWheel_MouseWheel(direction); });
  m_CWheel->Initialize(hWnd);
  workspace_.repository.gSnapRange = {};

  controls_.FrameGraph.Visible(false);
  controls_.MSChartCommon.Visible(false);
  showGrid(controls_.MSFlexGridMain);
  controls_.ToolbarTop.Enabled({"GRID", "SQL", "PLAN", "GRAPH_START", "GRAPH_LEFT", "GRAPH_DISP", "GRAPH_MAX",
                                "LIST", "GRAPH_RIGHT", "GRAPH_END"},
                               false);

  controls_.LabelDbInstance.Caption(kDbInstanceHeading);
  if (!gDispDbInstance_Load(workspace_)) return Unload();
  controls_.ComboDbInstance.ListIndex(0);
  if (unloaded_) return;
  controls_.LabelSnapId.Caption(kSnapIdHeading);
  controls_.Title.Caption("Kestrelix  [" + login.user() + "@" + login.tns() + "]");
  // The choice of the instance has listed the Sections by now: this pass shows the first report.
  gFrameRangeDataInit(workspace_);
  shaped = false;
}

void FormMain::Unload() {
  if (unloaded_) return;
  unloaded_ = true;
  operations_ = {};
  if (m_CWheel) m_CWheel->Terminate();
  m_CWheel.reset();
  CLOSE_Connect(workspace_);
  services_.help.HtmlHelp(helpFile(), HelpViewer::kCloseAll);
  Unloaded();
}

/// The pairs are loaded ahead of the look at the version, so for a refused database too.
void FormMain::ComboDbInstance_Click() {
  gFrameRangeDataInit(workspace_);
  if (unloaded_) return;
  const int instance = controls_.ComboDbInstance.ListIndex();
  mVersion = majorVersion(workspace_.repository.gDbInstance->VERSION(instance));
  const Failures refused = versionGate(mVersion);
  showFailures(workspace_.boxes, refused);
  if (!refused.empty()) return;
  mRac = workspace_.repository.gDbInstance->PARALLEL(instance);
  gDispSectionList(workspace_, services_.sections, mVersion, mRac);
}

void FormMain::ListSnapId_Click() {
  shaped = false;
  controls_.ToolbarTop.Enabled(
      {"GRAPH_START", "GRAPH_LEFT", "GRAPH_DISP", "GRAPH_MAX", "LIST", "GRAPH_RIGHT", "GRAPH_END"}, false);
  controls_.MSFlexGridMain.BackColor(kWindowColour);
  mReportMode = "All";
  gDispSectionAll(workspace_, *services_.reader, services_.sections, mVersion);
  disableUnconnected();
}

void FormMain::disableUnconnected() {
  if (!operations_.gDispSqlText) controls_.ToolbarTop.Enabled("SQL", false);
  if (!operations_.gDispSQLPlan) controls_.ToolbarTop.Enabled("PLAN", false);
}

/// The mode changes ahead of the dispatch and stays changed when the Section has no time series.
void FormMain::MSFlexGridMain_DblClick() {
  if (controls_.MSFlexGridMain.Row() < 1) return;
  if (mReportMode == "Col") return displayGraph();
  if (mReportMode != "All") return;
  mReportMode = "Col";
  gDispSectionCol(workspace_, *services_.reader, services_.sections, mVersion);
  controls_.ToolbarTop.Enabled(
      {"GRID", "SQL", "PLAN", "GRAPH_START", "GRAPH_LEFT", "GRAPH_MAX", "LIST", "GRAPH_RIGHT", "GRAPH_END"},
      false);
  controls_.ToolbarTop.Enabled("GRAPH_DISP", static_cast<bool>(operations_.graph.Initialize));
  controls_.MSFlexGridMain.BackColor(kColViewColour);
}

void FormMain::MSFlexGridSql_DblClick() {
  if (controls_.MSFlexGridSql.Col() != kShapedColumn || !operations_.toggleShaping) return;
  operations_.toggleShaping(shaped, controls_.MSFlexGridSql);
}

void FormMain::ToolbarTop_ButtonClick(const std::string& key) {
  if (key == "GRID") {
    shaped = false;
    showGrid(controls_.MSFlexGridMain);
  } else if (key == "SQL") {
    shaped = false;
    showGrid(controls_.MSFlexGridSql);
    if (operations_.gDispSqlText) operations_.gDispSqlText(mVersion);
  } else if (key == "PLAN") {
    shaped = false;
    showGrid(controls_.MSFlexGridPlan);
    if (operations_.gDispSQLPlan) operations_.gDispSQLPlan(mVersion);
  } else if (key == "GRAPH_START") {
    run(operations_.graph.StartPage);
  } else if (key == "GRAPH_LEFT") {
    run(operations_.graph.BeforePage);
  } else if (key == "GRAPH_DISP") {
    displayGraph();
  } else if (key == "GRAPH_MAX") {
    run(operations_.graph.MaxValuePage);
  } else if (key == "LIST") {
    ShowGraphPanel(false);
  } else if (key == "GRAPH_RIGHT") {
    run(operations_.graph.AtferPage);
  } else if (key == "GRAPH_END") {
    run(operations_.graph.EndPage);
  } else if (key == "START") {
    gFrameRangeSetStartId(workspace_);
  } else if (key == "END") {
    gFrameRangeSetEndId(workspace_);
  } else if (key == "COPY") {
    copyGrid(controls_.MSFlexGridMain);
  } else if (key == "HELP") {
    services_.help.HtmlHelp(helpFile(), HelpViewer::kDisplayContents);
  }
}

void FormMain::showGrid(const Grid& shown) {
  for (Grid* grid : {&controls_.MSFlexGridMain, &controls_.MSFlexGridSql, &controls_.MSFlexGridPlan})
    grid->Visible(grid == &shown);
}

void FormMain::displayGraph() {
  const GraphOperations& graph = operations_.graph;
  if (!graph.Initialize ||
      !graph.Initialize(controls_.MSFlexGridMain, controls_.MSChartCommon, controls_.ToolbarTop))
    return;
  if (run(graph.StartPage)) ShowGraphPanel(true);
}

void FormMain::ShowGraphPanel(bool show) {
  MainControls& c = controls_;
  c.FrameGraph.Visible(show);
  c.MSChartCommon.Visible(show);
  for (Control* control :
       std::initializer_list<Control*>{&c.FrameDbInstance, &c.FrameSnapId, &c.FrameSection, &c.ListSection,
                                       &c.ListSnapId, &c.ComboDbInstance, &c.MSFlexGridMain})
    control->Visible(!show);
  c.ToolbarTop.Enabled({"COPY", "START", "END"}, !show);
  if (show) return;  // the pager sets its buttons
  c.ToolbarTop.Enabled({"GRAPH_START", "GRAPH_LEFT", "GRAPH_MAX", "LIST", "GRAPH_RIGHT", "GRAPH_END"}, false);
  c.ToolbarTop.Enabled("GRAPH_DISP", true);
}

bool FormMain::KeyDown(int keyCode, int shift) {
  if (unloaded_ || shift != kCtrlAlone) return false;
  const char* const key = keyCode == 'G'   ? "GRID"
                          : keyCode == 'S' ? "SQL"
                          : keyCode == 'P' ? "PLAN"
                                           : nullptr;
  if (key == nullptr) return false;
  controls_.ToolbarTop.press(key);
  return true;
}

bool FormMain::GridKeyDown(const Grid& grid, int keyCode, int shift) {
  if (unloaded_ || shift != kCtrlAlone || keyCode != kKeyC) return false;
  copyGrid(grid);
  return true;
}

void FormMain::copyGrid(const Grid& grid) {
  services_.clipboard.Clear();
  services_.clipboard.SetText(grid.Clip());
}

/// The limit of the main grid counts for all three, shown or not.
void FormMain::m_CWheel_MouseWheel(int direction) {
  if (unloaded_) return;
  const int limit =
      gWidthScrollCheck(controls_.MSFlexGridMain, workspace_.boxes) ? kRowsShownAboveScrollBar : kRowsShown;
  for (Grid* grid : {&controls_.MSFlexGridMain, &controls_.MSFlexGridSql, &controls_.MSFlexGridPlan})
    scrollByWheel(*grid, direction, grid->Rows() > limit);
}

std::string FormMain::helpFile() const { return (services_.programFolder / "Kestrelix.chm").string(); }

}  // namespace kestrelix
