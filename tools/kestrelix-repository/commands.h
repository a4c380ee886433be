// The commands of kestrelix-repository: each takes the words behind its name and gives the exit code.
#pragma once

#include <span>
#include <string>

namespace kestrelix {

/// Exit codes of every command.
inline constexpr int kExitDone = 0;
inline constexpr int kExitFailed = 1;
inline constexpr int kExitWrongUsage = 2;

/// Whether the file is there already, which is told then.
bool refuseToReplace(const std::string& file);

int demoCommand(std::span<const std::string> arguments);
int copyCommand(std::span<const std::string> arguments);
int importCommand(std::span<const std::string> arguments);
int queryCommand(std::span<const std::string> arguments);

}  // namespace kestrelix
