#pragma once

#include "options.h"
#include "output.h"

namespace kestrelix::report_tool {

/// Prints what the chart shows of a column of a Col view, as CSV: its title, the end of its value axis, and
/// the page's points, those without a pair included. Fails with ReportRun::Stopped when the column is
/// refused.
void chart(const Options& options, StderrBoxes& boxes);

}  // namespace kestrelix::report_tool
