#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <thread>
#include <vector>

#include "support/run_program.h"
#include "support/test_folder.h"

namespace kestrelix::testing_support {

/// A folder that kestrelix-repository makes files in, run as a program of its own.
class MakingRepositories : public testing::Test {
 protected:
  Outcome run(const std::string& arguments, const std::string& before = {}) const {
    return runProgram("kestrelix-repository", arguments, scratch_, before);
  }
  Outcome import(const std::string& options = {}, const std::string& before = {}) const {
    return run("import " KESTRELIX_SOURCE_DIR "/tests/data/three_snapshots " + file_.string() + " " + options,
               before);
  }
  /// The one line that tells of a failure or of wrong usage.
  static std::string line(const std::string& text) { return "kestrelix-repository: " + text + "\n"; }
  static std::string wrongUsage(const std::string& text) { return line(text + "; --help tells the usage"); }
  std::ptrdiff_t files() const { return folder_.files(); }
  std::ptrdiff_t unfinished() const {
    std::ptrdiff_t count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder_.path()))
      count += entry.path().string().starts_with(file_.string() + ".unfinished-") ? 1 : 0;
    return count;
  }

  /// Starts the program with these arguments, sends the signal once its unfinished file is there, and gives
  /// how it ended, as waitpid() tells it.
  int signalled(int signal, std::vector<std::string> arguments) const {
    const pid_t child = ::fork();
    if (child == 0) {
      const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
      ::dup2(nowhere, STDERR_FILENO);
      std::vector<char*> words;
      arguments.insert(arguments.begin(), std::string(KESTRELIX_BIN_DIR) + "/kestrelix-repository");
      for (std::string& argument : arguments) words.push_back(argument.data());
      words.push_back(nullptr);
      ::execv(words[0], words.data());
      ::_exit(127);
    }
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (unfinished() == 0 && std::chrono::steady_clock::now() < deadline)
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
    EXPECT_EQ(unfinished(), 1);
    ::kill(child, signal);
    int status = 0;
    ::waitpid(child, &status, 0);
    return status;
  }

  TestFolder folder_;
  const std::filesystem::path file_ = folder_ / "made.sqlite";
  const std::filesystem::path scratch_ = folder_.string() + "-scratch";
};

}  // namespace kestrelix::testing_support
