#pragma once

#include <optional>
#include <string>

#include "console/command_line.h"

namespace kestrelix::console {

/// Where a password comes from, which is never a word of the command line: others can read that.
struct PasswordSource {
  std::optional<std::string> file;
  bool standardInput = false;
};

/// --password-file and --password-stdin, one of which alone may be given. `otherwise` ends the help: what
/// holds without them.
void addPasswordOptions(CommandLine& line, PasswordSource& source, const std::string& otherwise);

/// The first line of the file or of the standard input, without a carriage return at its end; else the
/// variable KESTRELIX_PASSWORD; else `otherwise`. Fails with UsageError where there is no line.
std::string readPassword(const PasswordSource& source, const std::string& otherwise);

}  // namespace kestrelix::console
