#pragma once

#include <string>

#include "navigation/workspace.h"
#include "options.h"

namespace kestrelix::report_tool {

/// One report on the road of the window: connect, load the lists, select, render. A step that has shown its
/// box ends with Stopped.
class ReportRun {
 public:
  struct Stopped {};

  ReportRun(MessageBoxes& boxes, const Options& options);

  Workspace& workspace() { return workspace_; }
  const std::string& version() const { return version_; }

  void loadInstances();
  /// The pairs of --instance, narrowed by --from and --to, and its Sections.
  void loadInstance();
  /// The All view of the Section for --pair.
  void showAll();
  /// The Col view that grid row --row leads to.
  void showCol();
  /// The text, or the plans, of the SQL in row --row of the ranking that showAll has shown.
  void showSqlText();
  void showSqlPlan();

 private:
  int pairIndex() const;
  void selectSection();
  void selectRow();
  void selectSqlRow();
  void narrow();
  void connect();

  const Options& options_;
  Workspace workspace_;
  std::string version_;
};

}  // namespace kestrelix::report_tool
