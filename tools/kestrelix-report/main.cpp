// kestrelix-report: the report without a window.
#include "commands.h"
#include "console/run.h"
#include "report_run.h"

namespace kestrelix::report_tool {
namespace {

int runProgram(std::span<const std::string> words) {
  const auto options = readOptions(words);
  if (!options) return console::kExitDone;
  StderrBoxes boxes;
  try {
    runCommand(*options, boxes);
  } catch (const ReportRun::Stopped&) {
    return console::kExitFailed;  // the box has said it
  }
  return boxes.critical() ? console::kExitFailed : console::kExitDone;
}

}  // namespace
}  // namespace kestrelix::report_tool

int main(int count, char** values) {
  return kestrelix::console::run("kestrelix-report", count, values, kestrelix::report_tool::runProgram);
}
