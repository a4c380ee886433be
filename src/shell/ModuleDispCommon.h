// The list of Sections and the two dispatches. All three go by the text of the selected list entry; a text
// that the list lacks does nothing.
#pragma once

#include <string>

#include "report/reading.h"
#include "shell/workspace.h"

namespace kestrelix {

/// Fills ListSection with the Sections of that version ("9", "10", "11") and selects the first. Only the
/// value "YES" of `parallel` counts as a cluster database.
void gDispSectionList(Workspace& workspace, SectionList sections, const std::string& version,
                      const std::string& parallel);

/// Shows the All view of the selected Section for the selected pair, and sets "GRID", "SQL" and "PLAN".
void gDispSectionAll(Workspace& workspace, SectionReader& reader, SectionList sections,
                     const std::string& version);

/// Shows the Col view that the current row of MSFlexGridMain leads to, its cells being the keys.
void gDispSectionCol(Workspace& workspace, SectionReader& reader, SectionList sections,
                     const std::string& version);

/// Shows what has been read: a box for each failure, then the table where there is one.
void showRead(MessageBoxes& boxes, Grid& grid, const ReportTable& table);

}  // namespace kestrelix
