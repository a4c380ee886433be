// kestrelix-report chart, run as a program of its own.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/head_support.h"
#include "support/run_program.h"

namespace kestrelix::testing_support {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class ChartCommand : public testing::Test {
 protected:
  // Elapsed times of 21 hours: pair 1 is a restart, pair 20 takes half an hour more than the others.
  ChartCommand() : repository("10", {"00:00:00", "01:00:00"}) {
    for (int i = 3; i <= 22; ++i)
      repository.snapshot(std::to_string(i),
                          "2026-01-05 " + std::string(i <= 10 ? "0" : "") + std::to_string(i - 1) +
                              (i < 22 ? ":00:00" : ":30:00"),
                          "7", i == 3 ? "2026-01-05 01:30:00" : "2000-01-01 00:00:00");
    for (int i = 1; i <= 22; ++i)
      for (const char* name : {"logons current", "opened cursors current"})
        repository.row("stats$sysstat", {{"snap_id", std::to_string(i)}, {"name", name}, {"value", "1"}});
    repository.write();
  }

  Outcome run(const std::string& arguments) const {
    return runProgram("kestrelix-report",
                      "--repository " + repository.path().string() + " chart " + arguments,
                      repository.path());
  }

  HeadRepository repository;
};

const std::string kElapsed = "Snapshot --instance 0 --pair 0 --row 3";

TEST_F(ChartCommand, printsTitleAxisAndTheFirstPage) {
  const Outcome outcome = run(kElapsed + " --column 3");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.errors, "");
  std::string expected = "TITLE,OTHER VALUE[1/2]\r\nAXIS MAXIMUM,90\r\nLABEL,VALUE\r\n";
  for (int hour = 1; hour <= 20; ++hour)
    expected += "2026-01-05 " + std::string(hour < 10 ? "0" : "") + std::to_string(hour) + ":00:00," +
                (hour == 2 ? "0" : "60") + "\r\n";
  EXPECT_EQ(outcome.output, expected);
}

TEST_F(ChartCommand, aShortPageShowsItsEmptyPoints) {
  std::string expected =
      "TITLE,OTHER VALUE[2/2]\r\nAXIS MAXIMUM,90\r\nLABEL,VALUE\r\n2026-01-05 21:30:00,90\r\n";
  for (int i = 0; i < 19; ++i) expected += ",0\r\n";
  for (const char* page : {"2", "end", "max"})
    EXPECT_EQ(run(kElapsed + " --column 3 --page " + page).output, expected) << page;
  for (const char* page : {"1", "start"})
    EXPECT_THAT(run(kElapsed + " --column 3 --page " + page).output, StartsWith("TITLE,OTHER VALUE[1/2]\r\n"))
        << page;
}

TEST_F(ChartCommand, aRefusalIsItsBoxAndStatusOne) {
  for (const char* column : {"0", "1", "2", "4"}) {
    const Outcome outcome = run(kElapsed + " --column " + column);
    EXPECT_EQ(outcome.status, 1) << column;
    EXPECT_EQ(outcome.output, "") << column;
    EXPECT_EQ(outcome.errors, "[Exclamation] 選択されている項目は不正です\n") << column;
  }
}

TEST_F(ChartCommand, wrongUsageIsStatusTwo) {
  for (const char* rest : {"", " --column 5", " --column 3 --page 3", " --column 3 --page 0",
                           " --column 3 --page last", " --column x"}) {
    const Outcome outcome = run(kElapsed + rest);
    EXPECT_EQ(outcome.status, 2) << rest;
    EXPECT_EQ(outcome.output, "") << rest;
    EXPECT_THAT(outcome.errors, StartsWith("kestrelix-report: ")) << rest;
  }
  EXPECT_THAT(run("Snapshot --instance 0 --pair 0 --column 3").errors, HasSubstr("--row is needed"));
}

TEST_F(ChartCommand, aSeriesThatFailsIsItsBoxAndStatusOne) {
  const Outcome outcome = run("\"Cache Sizes\" --instance 0 --pair 0 --row 1 --column 3");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.output, "");
  EXPECT_THAT(outcome.errors, StartsWith("[Critical] (clsCacheSize){getBURRER_CACHE_SIZE} Error\n"));
}

}  // namespace
}  // namespace kestrelix::testing_support
