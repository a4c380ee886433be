#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>

#include "desktop/QtProgress.h"
#include "desktop/windows.h"

namespace kestrelix {

/// What the program brings along for its windows.
struct DesktopParts {
  MessageBoxes& boxes;
  ShellServices services;
  /// The operations behind the toolbar, on the window's workspace.
  std::function<ReportOperations(Workspace&)> operations = [](Workspace&) { return ReportOperations{}; };
  std::function<QtProgress::Time()> clock = std::chrono::steady_clock::now;
};

/// The program on the screen: the login first, then the main window; with the last of them gone the event
/// loop ends.
class Desktop {
 public:
  explicit Desktop(DesktopParts parts);
  ~Desktop();

  void start();

 private:
  void showMain();
  void windowGone(std::unique_ptr<FormWindow>& window);

  DesktopParts parts_;
  QtProgress progress_;
  Workspace workspace_;
  FormLogin login_;
  std::unique_ptr<FormMain> main_;
  std::unique_ptr<FormWindow> loginWindow_;
  std::unique_ptr<FormWindow> mainWindow_;
};

/// Style and error handling of the whole program: an error that leaves an event handler is told on standard
/// error, and the program goes on.
int runDesktop(int& argc, char** argv, const std::function<DesktopParts()>& parts);

}  // namespace kestrelix
