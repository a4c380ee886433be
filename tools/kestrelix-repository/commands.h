// The commands of kestrelix-repository: each takes the words behind its name and gives the exit code.
#pragma once

#include <span>
#include <string>

#include "console/command_line.h"
#include "repository_file/writing/repository_writer.h"

namespace kestrelix {

/// The repository that a command makes.
struct NewFile {
  std::string name;
  bool force = false;

  void addForceOption(console::CommandLine& line);
  /// Fails if the file is there and isn't to be replaced.
  repository_file::Existing existing() const;
  /// From here on an interrupt ends the making, and no unfinished file stays behind.
  void watchInterrupts() const;
};

int demoCommand(std::span<const std::string> words);
int copyCommand(std::span<const std::string> words);
int importCommand(std::span<const std::string> words);
int queryCommand(std::span<const std::string> words);

}  // namespace kestrelix
