#pragma once

#include <memory>
#include <string>

#include "shell/FormLogin.h"
#include "shell/report_operations.h"

namespace kestrelix {

/// The one working window: holds the report's small state, routes every action of the user, and decides which
/// panels and buttons are live. After it has been unloaded nothing of it reacts any more.
class FormMain {
 public:
  FormMain(Workspace& workspace, const ShellServices& services, ReportOperations operations = {});

  /// Loads the lists and the first report. The title tells the login's user and TNS name. A failed load
  /// unloads the window: look at unloaded() before showing it.
  void Load(clsWheelMouse::Handle hWnd, const FormLogin& login);
  /// Closes the connection, and the help windows after it.
  void Unload();
  bool unloaded() const { return unloaded_; }
  Signal<> Unloaded;

  /// Shift states and key codes as the window system gives them: 2 is Ctrl alone.
  static constexpr int kCtrlAlone = 2;
  /// A key that the window sees ahead of its controls; true for a key of the window's, which they then don't
  /// see, also if its button is off.
  bool KeyDown(int keyCode, int shift);
  /// A key on one of the grids; true if it has copied.
  bool GridKeyDown(const Grid& grid, int keyCode, int shift);

  void m_CWheel_MouseWheel(int direction);
  /// Changes between the chart and the lists with the main grid.
  void ShowGraphPanel(bool show);

  const std::string& version() const { return mVersion; }
  const std::string& rac() const { return mRac; }
  const std::string& reportMode() const { return mReportMode; }
  bool shapedText() const { return shaped; }

 private:
  void setUpControls();
  void connectEvents();
  void ComboDbInstance_Click();
  void ListSnapId_Click();
  void MSFlexGridMain_DblClick();
  void MSFlexGridSql_DblClick();
  void ToolbarTop_ButtonClick(const std::string& key);
  void showGrid(const Grid& shown);
  void disableUnconnected();
  void displayGraph();
  void copyGrid(const Grid& grid);
  std::string helpFile() const;

  Workspace& workspace_;
  MainControls& controls_;
  const ShellServices& services_;
  ReportOperations operations_;
  std::unique_ptr<clsWheelMouse> m_CWheel;
  std::string mVersion;     // "9", "10", "11"; a refused one too
  std::string mRac;         // "YES" for a cluster database
  std::string mReportMode;  // "All" or "Col"
  bool shaped = false;
  bool unloaded_ = false;
};

}  // namespace kestrelix
