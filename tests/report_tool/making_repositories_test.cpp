// kestrelix-repository run as a program of its own: what it makes, and what it refuses.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>

#include "report_tool/making_repositories.h"

namespace kestrelix::testing_support {
namespace {

TEST_F(MakingRepositories, aFileThatIsThereIsReplacedOnRequestAlone) {
  std::ofstream(file_) << "mine";
  EXPECT_EQ(import().errors, line(file_.string() + ": is there already; --force replaces it"));
  EXPECT_EQ(std::filesystem::file_size(file_), 4u);
  EXPECT_EQ(import("--force").status, 0);
  EXPECT_GT(std::filesystem::file_size(file_), 4096u);
}

TEST_F(MakingRepositories, whatIsNoPlainFileIsNeverReplaced) {
  ASSERT_EQ(::mkfifo(file_.c_str(), 0600), 0);
  EXPECT_EQ(import("--force").errors, line(file_.string() + ": cannot be written: it is no plain file"));
  EXPECT_TRUE(std::filesystem::is_fifo(file_));
  std::filesystem::remove(file_);
  std::filesystem::create_directory(file_);
  EXPECT_EQ(run("demo --force " + file_.string()).errors,
            line(file_.string() + ": cannot be written: it is no plain file"));
  EXPECT_EQ(files(), 1);
}

TEST_F(MakingRepositories, aFolderThatIsMissingIsOneLine) {
  EXPECT_EQ(run("demo " + (folder_ / "no" / "x.sqlite").string()).errors,
            line((folder_ / "no" / "x.sqlite").string() + ": cannot be written: No such file or directory"));
}

TEST_F(MakingRepositories, aStatementMayBeginWithAComment) {
  ASSERT_EQ(import().status, 0);
  const Outcome outcome = run("query " + file_.string() + " '-- one\nselect 1 a from dual'");
  EXPECT_EQ(outcome.errors, "");
  EXPECT_EQ(outcome.output, "A\r\n1\r\n");
}

TEST_F(MakingRepositories, wrongUsageIsOneLine) {
  const std::string file = file_.string();
  const std::vector<std::pair<std::string, std::string>> wrong{
      {"", "name a command"},
      {"nonsense", "there is no command nonsense"},
      {"--force demo", "there is no command --force"},
      {"demo", "FILE is missing"},
      {"demo --snapshots 1 " + file, "--snapshots takes a whole number from 2 to 100000, not '1'"},
      {"demo --seed -1 " + file, "--seed takes a whole number from 0, not '-1'"},
      {"demo " + file + " more", "'more' is one word too many"},
      {"import --user a/b x " + file, "a user name is not empty and has no slash"},
      {"import --force --force x " + file, "--force is given twice"},
      {"import --password-stdin x " + file + " < /dev/null",
       "no password can be read from the standard input"},
      {"import --password-stdin --password-file p x " + file,
       "--password-file and --password-stdin exclude each other"},
      {"copy --user U " + file, "--tns is needed"},
      {"copy --tns T " + file, "--user is needed"},
      {"copy --tns T --user U --dbid x " + file, "--dbid takes a whole number from 0, not 'x'"},
      {"query f.sqlite --explian 'select 1 from dual'", "there is no option --explian"},
      {"query f.sqlite", "'select ...' is missing"},
      {"query f.sqlite a b", "'b' is one word too many"},
      {"query f.sqlite a --bind", "--bind needs a value"}};
  for (const auto& [words, why] : wrong) {
    const Outcome outcome = run(words);
    EXPECT_EQ(outcome.status, 2) << words;
    EXPECT_EQ(outcome.output, "") << words;
    EXPECT_EQ(outcome.errors, wrongUsage(why)) << words;
  }
  EXPECT_EQ(run("import --password-stdin x " + file, "echo |").errors, wrongUsage("the password is empty"));
  EXPECT_EQ(files(), 0);
}

TEST_F(MakingRepositories, everyCommandOfTheHelpIsThere) {
  const std::string help = run("--help").output;
  for (const char* command : {"demo", "import", "copy", "query"}) {
    EXPECT_THAT(help, testing::HasSubstr("\n  " + std::string(command) + " "));
    const Outcome outcome = run(std::string(command) + " --help");
    EXPECT_EQ(outcome.status, 0) << command;
    EXPECT_EQ(outcome.errors, "") << command;
    EXPECT_THAT(outcome.output,
                testing::StartsWith("usage: kestrelix-repository " + std::string(command) + " "));
  }
}

TEST_F(MakingRepositories, aBindThatCannotBeIsWrongUsage) {
  ASSERT_EQ(import().status, 0);
  const auto query = [&](const std::string& binds) {
    return run("query " + file_.string() + " 'select :a from dual' " + binds);
  };
  for (const char* binds : {"--bind a", "--bind =1", "--bind a:x=1", "--bind a=1 --bind A=2", "--bind a:n=x"})
    EXPECT_EQ(query(binds).status, 2) << binds;
  EXPECT_EQ(query("--bind a:n=x").errors, wrongUsage("a number bind can't take the text 'x'"));
  EXPECT_THAT(query("--bind 'a=表\"'").output, testing::EndsWith("\r\n\"表\"\"\"\r\n"));
}

// The file would be opened under the number of the closed stream else, and take in what is printed.
TEST_F(MakingRepositories, closedStreamsHarmNoFile) {
  EXPECT_EQ(import("<&- >&-").errors, line("the standard output cannot be written"));
  EXPECT_EQ(run("query " + file_.string() + " 'select count(*) n from stats$snapshot'").output, "N\r\n5\r\n");
  EXPECT_EQ(run("demo --snapshots 2 --force " + file_.string() + " <&- >&-").status, 0);
  EXPECT_EQ(run("query " + file_.string() + " 'select count(*) n from stats$database_instance'").status, 0);
  EXPECT_EQ(import("--password-stdin --force <&-").status, 2);
}

TEST_F(MakingRepositories, resultsThatCannotBeWrittenAreAFailure) {
  ASSERT_EQ(import().status, 0);
  const Outcome outcome = run("query " + file_.string() + " 'select 1 a from dual' > /dev/full");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.errors, line("the standard output cannot be written"));
}

}  // namespace
}  // namespace kestrelix::testing_support
