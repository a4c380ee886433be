// A report on a small repository, without a window: pick an instance, a Section and a pair, read the grid.
#pragma once

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "navigation/ModuleLoadCommon.h"
#include "platform/embedded/local_session.h"
#include "report/ModuleDispCommon.h"
#include "sections/SectionList.h"
#include "support/fixture_repository.h"
#include "support/recording_boxes.h"
#include "support/recording_progress.h"

namespace kestrelix::testing_support {

/// The cells as lines, one a row, with "|" between the cells.
inline std::string printed(const Grid& grid) {
  std::string text;
  for (int r = 0; r < grid.Rows(); ++r) {
    for (int c = 0; c < grid.Cols(); ++c) text += (c == 0 ? "" : "|") + grid.TextMatrix(r, c);
    text += '\n';
  }
  return text;
}

/// Opens the fixture's file as PERFSTAT and loads its instances. Views are asked for as the window does it.
///
///   ReportFixture report(repository.write());
///   report.open(0);
///   EXPECT_EQ(report.all("Wait Events", 0), "NO|EVENT|...\n1|...\n");
///   EXPECT_EQ(report.col(1), "NO|EVENT|END TIME|...\n...");
///   EXPECT_THAT(boxes(), IsEmpty());
class ReportFixture {
 public:
  explicit ReportFixture(const std::string& path) : workspace_(boxes_, &progress_) {
    workspace_.gOraSession = embedded::localSession(path);
    workspace_.gOraDatabase =
        workspace_.gOraSession->OpenDatabase("FIXTURE", "PERFSTAT/perfstat", kDatabaseOptions);
    addButtons();
    if (!gDispDbInstance_Load(workspace_)) throw std::runtime_error("fixture: no instances");
  }

  /// The pairs and Sections of an instance, by its row in the list.
  void open(int instance) {
    workspace_.controls.ComboDbInstance.ListIndex(instance);
    const clsDbInstance& instances = *workspace_.gDbInstance;
    version_ = instances.VERSION(instance).substr(0, instances.VERSION(instance).find('.'));
    if (!gDispSnapId_Load(workspace_, instances.dbid(instance), instances.INSTANCE_NUMBER(instance), false))
      throw std::runtime_error("fixture: no pairs");
    gDispSectionList(workspace_, sectionList(), version_, instances.PARALLEL(instance));
  }

  /// The grid after a click on the pair with the Section selected.
  std::string all(const std::string& section, int pair) {
    select(section);
    workspace_.controls.ListSnapId.ListIndex(pair);
    gDispSectionAll(workspace_, sectionList(), version_);
    return printed(grid());
  }

  /// The grid after a double click on that row of the All view that shows.
  std::string col(int row) {
    grid().Row(row);
    gDispSectionCol(workspace_, sectionList(), version_);
    return printed(grid());
  }

  Workspace& workspace() { return workspace_; }
  Grid& grid() { return workspace_.controls.MSFlexGridMain; }
  const std::string& version() const { return version_; }
  /// The boxes shown so far.
  const std::vector<std::string>& boxes() const { return boxes_.shown; }
  const std::vector<std::string>& errors() const { return boxes_.errors; }
  /// What was told of how far the views had come.
  const std::vector<std::string>& told() const { return progress_.calls; }

 private:
  void select(const std::string& section) {
    ListBox& list = workspace_.controls.ListSection;
    for (int i = 0; i < list.ListCount(); ++i) {
      if (list.List(i) != section) continue;
      list.ListIndex(i);
      return;
    }
    throw std::runtime_error("fixture: " + section + " is not listed");
  }

  void addButtons() {
    for (const char* key : {"GRID", "SQL", "PLAN", "GRAPH_START", "GRAPH_LEFT", "GRAPH_DISP", "GRAPH_MAX",
                            "LIST", "GRAPH_RIGHT", "GRAPH_END", "START", "END", "COPY", "HELP"})
      workspace_.controls.ToolbarTop.Add(key, key, "");
  }

  RecordingBoxes boxes_;
  RecordingProgress progress_;
  Workspace workspace_;
  std::string version_;
};

}  // namespace kestrelix::testing_support
