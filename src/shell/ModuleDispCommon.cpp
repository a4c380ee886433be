#include "shell/ModuleDispCommon.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

ReportSource sourceOf(Workspace& workspace, const std::string& version) {
  const Repository& repository = workspace.repository;
  return {*repository.gOraDatabase, *repository.gSnapId, version, workspace.progress};
}

}  // namespace

void gDispSectionList(Workspace& workspace, SectionList sections, const std::string& version,
                      const std::string& parallel) {
  ListBox& list = workspace.controls.ListSection;
  list.Clear();
  for (const Section& section : sections)
    if (isListed(section, version, parallel)) list.AddItem(std::string(section.text), section.code);
  list.ListIndex(0);
}

void gDispSectionAll(Workspace& workspace, SectionReader& reader, SectionList sections,
                     const std::string& version) {
  MainControls& controls = workspace.controls;
  controls.MSFlexGridMain.Visible(true);
  controls.MSFlexGridSql.Visible(false);
  controls.MSFlexGridPlan.Visible(false);
  const Section* section = findSection(sections, controls.ListSection.Text());
  if (section == nullptr) return;
  controls.ToolbarTop.Enabled({"GRID", "SQL", "PLAN"},
                              section->sqlButtons && section->viewsOf(version) != nullptr);
  showRead(workspace.boxes, controls.MSFlexGridMain,
           reader.all(sourceOf(workspace, version), *section, controls.ListSnapId.ListIndex()));
}

void gDispSectionCol(Workspace& workspace, SectionReader& reader, SectionList sections,
                     const std::string& version) {
  MainControls& controls = workspace.controls;
  const Section* section = findSection(sections, controls.ListSection.Text());
  if (section == nullptr) return;
  if (section->col.kind == ColKey::Kind::Refused)
    return workspace.boxes.show(BoxIcon::Exclamation, kNoSeries);
  Grid& grid = controls.MSFlexGridMain;
  showRead(workspace.boxes, grid,
           reader.col(sourceOf(workspace, version), *section, colRequest(*section, grid, grid.Row())));
}

void showRead(MessageBoxes& boxes, Grid& grid, const ReportTable& table) {
  showFailures(boxes, table.failures);
  if (table.read) showTable(grid, table);
}

}  // namespace kestrelix
