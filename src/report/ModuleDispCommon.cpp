#include "report/ModuleDispCommon.h"

#include <algorithm>

namespace kestrelix {
namespace {

const SectionEntry* selected(const Workspace& workspace, SectionList sections) {
  const std::string text = workspace.controls.ListSection.Text();
  const auto found = std::find_if(sections.begin(), sections.end(),
                                  [&](const SectionEntry& entry) { return entry.text == text; });
  return found == sections.end() ? nullptr : &*found;
}

/// A cell of the grid; empty off the grid, which can still show another Section when the rendering of the
/// selected one failed.
std::string key(const Grid& grid, int row, int column) {
  return column < grid.Cols() ? grid.TextMatrix(row, column) : std::string();
}

}  // namespace

void gDispSectionList(Workspace& workspace, SectionList sections, const std::string& version,
                      const std::string& parallel) {
  ListBox& list = workspace.controls.ListSection;
  list.Clear();
  for (const SectionEntry& entry : sections)
    if ((entry.versions & versionOf(version)) != 0 && (!entry.needsRac || parallel == "YES"))
      list.AddItem(std::string(entry.text), entry.code);
  list.ListIndex(0);
}

void gDispSectionAll(Workspace& workspace, SectionList sections, const std::string& version) {
  MainControls& controls = workspace.controls;
  controls.MSFlexGridMain.Visible(true);
  controls.MSFlexGridSql.Visible(false);
  controls.MSFlexGridPlan.Visible(false);
  const SectionEntry* entry = selected(workspace, sections);
  if (entry == nullptr) return;
  controls.ToolbarTop.Enabled({"GRID", "SQL", "PLAN"}, entry->sqlButtons);
  // A rendering that failed has left its binds in place.
  workspace.gOraDatabase->parameters().clear();
  entry->all(workspace, version);
}

void gDispSectionCol(Workspace& workspace, SectionList sections, const std::string& version) {
  const SectionEntry* entry = selected(workspace, sections);
  if (entry == nullptr) return;
  const Grid& grid = workspace.controls.MSFlexGridMain;
  ColRequest request{grid.Row(), {}};
  for (const int column : entry->col.keyColumns) request.keys.push_back(key(grid, request.row, column));
  workspace.gOraDatabase->parameters().clear();
  switch (entry->col.kind) {
    case ColEntry::Kind::Rows:
    case ColEntry::Kind::Keys:
      entry->col.col(workspace, version, request);
      break;
    case ColEntry::Kind::BeginEnd: {
      const std::string edge = key(grid, request.row, 1);
      if (edge == "B") entry->col.col(workspace, version, request);
      if (edge == "E") entry->col.endCol(workspace, version, request);
      break;
    }
    case ColEntry::Kind::Refused:
      workspace.boxes.show(BoxIcon::Exclamation, "The time series display is not supported.");
      break;
  }
}

}  // namespace kestrelix
