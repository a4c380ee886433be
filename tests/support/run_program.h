#pragma once

#include <sys/wait.h>

#include <cstdio>
#include <filesystem>
#include <string>

namespace kestrelix::testing_support {

/// How a program of this build ended, and what it wrote. The status is 128 and the signal where one ended it.
struct Outcome {
  int status = -1;
  std::string output;
  std::string errors;
};

/// Runs `program` of this build with a line of arguments, as a shell reads them, after what the shell is to
/// do `before`. Its errors pass through a file beside `scratch`.
inline Outcome runProgram(const std::string& program, const std::string& arguments,
                          const std::filesystem::path& scratch, const std::string& before = {}) {
  const std::string errors = scratch.string() + ".errors";
  const std::string command =
      before + " " + KESTRELIX_BIN_DIR + "/" + program + " " + arguments + " 2>" + errors;
  const auto readAll = [](FILE* file, std::string& into) {
    char buffer[4096];
    for (std::size_t got; (got = std::fread(buffer, 1, sizeof buffer, file)) > 0;) into.append(buffer, got);
  };
  Outcome outcome;
  FILE* const pipe = ::popen(command.c_str(), "r");
  if (pipe == nullptr) return outcome;
  readAll(pipe, outcome.output);
  const int status = ::pclose(pipe);
  outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  if (FILE* const file = std::fopen(errors.c_str(), "r")) {
    readAll(file, outcome.errors);
    std::fclose(file);
    std::remove(errors.c_str());
  }
  return outcome;
}

}  // namespace kestrelix::testing_support
