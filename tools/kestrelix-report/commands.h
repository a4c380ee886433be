// One function a command of kestrelix-report; each prints to standard output.
#pragma once

#include "options.h"
#include "output.h"

namespace kestrelix::report_tool {

/// The commands as the help tells them.
std::string commandHelp();

/// Runs the command that the options name. Fails with UsageError for a command that there isn't.
void runCommand(const Options& options, StderrBoxes& boxes);

}  // namespace kestrelix::report_tool
