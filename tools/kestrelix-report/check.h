#pragma once

#include "options.h"
#include "output.h"

namespace kestrelix::report_tool {

/// Tries name, driver, login and each table of the repository in turn, and says what is missing. A failure is
/// a line of its own and ends the command with Stopped where nothing further can be tried.
void check(const Options& options, StderrBoxes& boxes);

}  // namespace kestrelix::report_tool
