// kestrelix-repository demo: a repository to try the program on.
#include "demo/demo.h"

#include <iostream>

#include "commands.h"
#include "console/interrupt.h"
#include "console/progress.h"
#include "console/run.h"

namespace kestrelix {
namespace {

constexpr const char* kAbout =
    R"(Makes a local repository with four databases: Oracle 9 and 11 single instances, Oracle 10 and 11 clusters
of two instances. Its account is PERFSTAT, password perfstat.
)";

}  // namespace

int demoCommand(std::span<const std::string> words) {
  NewFile file;
  demo::DemoOptions options;
  console::CommandLine line("kestrelix-repository demo", kAbout);
  line.word("FILE", file.name)
      .whole<int>("--snapshots", "N", options.snapshots,
                  "hourly snapshots of each instance, 2 to 100000 (60)", 2, 100000)
      .whole<std::uint64_t>("--seed", "S", options.seed,
                            "a whole number; the same seed gives the same file (1)");
  file.addForceOption(line);
  if (!line.read(words, std::cout)) return console::kExitDone;
  options.existing = file.existing();
  file.watchInterrupts();
  console::ProgressBar bar("snapshots");
  demo::makeDemo(file.name, options, bar);
  console::interruptsEndNothingMore();
  return console::kExitDone;
}

}  // namespace kestrelix
