#include "console/command_line.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace kestrelix::console {
namespace {

using testing::ElementsAre;

class CommandLineTest : public testing::Test {
 protected:
  CommandLineTest() : line_("program command", "Does something.\n") {
    line_.word("FILE", file_)
        .optionalWord("NAME", name_)
        .flag("--force", force_, "replaces it")
        .text("--user", "U", user_, "the user\nto log on as")
        .texts("--bind", "B", binds_, "a bind")
        .choice("--format", {"csv", "text", "html"}, format_, "how")
        .whole<int>("--pair", "P", pair_, "the pair")
        .whole<int>("--count", "N", count_, "how many", 2, 100);
  }

  bool read(const std::vector<std::string>& words) {
    std::ostringstream help;
    const bool goesOn = line_.read(words, help);
    help_ = help.str();
    return goesOn;
  }
  /// What the user is told of wrong words.
  std::string wrong(const std::vector<std::string>& words) {
    try {
      read(words);
    } catch (const UsageError& error) {
      return error.what();
    }
    return "they were taken";
  }

  std::string file_, name_, user_, format_ = "text";
  std::vector<std::string> binds_;
  std::optional<int> pair_;
  int count_ = 60;
  bool force_ = false;
  CommandLine line_;
  std::string help_;
};

TEST_F(CommandLineTest, aWordThatIsMissingEmptyOrTooManyIsRefused) {
  EXPECT_EQ(wrong({}), "FILE is missing");
  EXPECT_EQ(wrong({"--force"}), "FILE is missing");
  EXPECT_EQ(wrong({"", "name"}), "FILE is missing");
  EXPECT_EQ(wrong({"a", "b", "c"}), "'c' is one word too many");
  EXPECT_EQ(wrong({"a", "b", ""}), "'' is one word too many");
}

TEST_F(CommandLineTest, anOptionThatThereIsNotIsRefused) {
  for (const char* option : {"--frce", "--forc", "--force=1", "--FORCE", "-f", "-", "--", "-1"})
    EXPECT_EQ(wrong({"a", option}), std::string("there is no option ") + option);
}

TEST_F(CommandLineTest, aMissingValueIsRefused) {
  for (const char* option : {"--user", "--bind", "--format", "--pair"})
    EXPECT_EQ(wrong({"a", option}), std::string(option) + " needs a value");
}

TEST_F(CommandLineTest, aRepeatedOptionIsRefusedEvenIfItSaysTheSame) {
  EXPECT_EQ(wrong({"a", "--force", "--force"}), "--force is given twice");
  EXPECT_EQ(wrong({"a", "--user", "x", "--user", "x"}), "--user is given twice");
  EXPECT_EQ(wrong({"a", "--pair", "1", "--pair", "1"}), "--pair is given twice");
}

TEST_F(CommandLineTest, whatIsNoWholeNumberIsRefused) {
  for (const char* text : {"", " 1", "1 ", "x", "1x", "0x1", "1.0", "1e3", "+1", "-1", "--", "１",
                           "2147483648", "99999999999999999999"})
    EXPECT_EQ(wrong({"a", "--pair", text}),
              std::string("--pair takes a whole number from 0, not '") + text + "'");
  EXPECT_EQ(pair_, std::nullopt);
}

TEST_F(CommandLineTest, aNumberBeyondItsBoundsIsRefused) {
  for (const char* text : {"-2", "1", "101"})
    EXPECT_EQ(wrong({"a", "--count", text}),
              std::string("--count takes a whole number from 2 to 100, not '") + text + "'");
  EXPECT_EQ(count_, 60);
}

TEST_F(CommandLineTest, aChoiceTakesItsWordsAlone) {
  for (const char* text : {"", "CSV", "cs", "csv|text", "xml"})
    EXPECT_EQ(wrong({"a", "--format", text}),
              std::string("--format is csv, text or html, not '") + text + "'");
  EXPECT_EQ(format_, "text");
}

TEST_F(CommandLineTest, wordsAndOptionsComeInAnyOrder) {
  EXPECT_TRUE(
      read({"--pair", "007", "f", "--force", "--format", "html", "n", "--count", "100", "--user", "u"}));
  EXPECT_EQ(file_, "f");
  EXPECT_EQ(name_, "n");
  EXPECT_EQ(pair_, 7);
  EXPECT_TRUE(force_);
  EXPECT_EQ(format_, "html");
  EXPECT_EQ(count_, 100);
  EXPECT_EQ(user_, "u");
  EXPECT_EQ(help_, "");
}

TEST_F(CommandLineTest, whatIsNotGivenKeepsItsValue) {
  EXPECT_TRUE(read({"f"}));
  EXPECT_EQ(name_, "");
  EXPECT_EQ(pair_, std::nullopt);
  EXPECT_EQ(format_, "text");
  EXPECT_EQ(count_, 60);
  EXPECT_FALSE(force_);
}

TEST_F(CommandLineTest, anOptionForManyValuesKeepsTheirOrder) {
  EXPECT_TRUE(read({"--bind", "b", "f", "--bind", "a", "--bind", "b"}));
  EXPECT_THAT(binds_, ElementsAre("b", "a", "b"));
}

TEST_F(CommandLineTest, aValueMayLookLikeAnOption) {
  EXPECT_TRUE(read({"f", "--user", "--force", "--bind", "--help"}));
  EXPECT_EQ(user_, "--force");
  EXPECT_THAT(binds_, ElementsAre("--help"));
  EXPECT_FALSE(force_);
}

TEST_F(CommandLineTest, aStatementMayBeginWithAComment) {
  EXPECT_TRUE(read({"f", "--the first\nselect 1 from dual"}));
  EXPECT_EQ(name_, "--the first\nselect 1 from dual");
}

TEST_F(CommandLineTest, theHelpNeedsNothingElse) {
  for (const char* option : {"--help", "-h"}) {
    EXPECT_FALSE(read({option}));
    EXPECT_EQ(help_, line_.help());
  }
}

TEST_F(CommandLineTest, theHelpTellsEveryWordAndOption) {
  EXPECT_EQ(line_.help(),
            "usage: program command FILE [NAME] [options]\n"
            "\n"
            "Does something.\n"
            "\n"
            "  --force                 replaces it\n"
            "  --user U                the user\n"
            "                          to log on as\n"
            "  --bind B                a bind\n"
            "  --format csv|text|html  how\n"
            "  --pair P                the pair\n"
            "  --count N               how many\n");
}

TEST(CommandLineWithoutOptions, tellsOfNone) {
  EXPECT_EQ(CommandLine("program", "Does nothing.\n").help(), "usage: program\n\nDoes nothing.\n");
}

}  // namespace
}  // namespace kestrelix::console
