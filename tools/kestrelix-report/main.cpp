#include <iostream>

#include "app/process.h"
#include "commands.h"
#include "report_run.h"

namespace tool = kestrelix::report_tool;

int main(int count, char** values) {
  kestrelix::guardStreams();
  tool::StderrBoxes boxes;
  try {
    const tool::Options options = tool::parseOptions({values + 1, values + count});
    if (options.help) {
      std::cout << tool::kUsage;
    } else {
      tool::runCommand(options, boxes);
    }
    std::cout.flush();
    if (!std::cout) throw std::runtime_error("the standard output cannot be written");
  } catch (const tool::UsageError& error) {
    std::cerr << "kestrelix-report: " << error.what() << "; --help tells the usage\n";
    return 2;
  } catch (const tool::ReportRun::Stopped&) {
    return 1;  // the box has said it
  } catch (const std::exception& error) {
    std::cerr << "kestrelix-report: " << error.what() << '\n';
    return 1;
  }
  return boxes.critical() ? 1 : 0;
}
