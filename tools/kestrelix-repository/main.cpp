// kestrelix-repository: makes local repositories and asks them questions.
#include <iostream>
#include <stdexcept>
#include <vector>

#include "commands.h"
#include "console/help_list.h"
#include "console/interrupt.h"
#include "console/run.h"
#include "console/usage_error.h"
#include "platform/cancelled.h"

namespace kestrelix {
namespace {

struct NamedCommand {
  const char* name;
  const char* summary;
  int (*run)(std::span<const std::string> words);
};

constexpr NamedCommand kCommands[] = {
    {"demo", "make a repository to try the program on", demoCommand},
    {"import", "make a repository from a folder of CSV files", importCommand},
    {"copy", "make a repository from a server", copyCommand},
    {"query", "run an Oracle query on a repository file and print CSV", queryCommand},
};

void printHelp() {
  std::vector<console::HelpEntry> commands;
  for (const auto& command : kCommands) commands.push_back({command.name, command.summary});
  std::cout << "usage: kestrelix-repository COMMAND ...\n\n"
            << console::helpList(commands) << "\nkestrelix-repository COMMAND --help tells more.\n";
}

/// Runs a command; only an interrupt cancels one.
int run(const NamedCommand& command, std::span<const std::string> words) {
  try {
    return command.run(words);
  } catch (const Cancelled&) {
    throw std::runtime_error(console::kInterrupted);
  }
}

int runCommand(std::span<const std::string> words) {
  if (words.empty()) throw console::UsageError("name a command");
  if (words[0] == "--help" || words[0] == "-h") {
    printHelp();
    return console::kExitDone;
  }
  for (const auto& command : kCommands)
    if (words[0] == command.name) return run(command, words.subspan(1));
  throw console::UsageError("there is no command " + words[0]);
}

}  // namespace
}  // namespace kestrelix

int main(int count, char** values) {
  return kestrelix::console::run("kestrelix-repository", count, values, kestrelix::runCommand);
}
