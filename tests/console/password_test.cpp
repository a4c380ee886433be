#include "console/password.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>

#include "support/test_folder.h"

namespace kestrelix::console {
namespace {

class Password : public testing::Test {
 protected:
  Password() : standardInput_(std::cin.rdbuf(input_.rdbuf())) { ::unsetenv("KESTRELIX_PASSWORD"); }
  ~Password() override {
    std::cin.rdbuf(standardInput_);
    ::unsetenv("KESTRELIX_PASSWORD");
  }

  /// Of a command line with such words and such a standard input.
  std::string password(const std::vector<std::string>& words, const std::string& input = {}) {
    PasswordSource source;
    CommandLine line("program", "");
    addPasswordOptions(line, source, "");
    std::ostringstream help;
    line.read(words, help);
    input_.str(input);
    std::cin.clear();
    return readPassword(source, "otherwise");
  }
  std::string wrong(const std::vector<std::string>& words) {
    try {
      return "taken: " + password(words);
    } catch (const UsageError& error) {
      return error.what();
    }
  }
  std::string file(const std::string& text) {
    std::ofstream(file_, std::ios::binary) << text;
    return file_;
  }

  std::istringstream input_;
  std::streambuf* const standardInput_;
  testing_support::TestFolder folder_;
  const std::string file_ = (folder_ / "password").string();
};

TEST_F(Password, bothOptionsExcludeEachOther) {
  const std::string both = "--password-file and --password-stdin exclude each other";
  EXPECT_EQ(wrong({"--password-stdin", "--password-file", file("a\n")}), both);
  EXPECT_EQ(wrong({"--password-file", file("a\n"), "--password-stdin"}), both);
  EXPECT_EQ(wrong({"--password-file", "", "--password-stdin"}), both);
}

TEST_F(Password, aSourceWithoutALineIsRefused) {
  EXPECT_EQ(wrong({"--password-file", file_}), "no password can be read from " + file_);
  EXPECT_EQ(wrong({"--password-file", file("")}), "no password can be read from " + file_);
  EXPECT_EQ(wrong({"--password-file", folder_.path().string()}),
            "no password can be read from " + folder_.path().string());
  EXPECT_EQ(wrong({"--password-file", ""}), "no password can be read from ");
  EXPECT_EQ(wrong({"--password-stdin"}), "no password can be read from the standard input");
}

TEST_F(Password, isTheFirstLineAsItStands) {
  for (const char* text : {" a/b ", "日本語", "", "a\rb"}) {
    for (const char* end : {"\n", "\r\n", "\nmore\n"}) {
      EXPECT_EQ(password({"--password-file", file(std::string(text) + end)}), text);
      EXPECT_EQ(password({"--password-stdin"}, std::string(text) + end), text);
    }
  }
  EXPECT_EQ(password({"--password-stdin"}, "no end"), "no end");
  EXPECT_EQ(password({"--password-file", file("a\r\r\n")}), "a\r") << "one carriage return ends the line";
}

TEST_F(Password, optionsComeBeforeTheVariableAndTheVariableBeforeTheDefault) {
  EXPECT_EQ(password({}), "otherwise");
  ::setenv("KESTRELIX_PASSWORD", "", 1);
  EXPECT_EQ(password({}), "otherwise");
  ::setenv("KESTRELIX_PASSWORD", "variable", 1);
  EXPECT_EQ(password({}), "variable");
  EXPECT_EQ(password({"--password-file", file("a\n")}), "a");
  EXPECT_EQ(password({"--password-stdin"}, "b\n"), "b");
}

}  // namespace
}  // namespace kestrelix::console
