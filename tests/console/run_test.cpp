#include "console/run.h"

#include <gtest/gtest.h>

#include <iostream>
#include <string>
#include <vector>

#include "console/usage_error.h"

namespace kestrelix::console {
namespace {

struct Ended {
  int status;
  std::string errors;
};

Ended ended(const Command& command, std::vector<std::string> values = {"/bin/program", "a", "", "b c"}) {
  std::vector<char*> pointers;
  for (std::string& value : values) pointers.push_back(value.data());
  testing::internal::CaptureStderr();
  const int status = run("program", static_cast<int>(pointers.size()), pointers.data(), command);
  return {status, testing::internal::GetCapturedStderr()};
}

TEST(Run, wrongUsageIsOneLineAndStatusTwo) {
  const Ended end = ended([](auto) -> int { throw UsageError("'two\nlines' is one word too many"); });
  EXPECT_EQ(end.status, 2);
  EXPECT_EQ(end.errors, "program: 'two lines' is one word too many; --help tells the usage\n");
}

TEST(Run, aFailureIsToldAsItIsAndStatusOne) {
  const Ended end = ended([](auto) -> int { throw std::runtime_error("line 1\n  ^"); });
  EXPECT_EQ(end.status, 1);
  EXPECT_EQ(end.errors, "program: line 1\n  ^\n");
}

TEST(Run, outputThatCannotBeWrittenIsAFailure) {
  const Ended end = ended([](auto) {
    std::cout.setstate(std::ios::failbit);
    return kExitDone;
  });
  std::cout.clear();
  EXPECT_EQ(end.status, 1);
  EXPECT_EQ(end.errors, "program: the standard output cannot be written\n");
}

TEST(Run, handsOverTheWordsBehindTheProgramAndGivesTheStatusOfTheCommand) {
  std::vector<std::string> got;
  const Command command = [&](std::span<const std::string> words) {
    got.assign(words.begin(), words.end());
    return 7;
  };
  EXPECT_EQ(ended(command).status, 7);
  EXPECT_EQ(got, (std::vector<std::string>{"a", "", "b c"}));
  EXPECT_EQ(ended(command, {}).status, 7) << "a caller may leave out even the name";
  EXPECT_TRUE(got.empty());
}

}  // namespace
}  // namespace kestrelix::console
