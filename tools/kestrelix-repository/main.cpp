// kestrelix-repository: makes local repositories and asks them questions.
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "app/process.h"
#include "commands.h"

namespace {

struct Command {
  const char* name;
  const char* summary;
  int (*run)(std::span<const std::string> arguments);
};

constexpr Command kCommands[] = {
    {"demo", "make a repository to try the program on", kestrelix::demoCommand},
    {"import", "make a repository from a folder of CSV files", kestrelix::importCommand},
    {"copy", "make a repository from a server", kestrelix::copyCommand},
    {"query", "run an Oracle query on a repository file and print CSV", kestrelix::queryCommand},
};

void printUsage(std::ostream& out) {
  out << "usage: kestrelix-repository COMMAND ...\n\n";
  for (const auto& command : kCommands) out << "  " << command.name << "\t" << command.summary << "\n";
  out << "\nkestrelix-repository COMMAND --help tells more.\n";
}

/// What was printed may lie in a buffer still: a command is done when it stands where it was sent.
int printed(int status) {
  std::cout.flush();
  if (std::cout) return status;
  std::cerr << "the standard output cannot be written\n";
  return status == kestrelix::kExitDone ? kestrelix::kExitFailed : status;
}

}  // namespace

int main(int argc, char** argv) {
  kestrelix::guardStreams();
  const std::vector<std::string> words(argv + 1, argv + argc);
  if (!words.empty() && (words[0] == "--help" || words[0] == "-h")) {
    printUsage(std::cout);
    return printed(kestrelix::kExitDone);
  }
  try {
    for (const auto& command : kCommands)
      if (!words.empty() && words[0] == command.name)
        return printed(command.run(std::span(words).subspan(1)));
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
    return kestrelix::kExitFailed;
  }
  if (!words.empty()) std::cerr << "unknown command: " << words[0] << "\n";
  printUsage(std::cerr);
  return kestrelix::kExitWrongUsage;
}
