// What every program without a window does around its commands.
#pragma once

#include <functional>
#include <span>
#include <string>

namespace kestrelix::console {

inline constexpr int kExitDone = 0;
inline constexpr int kExitFailed = 1;
inline constexpr int kExitWrongUsage = 2;

using Command = std::function<int(std::span<const std::string> words)>;

/// Runs a program on the words behind its name, `count` and `values` being main's own; gives its exit code.
/// What the command throws is told on standard error after the program's name: UsageError, in one line, is
/// wrong usage, any other std::exception a failure. A command whose output can't be written has failed too.
int run(const std::string& program, int count, char** values, const Command& command);

/// Fails when the standard output has refused something already.
void checkOutput();

}  // namespace kestrelix::console
