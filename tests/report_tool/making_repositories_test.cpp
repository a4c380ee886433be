// kestrelix-repository run as a program of its own: what it makes, and that it leaves nothing half made.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <fstream>
#include <thread>

#include "support/run_program.h"

namespace kestrelix::testing_support {
namespace {

using testing::StartsWith;

class MakingRepositories : public testing::Test {
 protected:
  MakingRepositories()
      : folder_(std::filesystem::temp_directory_path() / ("kestrelix-making-" + std::to_string(::getpid()))),
        file_(folder_ / "made.sqlite") {
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
  }
  ~MakingRepositories() override { std::filesystem::remove_all(folder_); }

  Outcome run(const std::string& arguments) const {
    return runProgram("kestrelix-repository", arguments, scratch_);
  }
  Outcome import(const std::string& options = {}) const {
    return run("import " KESTRELIX_SOURCE_DIR "/tests/data/three_snapshots " + file_.string() + " " +
               options);
  }
  std::ptrdiff_t files() const { return std::distance(std::filesystem::directory_iterator(folder_), {}); }

  /// Starts a long demo, sends the signal once its unfinished file is there, and gives the exit status.
  int interrupted(int signal) const {
    const pid_t child = ::fork();
    if (child == 0) {
      const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
      ::dup2(nowhere, STDERR_FILENO);
      const std::string program = std::string(KESTRELIX_BIN_DIR) + "/kestrelix-repository";
      ::execl(program.c_str(), program.c_str(), "demo", file_.c_str(), "--snapshots", "20000", nullptr);
      ::_exit(127);
    }
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (files() == 0 && std::chrono::steady_clock::now() < deadline)
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
    EXPECT_EQ(files(), 1);
    ::kill(child, signal);
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  std::filesystem::path folder_;
  std::filesystem::path file_;
  const std::filesystem::path scratch_ = folder_.string() + "-scratch";
};

TEST_F(MakingRepositories, anInterruptLeavesNothingBehind) {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    EXPECT_EQ(interrupted(signal), 1) << signal;
    EXPECT_EQ(files(), 0) << signal;
  }
}

TEST_F(MakingRepositories, aFileThatIsThereIsReplacedOnRequestAlone) {
  std::ofstream(file_) << "mine";
  EXPECT_EQ(import().errors, file_.string() + ": is there already; --force replaces it\n");
  EXPECT_EQ(std::filesystem::file_size(file_), 4u);
  EXPECT_EQ(import("--force").status, 0);
  EXPECT_GT(std::filesystem::file_size(file_), 4096u);
}

TEST_F(MakingRepositories, whatIsNoPlainFileIsNeverReplaced) {
  ASSERT_EQ(::mkfifo(file_.c_str(), 0600), 0);
  EXPECT_EQ(import("--force").errors, file_.string() + ": cannot be written: it is no plain file\n");
  EXPECT_TRUE(std::filesystem::is_fifo(file_));
  std::filesystem::remove(file_);
  std::filesystem::create_directory(file_);
  EXPECT_EQ(run("demo --force " + file_.string()).errors,
            file_.string() + ": cannot be written: it is no plain file\n");
  EXPECT_EQ(files(), 1);
}

TEST_F(MakingRepositories, aFolderThatIsMissingIsOneLine) {
  EXPECT_EQ(run("demo " + (folder_ / "no" / "x.sqlite").string()).errors,
            (folder_ / "no" / "x.sqlite").string() + ": cannot be written: unable to open database file\n");
}

TEST_F(MakingRepositories, aStatementMayBeginWithAComment) {
  ASSERT_EQ(import().status, 0);
  const Outcome outcome = run("query " + file_.string() + " '-- one\nselect 1 a from dual'");
  EXPECT_EQ(outcome.errors, "");
  EXPECT_EQ(outcome.output, "A\r\n1\r\n");
}

TEST_F(MakingRepositories, wrongUsageOfAQueryIsSaidFirst) {
  EXPECT_THAT(run("query f.sqlite --explian 'select 1 from dual'").errors,
              StartsWith("unknown option: --explian\n"));
  EXPECT_THAT(run("query f.sqlite").errors, StartsWith("a file and a statement are needed\n"));
  EXPECT_THAT(run("query f.sqlite a b").errors, StartsWith("one file and one statement are enough: b\n"));
  EXPECT_EQ(run("query f.sqlite a b").status, 2);
}

TEST_F(MakingRepositories, resultsThatCannotBeWrittenAreAFailure) {
  ASSERT_EQ(import().status, 0);
  const Outcome outcome = run("query " + file_.string() + " 'select 1 a from dual' > /dev/full");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.errors, "the standard output cannot be written\n");
}

}  // namespace
}  // namespace kestrelix::testing_support
