// kestrelix-repository run as a program of its own: what it makes, and what it refuses.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>

#include "report_tool/making_repositories.h"

namespace kestrelix::testing_support {
namespace {

using testing::StartsWith;

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
            (folder_ / "no" / "x.sqlite").string() + ": cannot be written: No such file or directory\n");
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

TEST_F(MakingRepositories, aBindThatCannotBeIsWrongUsage) {
  ASSERT_EQ(import().status, 0);
  const auto query = [&](const std::string& binds) {
    return run("query " + file_.string() + " 'select :a from dual' " + binds);
  };
  for (const char* binds : {"--bind a", "--bind =1", "--bind a:x=1", "--bind a=1 --bind A=2", "--bind a:n=x"})
    EXPECT_EQ(query(binds).status, 2) << binds;
  EXPECT_THAT(query("--bind a:n=x").errors, StartsWith("a number bind can't take the text 'x'\n"));
  EXPECT_THAT(query("--bind 'a=表\"'").output, testing::EndsWith("\r\n\"表\"\"\"\r\n"));
}

// The file would be opened under the number of the closed stream else, and take in what is printed.
TEST_F(MakingRepositories, closedStreamsHarmNoFile) {
  EXPECT_EQ(import("<&- >&-").errors, "the standard output cannot be written\n");
  EXPECT_EQ(run("query " + file_.string() + " 'select count(*) n from stats$snapshot'").output, "N\r\n5\r\n");
  EXPECT_EQ(run("demo --snapshots 2 --force " + file_.string() + " <&- >&-").status, 0);
  EXPECT_EQ(run("query " + file_.string() + " 'select count(*) n from stats$database_instance'").status, 0);
  EXPECT_EQ(import("--password-stdin --force <&-").status, 2);
}

TEST_F(MakingRepositories, resultsThatCannotBeWrittenAreAFailure) {
  ASSERT_EQ(import().status, 0);
  const Outcome outcome = run("query " + file_.string() + " 'select 1 a from dual' > /dev/full");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.errors, "the standard output cannot be written\n");
}

}  // namespace
}  // namespace kestrelix::testing_support
