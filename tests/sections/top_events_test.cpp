#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/waits_support.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Pair 0: 34.4 s waited on events that aren't idle (46.4 - 12), 15.6 s of CPU: 50 s in all. The enqueue's 8 s
// of unfinished waiting count in the sum though it is not listed.
void topEvents(WaitsRepository& repository) {
  repository.idle("SQL*Net message from client")
      .sysstat("CPU used when call started", {"5", "6", "7", "8"})
      .sysstat("CPU used by this session", {"1000", "2560", "0", "10"});
  repository
      .event("db file sequential read",
             {{"100", "0", "10000000"}, {"300", "0", "30100000"}, {"0", "0", "0"}, {"1", "0", "100000"}})
      .event("log file sync", {{}, {"50", "0", "5000000"}})
      .event("latch free", {{"10", "0", "1000000"}, {"20", "0", "1425000"}})
      .event("enqueue", {{"5", "0", "1000000"}, {"5", "0", "9000000"}})
      .event("buffer busy waits", {{}, {"2", "0", "600000"}})
      .event("control file parallel write", {{"0", "0", "0"}, {"100", "0", "275000"}})
      .event("SQL*Net message from client",
             {{"1000", "0", "0"}, {"5000", "0", "9000000000"}, {"0", "0", "0"}, {"9", "0", "9"}});
}

const std::string kHeadings = "NO|EVENT|WAITS|TIME (S)|AVG WAIT (MS)|%TOTAL CALL TIME\n";

TEST(TopEvents, fiveLongestWithTheCpuAmongThem) {
  for (const char* version : {"9", "10", "11"}) {
    WaitsRepository repository(version);
    topEvents(repository);
    ReportFixture report(repository.write());
    report.open(0);
    // 20.1 s of 200 waits, 100.5 ms each; .6 s shows as 1; 10 waits in .425 s, .85 percent. The sixth, .275
    // s, is cut off.
    EXPECT_EQ(report.all("Top 5 Timed Events", 0), kHeadings +
                                                       "1|db file sequential read|200|20|101|40.2\n"
                                                       "2|CPU time| |16| |31.2\n"
                                                       "3|log file sync|50|5|100|10\n"
                                                       "4|buffer busy waits|2|1|300|1.2\n"
                                                       "5|latch free|10|0|43|.9\n");
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(TopEvents, restartedPairHasHeadingsAlone) {
  WaitsRepository repository("10");
  topEvents(repository);
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(report.all("Top 5 Timed Events", 1), kHeadings);
}

// Pair 2: .1 s waited and 10 hundredths of CPU: half and half.
TEST(TopEvents, seriesOfAnEventAndOfTheCpu) {
  WaitsRepository repository("10");
  topEvents(repository);
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Top 5 Timed Events", 0);
  EXPECT_EQ(report.col(1),
            "NO|EVENT|END TIME|WAITS|TIME (S)|AVG WAIT (MS)|%TOTAL CALL TIME|STATUS\n"
            "1|db file sequential read|2026-01-05 11:00:00|200|20|101|40.2|OK\n"
            "2||2026-01-05 12:00:00|||||DB RESTART\n"
            "3|db file sequential read|2026-01-05 13:00:00|1|0|100|50|OK\n");
  report.all("Top 5 Timed Events", 0);
  EXPECT_EQ(report.col(2),
            "NO|EVENT|END TIME|WAITS|TIME (S)|AVG WAIT (MS)|%TOTAL CALL TIME|STATUS\n"
            "1|CPU time|2026-01-05 11:00:00| |16| |31.2|OK\n"
            "2||2026-01-05 12:00:00|||||DB RESTART\n"
            "3|CPU time|2026-01-05 13:00:00| |0| |50|OK\n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(TopEvents, pairWithoutTheEventIsAnEmptyRow) {
  WaitsRepository repository("10");
  topEvents(repository);
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Top 5 Timed Events", 0);
  EXPECT_EQ(columnsOf(report.col(3), 1, 7),
            "EVENT|END TIME|WAITS|TIME (S)|AVG WAIT (MS)|%TOTAL CALL TIME|STATUS\n"
            "log file sync|2026-01-05 11:00:00|50|5|100|10|OK\n"
            "|2026-01-05 12:00:00|||||DB RESTART\n"
            "|2026-01-05 13:00:00|||||OK\n");
}

TEST(TopEvents, withoutCpuThereIsNoRowOfIt) {
  WaitsRepository repository("10");
  repository.sysstat("CPU used by this session", {"7", "7"});
  repository.event("log file sync", {{"0", "0", "0"}, {"4", "0", "2000000"}});
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(report.all("Top 5 Timed Events", 0), kHeadings + "1|log file sync|4|2|500|100\n");
}

TEST(TopEvents, nothingWaitedAndNothingUsedIsZeroPercentOfNothing) {
  WaitsRepository repository("10");
  repository.sysstat("CPU used by this session", {"7", "7"});
  repository.event("log file sync", {{"0", "0", "100"}, {"4", "0", "100"}});
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(report.all("Top 5 Timed Events", 0), kHeadings + "1|log file sync|4|0|0|0\n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

// Six times 1 s: more waits come first, and none at all, which is the CPU's, before any number.
TEST(TopEvents, tiesGoToTheLargerWaitCountAndTheCpu) {
  WaitsRepository repository("10");
  repository.sysstat("CPU used by this session", {"0", "100"});
  const std::pair<const char*, const char*> events[] = {
      {"a", "2"}, {"b", "10"}, {"c", "9"}, {"d", "100"}, {"e", "1"}};
  for (const auto& [name, waits] : events) repository.event(name, {{"0", "0", "0"}, {waits, "0", "1000000"}});
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(columnsOf(report.all("Top 5 Timed Events", 0), 1, 2),
            "EVENT|WAITS\nCPU time| \nd|100\nb|10\nc|9\na|2\n");
}

TEST(TopEvents, totalsThatFailAreTheirOwnBoxes) {
  WaitsRepository repository("10");
  repository.sysstat("CPU used by this session", {"0", "100"});
  ReportFixture report(repository.write());
  report.open(0);
  const std::string before = printed(report.grid());
  EXPECT_EQ(report.all("Top 5 Timed Events", 0), before);
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsTopNWaitEvents){getTWT} Error"));

  WaitsRepository withoutCpu("10");
  withoutCpu.event("log file sync", {{"0", "0", "0"}, {"4", "0", "2000000"}});
  ReportFixture second(withoutCpu.write());
  second.open(0);
  second.all("Top 5 Timed Events", 0);
  EXPECT_THAT(second.boxes(), ElementsAre("[Critical] (clsTopNWaitEvents){getTCPU} Error"));
  // The binds that the failure has left in place don't stand in the next one's way.
  second.all("Top 5 Timed Events", 0);
  EXPECT_EQ(second.boxes().back(), "[Critical] (clsTopNWaitEvents){getTCPU} Error");
}

TEST(TopEvents, missingListOfIdleEventsIsTheBoxOfTheWaitTime) {
  WaitsRepository repository("10");
  topEvents(repository);
  repository.without("stats$idle_event");
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Top 5 Timed Events", 0);
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsTopNWaitEvents){getTWT} Error"));
}

}  // namespace
}  // namespace kestrelix::testing_support
