// The help of kestrelix-report against what the program takes.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <regex>

#include "support/run_program.h"
#include "support/test_folder.h"

namespace kestrelix::testing_support {
namespace {

using testing::HasSubstr;
using testing::Not;

class ReportHelp : public testing::Test {
 protected:
  Outcome run(const std::string& arguments) const {
    return runProgram("kestrelix-report", arguments, folder_);
  }
  /// Every first group of the pattern in the help.
  std::vector<std::string> inHelp(const char* pattern) const {
    const std::string help = run("--help").output;
    const std::regex wanted(pattern);
    std::vector<std::string> found;
    for (std::sregex_iterator i(help.begin(), help.end(), wanted), end; i != end; ++i)
      found.push_back((*i)[1]);
    return found;
  }

  TestFolder folder_;
};

TEST_F(ReportHelp, everyOptionThatACommandNamesIsAnOption) {
  const auto options = inHelp("(--[a-z-]+)");
  EXPECT_THAT(options, testing::IsSupersetOf({"--instance", "--page", "--shaped", "--password-stdin"}));
  for (const std::string& option : options) {
    const Outcome outcome = run(option);
    EXPECT_EQ(outcome.status, 2) << option;
    EXPECT_THAT(outcome.errors, Not(HasSubstr("there is no option"))) << option;
  }
}

TEST_F(ReportHelp, everyCommandIsThere) {
  const auto commands = inHelp("\n  ([a-z]+) ");
  EXPECT_THAT(commands, testing::ElementsAre("instances", "pairs", "sections", "section", "chart", "sql",
                                             "plan", "check", "statements"));
  for (const std::string& command : commands)
    EXPECT_THAT(run(command + " --user X").errors, Not(HasSubstr("there is no command"))) << command;
}

}  // namespace
}  // namespace kestrelix::testing_support
