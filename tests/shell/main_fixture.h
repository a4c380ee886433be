// The main window without a screen, over a small catalogue of its own.
#pragma once

#include "shell/FormMain.h"
#include "shell/shell_fixture.h"

namespace kestrelix::testing_support {

inline std::vector<ReleaseViews> someViews() { return {{kAllVersions, nullptr, AnyListView{}}}; }

inline SectionList smallCatalogue() {
  static const std::vector<Section> sections{
      {.text = "Snapshot", .code = 0, .versions = kAllVersions, .col = byRow(), .views = someViews()},
      {.text = "SQL ordered by Gets TOTAL",
       .code = 34,
       .versions = kAllVersions,
       .sqlButtons = true,
       .col = byCells({1}),
       .views = someViews()},
      {.text = "RAC Statistics",
       .code = 10,
       .versions = V10_11,
       .needsRac = true,
       .col = anyRow(),
       .views = someViews()},
      {.text = "Undo Segment Stats",
       .code = 103,
       .versions = kAllVersions,
       .col = refused(),
       .views = someViews()},
      {.text = "Empty", .code = 104, .versions = kAllVersions, .col = byCells({1}), .views = someViews()}};
  return sections;
}

/// Chart and SQL operations that keep what they were called with.
struct RecordingOperations {
  std::vector<std::string> calls;
  bool graphAccepts = true;

  ReportOperations operations() {
    const auto page = [this](const char* name) {
      return [this, name] {
        calls.push_back(name);
        return true;
      };
    };
    ReportOperations all;
    all.gDispSqlText = [this](const std::string& version) { calls.push_back("gDispSqlText " + version); };
    all.gDispSQLPlan = [this](const std::string& version) { calls.push_back("gDispSQLPlan " + version); };
    all.toggleShaping = [this](bool& shaped, Grid& grid) {
      shaped = !shaped;
      calls.push_back("toggle " + grid.name());
    };
    all.graph = {[this](Grid& grid, Chart& chart, Toolbar& toolbar) {
                   calls.push_back("Initialize " + grid.name() + " " + chart.name() + " " + toolbar.name());
                   return graphAccepts;
                 },
                 page("StartPage"),
                 page("BeforePage"),
                 page("AtferPage"),
                 page("EndPage"),
                 page("MaxValuePage")};
    return all;
  }
};

/// An Oracle 10 cluster instance with four snapshots, logged on as PERFSTAT@DEMO.
class MainTest : public ShellTest {
 protected:
  explicit MainTest(bool connected = true)
      : main(workspace, services, connected ? recorded.operations() : ReportOperations{}) {
    services.sections = smallCatalogue();
    rendered().clear();
    layInstance(server, "1001", "10.2.0.4.0", "1", "YES");
    laySnapshots(server, {{"1", "2026-01-05 10:00:00"},
                          {"2", "2026-01-05 11:00:00"},
                          {"3", "2026-01-05 12:00:00"},
                          {"4", "2026-01-05 13:00:00"}});
    workspace.repository.gOraSession = std::make_unique<FakeSession>(server);
    workspace.repository.gOraDatabase = std::make_unique<FakeDatabase>(server);
    login.controls.TextUSER.Text("perfstat");
    login.controls.TextTNS.Text("Demo");
    main.Unloaded.connect([this] { ++unloads; });
  }

  void load() { main.Load(1, login); }
  void section(const std::string& text) {
    ListBox& list = controls.ListSection;
    for (int i = 0; i < list.ListCount(); ++i)
      if (list.List(i) == text) return list.ListIndex(i);
    ADD_FAILURE() << text << " is not listed";
  }
  void pair(int i) { controls.ListSnapId.ListIndex(i); }
  void show(const std::string& text) {
    section(text);
    pair(0);
  }
  void doubleClick(int row, int col = 1) {
    controls.MSFlexGridMain.userClick(row, col);
    controls.MSFlexGridMain.userDoubleClick(row, col);
  }
  void press(const char* key) { controls.ToolbarTop.press(key); }

  /// The enabled buttons, in the toolbar's order.
  std::string enabled() const {
    std::string keys;
    for (const Toolbar::Button& button : controls.ToolbarTop.buttons())
      if (button.enabled) keys += (keys.empty() ? "" : " ") + button.key;
    return keys;
  }
  /// The panels that show: grids, the chart's frame with the chart, the lists.
  std::string panels() const {
    std::string names;
    for (const Control* control : std::initializer_list<const Control*>{
             &controls.MSFlexGridMain, &controls.MSFlexGridSql, &controls.MSFlexGridPlan,
             &controls.FrameGraph, &controls.MSChartCommon, &controls.FrameDbInstance,
             &controls.ComboDbInstance, &controls.FrameSnapId, &controls.ListSnapId, &controls.FrameSection,
             &controls.ListSection})
      if (control->Visible()) names += (names.empty() ? "" : " ") + control->name();
    return names;
  }

  RecordingOperations recorded;
  FormLogin login{workspace, services};
  FormMain main;
  MainControls& controls = workspace.controls;
  int unloads = 0;
};

}  // namespace kestrelix::testing_support
