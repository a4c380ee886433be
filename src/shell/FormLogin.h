#pragma once

#include <functional>
#include <string>

#include "shell/LoginControls.h"
#include "shell/ModuleLoginCommon.h"
#include "shell/clsWheelMouse.h"
#include "shell/services.h"
#include "shell/workspace.h"

namespace kestrelix {

/// The first window: picks a login, opens the connection, stores the login and hands over to the main window.
class FormLogin {
 public:
  FormLogin(Workspace& workspace, const ShellServices& services);

  LoginControls controls;

  /// The login that the main window's title tells, as it stands in the boxes, in upper case.
  std::string user() const;
  std::string tns() const;

  /// Loads and shows the main window. It runs while the dialog is still there; the dialog goes right after.
  std::function<void()> showMain = [] {};

  void Load(clsWheelMouse::Handle hWnd);
  /// Ends the dialog; nothing of it reacts any more.
  void Unload();
  bool unloaded() const { return unloaded_; }
  Signal<> Unloaded;

  void m_CWheel_MouseWheel(int direction);

 private:
  void CommandOK_Click();
  void CommandDELETE_Click();
  void MSFlexGridLogin_Click();
  void MSFlexGridLogin_DblClick();
  bool connect(const std::string& tns, const std::string& user, const std::string& password);
  void handOver();
  void fail(const char* text);

  Workspace& workspace_;
  const ShellServices& services_;
  StoredLogins stored_;
  clsWheelMouse m_CWheel;
  bool unloaded_ = false;
};

}  // namespace kestrelix
