#pragma once

#include <string>

#include "shell/services.h"
#include "shell/workspace.h"

namespace kestrelix {

/// Opens the one connection of the program into gOraSession and gOraDatabase, in place of a former one. On a
/// failure shows its box and gives false; gOraDatabase is empty then.
bool OPEN_Conect(Workspace& workspace, const ShellServices& services, const std::string& user,
                 const std::string& password, const std::string& tns);
/// Drops the connection.
bool CLOSE_Connect(Workspace& workspace);

/// Would the grid's columns need a horizontal scroll bar? The answer is true only for very wide grids: the
/// columns' twips are divided by nearly a pixel's and then held against the grid's width in twips. A row
/// hidden behind the scroll bar is found with the next turn of the wheel, so it has never mattered.
bool gWidthScrollCheck(const Grid& grid, MessageBoxes& boxes);

}  // namespace kestrelix
