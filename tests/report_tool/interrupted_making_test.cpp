// kestrelix-repository stopped in the middle, or on a disk that takes no more: a file is there whole or not
// at all, and what an earlier run has made stays.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "report_tool/making_repositories.h"

namespace kestrelix::testing_support {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class InterruptedMaking : public MakingRepositories {
 protected:
  /// Arguments that keep the program busy for seconds.
  std::vector<std::string> longDemo() const {
    return {"demo", file_.string(), "--snapshots", "20000", "--force"};
  }
  /// The same for an import, whose folder lies in folder_ from then on.
  std::vector<std::string> longImport() const {
    const auto csv = folder_ / "csv";
    std::filesystem::create_directory(csv);
    std::ofstream table(csv / "stats$sysstat.csv");
    table << "SNAP_ID,DBID,INSTANCE_NUMBER,NAME,VALUE\n";
    for (int i = 0; i < 400000; ++i) table << i << ",42,1,a statistic of a name," << i << '\n';
    return {"import", csv.string(), file_.string(), "--force"};
  }
  void put(const std::filesystem::path& path) const { std::ofstream(path) << "mine"; }
};

TEST_F(InterruptedMaking, anInterruptLeavesNothingBehind) {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    const int status = signalled(signal, longDemo());
    EXPECT_TRUE(WIFEXITED(status)) << signal;
    EXPECT_EQ(WEXITSTATUS(status), 1) << signal;
    EXPECT_EQ(files(), 0) << signal;
  }
}

TEST_F(InterruptedMaking, anInterruptedImportLeavesTheEarlierFile) {
  put(file_);
  const auto arguments = longImport();
  for (const int signal : {SIGINT, SIGTERM}) {
    const int status = signalled(signal, arguments);
    EXPECT_TRUE(WIFEXITED(status)) << signal;
    EXPECT_EQ(WEXITSTATUS(status), 1) << signal;
    EXPECT_EQ(unfinished(), 0) << signal;
    EXPECT_EQ(std::filesystem::file_size(file_), 4u) << signal;
  }
}

TEST_F(InterruptedMaking, anInterruptEndsAQueryAtOnce) {
  ASSERT_EQ(import().status, 0);
  std::string endless = "select a1.snap_id from stats$snapshot a1";
  for (int i = 2; i <= 60; ++i) endless += ", stats$snapshot a" + std::to_string(i);
  int ends[2];
  ASSERT_EQ(::pipe(ends), 0);
  const pid_t child = ::fork();
  if (child == 0) {
    ::dup2(ends[1], STDOUT_FILENO);
    ::close(ends[0]);
    ::execl(KESTRELIX_BIN_DIR "/kestrelix-repository", "kestrelix-repository", "query", file_.c_str(),
            endless.c_str(), nullptr);
    ::_exit(127);
  }
  ::close(ends[1]);
  char first = 0;
  EXPECT_EQ(::read(ends[0], &first, 1), 1) << "the query runs from its first row on";
  ::kill(child, SIGINT);
  int status = 0;
  ::waitpid(child, &status, 0);
  ::close(ends[0]);
  EXPECT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(WTERMSIG(status), SIGINT);
}

TEST_F(InterruptedMaking, theNextRunClearsAwayWhatAKilledOneLeft) {
  put(file_);
  const int status = signalled(SIGKILL, longDemo());
  EXPECT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(unfinished(), 1);
  EXPECT_EQ(std::filesystem::file_size(file_), 4u) << "the earlier file";
  EXPECT_EQ(import("--force").status, 0);
  EXPECT_EQ(files(), 1);
  EXPECT_GT(std::filesystem::file_size(file_), 4096u);
}

TEST_F(InterruptedMaking, onlyUnfinishedFilesOfProcessesThatAreGoneAreClearedAway) {
  // No process has a number above four million.
  const std::string gone = "99999999";
  put(file_.string() + ".unfinished-" + gone);
  const std::vector<std::string> kept{file_.string() + ".unfinished-1", file_.string() + ".unfinished-",
                                      file_.string() + ".unfinished-" + gone + "x",
                                      file_.string() + ".unfinished--" + gone,
                                      (folder_ / "other.sqlite.unfinished-").string() + gone};
  for (const std::string& name : kept) put(name);
  EXPECT_EQ(import().status, 0);
  EXPECT_FALSE(std::filesystem::exists(file_.string() + ".unfinished-" + gone));
  for (const std::string& name : kept) EXPECT_TRUE(std::filesystem::exists(name)) << name;
}

TEST_F(InterruptedMaking, aDiskThatTakesNoMoreIsOneLineAndNoFile) {
  for (const std::string& command :
       {"demo " + file_.string() + " --snapshots 5",
        "import " KESTRELIX_SOURCE_DIR "/tests/data/three_snapshots " + file_.string()}) {
    const Outcome outcome = run(command, "ulimit -f 20;");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.errors,
                StartsWith("kestrelix-repository: " + file_.string() + ": cannot be written: "));
    EXPECT_THAT(outcome.errors, EndsWith("File too large\n"));
    EXPECT_EQ(std::count(outcome.errors.begin(), outcome.errors.end(), '\n'), 1);
    EXPECT_EQ(files(), 0);
  }
}

TEST_F(InterruptedMaking, namesThatTheSystemRefusesAreSaidInItsWords) {
  const std::string name = (folder_ / std::string(300, 'x')).string();
  EXPECT_EQ(run("demo " + name).errors, line(name + ": cannot be written: File name too long"));
  EXPECT_EQ(run("demo " + folder_.string() + "/").errors,
            line(folder_.string() + "/: is there already; --force replaces it"));
}

TEST_F(InterruptedMaking, aFolderThatMayNotBeWrittenIsOneLine) {
  if (::geteuid() == 0) GTEST_SKIP() << "root may write anywhere";
  std::filesystem::permissions(folder_,
                               std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
  EXPECT_EQ(import().errors, line(file_.string() + ": cannot be written: Permission denied"));
  std::filesystem::permissions(folder_, std::filesystem::perms::owner_all);
}

TEST_F(InterruptedMaking, aLinkThatLeadsNowhereIsAFileThatIsThere) {
  std::filesystem::create_symlink("nowhere", file_);
  EXPECT_EQ(import().errors, line(file_.string() + ": is there already; --force replaces it"));
  EXPECT_TRUE(std::filesystem::is_symlink(file_));
}

TEST_F(InterruptedMaking, aSourceThatEndsInsideALineIsSaidOrRefused) {
  const auto csv = folder_ / "csv";
  std::filesystem::create_directory(csv);
  const auto import = [&](const std::string& text) {
    std::ofstream(csv / "stats$sysstat.csv") << text;
    return run("import --force " + csv.string() + " " + file_.string());
  };
  Outcome outcome = import("NAME,VALUE\nredo size,123\nuser com");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.errors, HasSubstr("stats$sysstat.csv, line 3: 1 fields under 2 column names"));
  EXPECT_FALSE(std::filesystem::exists(file_));
  outcome = import("NAME,VALUE\nredo size,123\nuser commits,12");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.errors, "stats$sysstat: the last line of its file has no end; is the file whole?\n");
  EXPECT_EQ(import("NAME,VALUE\nredo size,123\n").errors, "");
}

}  // namespace
}  // namespace kestrelix::testing_support
