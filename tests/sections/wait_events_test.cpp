// The lists of events: of the whole instance, of the background processes, of the sessions of users.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/waits_support.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kHeadings = "NO|EVENT|WAITS|%TIME-OUTS|TOTAL WAIT TIME(S)|AVG WAIT(MS)|WAITS/TXN\n";
const std::string kSeriesHeadings =
    "NO|EVENT|END TIME|WAITS|%TIME-OUTS|TOTAL WAIT TIME(S)|AVG WAIT(MS)|WAITS/TXN|STATUS\n";

const char* const kTimers[] = {"smon timer", "pmon timer", "dispatcher timer", "dispatcher listen timer",
                               "rdbms ipc message"};

using Add = WaitsRepository& (WaitsRepository::*)(std::string_view,
                                                  const std::vector<WaitsRepository::Counters>&);

// 60 transactions in pair 0. The timers are no idle events here, to tell the one rule from the other.
void waits(WaitsRepository& repository, Add add) {
  repository.transactions()
      .parameter("timed_statistics", {"TRUE", "TRUE", "TRUE", "TRUE"})
      .idle("client message");
  (repository.*add)(
      "db file sequential read",
      {{"100", "10", "10000000"}, {"300", "75", "15500000"}, {"0", "0", "0"}, {"3", "1", "2000"}});
  (repository.*add)("log file sync", {{}, {"40", "0", "5500000"}});               // as long, fewer waits
  (repository.*add)("latch free", {{"5", "5", "5000"}, {"5", "6", "90000000"}});  // no more waits
  (repository.*add)("short", {{"0", "0", "0"}, {"7", "0", "999"}});               // under a millisecond
  (repository.*add)("just", {{"0", "0", "0"}, {"1", "1", "1000"}});               // a millisecond
  (repository.*add)("client message", {{"0", "0", "0"}, {"1200", "0", "7200000000"}});  // idle
  for (const char* timer : kTimers) (repository.*add)(timer, {{"0", "0", "0"}, {"12", "12", "600000000"}});
}

// 200 waits, 65 of them timed out, 5.5 s, 27.5 ms each, 3.33 a transaction.
const std::string kRead = "db file sequential read|200|33|6|28|3.3\n";
// 5.5 s of 40 waits: 137.5 ms each, .67 a transaction.
const std::string kSync = "log file sync|40|0|6|138|.7\n";
const std::string kJust = "just|1|100|0|1|0\n";
// 7200 s of 1200 waits: 6 s each, 20 a transaction.
const std::string kIdle = "client message|1200|0|7200|6000|20\n";
// 600 s of 12 waits, .2 a transaction.
const std::string kTimer = "|12|100|600|50000|.2\n";

TEST(WaitEvents, longestFirstAndIdleEventsLast) {
  for (const char* version : {"9", "10", "11"}) {
    WaitsRepository repository(version);
    waits(repository, &WaitsRepository::event);
    ReportFixture report(repository.write());
    report.open(0);
    EXPECT_EQ(report.all("Wait Events", 0),
              kHeadings + "1|" + kRead + "2|" + kSync + "3|" + kJust + "4|" + kIdle);
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(BackgroundWaitEvents, listTheTimersToo) {
  for (const char* version : {"9", "10"}) {
    WaitsRepository repository(version);
    waits(repository, &WaitsRepository::background);
    ReportFixture report(repository.write());
    report.open(0);
    const std::string lines = report.all("Background Wait Events", 0);
    for (const char* timer : kTimers)
      EXPECT_NE(lines.find(std::string("|") + timer + kTimer), std::string::npos);
    EXPECT_NE(lines.find("\n6|" + kRead + "7|" + kSync + "8|" + kJust + "9|" + kIdle), std::string::npos)
        << lines;
    EXPECT_EQ(lines.substr(0, kHeadings.size()), kHeadings);
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(WaitEvents, restartedPairHasHeadingsAlone) {
  WaitsRepository repository("11");
  waits(repository, &WaitsRepository::foreground);
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(report.all("Wait Events", 1), kHeadings);
  EXPECT_EQ(report.all("Background Wait Events", 1), kHeadings);
  EXPECT_THAT(report.boxes(), IsEmpty());
}

// Pair 2: 3 waits in 30 transactions, one timed out, 2 ms.
TEST(WaitEvents, seriesOfAnEvent) {
  const std::pair<const char*, Add> sections[] = {{"Wait Events", &WaitsRepository::event},
                                                  {"Background Wait Events", &WaitsRepository::background}};
  for (const auto& [section, add] : sections) {
    WaitsRepository repository("10");
    waits(repository, add);
    ReportFixture report(repository.write());
    report.open(0);
    report.all(section, 0);
    int row = 1;
    while (report.grid().TextMatrix(row, 1) != "db file sequential read") ++row;
    EXPECT_EQ(report.col(row), kSeriesHeadings +
                                   "1|db file sequential read|2026-01-05 11:00:00|200|33|6|28|3.3|OK\n"
                                   "2||2026-01-05 12:00:00||||||DB RESTART\n"
                                   "3|db file sequential read|2026-01-05 13:00:00|3|33|0|1|.1|OK\n");
    report.all(section, 0);
    EXPECT_EQ(columnsOf(report.col(row + 1), 1, 3),
              "EVENT|END TIME|WAITS\n"
              "log file sync|2026-01-05 11:00:00|40\n"
              "|2026-01-05 12:00:00|\n"
              "|2026-01-05 13:00:00|\n");
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(WaitEvents, shortWaitsShowUnlessTimingIsTheSameAtBothEnds) {
  const auto listed = [](const std::vector<std::pair<const char*, HeadRepository::Values>>& parameters) {
    WaitsRepository repository("10");
    repository.transactions();
    for (const auto& [name, values] : parameters) repository.parameter(name, values);
    repository.event("short", {{"0", "0", "0"}, {"7", "0", "999"}});
    ReportFixture report(repository.write());
    report.open(0);
    const bool there = report.all("Wait Events", 0) == kHeadings + "1|short|7|0|0|0|.1\n";
    EXPECT_TRUE(there || printed(report.grid()) == kHeadings);
    EXPECT_THAT(report.boxes(), IsEmpty());
    return there;
  };
  EXPECT_FALSE(listed({{"timed_statistics", {"TRUE", "TRUE"}}}));
  EXPECT_FALSE(listed({{"timed_statistics", {"FALSE", "FALSE"}}})) << "equal is all that counts";
  EXPECT_FALSE(listed({{"__timed_statistics", {"TRUE", "TRUE"}}}));
  EXPECT_TRUE(listed({{"timed_statistics", {"TRUE", "FALSE"}}}));
  EXPECT_TRUE(listed({{"timed_statistics", {"-", "TRUE"}}}));
  EXPECT_TRUE(listed({{"timed_statistics", {"TRUE", "-"}}}));
  EXPECT_TRUE(listed({}));
}

TEST(WaitEvents, withoutTransactionsThereAreNoneToDivideBy) {
  const std::pair<const char*, Add> sections[] = {{"Wait Events", &WaitsRepository::event},
                                                  {"Background Wait Events", &WaitsRepository::background}};
  for (const auto& [section, add] : sections) {
    WaitsRepository repository("10");
    repository.sysstat("user commits", {"5", "5"}).sysstat("user rollbacks", {"0", "0"});
    (repository.*add)("log file sync", {{"0", "0", "0"}, {"4", "0", "2000000"}});
    ReportFixture report(repository.write());
    report.open(0);
    EXPECT_EQ(report.all(section, 0), kHeadings + "1|log file sync|4|0|2|500| \n");
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(WaitEvents, missingTransactionsAreTheirOwnBox) {
  WaitsRepository repository("10");
  repository.sysstat("user commits", {"5", "5"});
  repository.event("log file sync", {{"0", "0", "0"}, {"4", "0", "2000000"}});
  ReportFixture report(repository.write());
  report.open(0);
  const std::string before = printed(report.grid());
  EXPECT_EQ(report.all("Wait Events", 0), before);
  report.all("Background Wait Events", 0);
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsWaitEvents){getTRAN} Error",
                                          "[Critical] (clsBackgroundWaitEvents){getTRAN} Error"));
}

const std::string kForegroundHeadings =
    "NO|EVENT|WAITS|%TIMEOUT|TOTAL WAIT TIME(S)|AVG WAIT(MS)|WAITS/TXN|%TOTAL CALL TIME\n";

// In pair 0 the events that aren't idle gained 5 * 600 s (timers), 5.5 + 5.5 s, .001999 s, and the
// latch's 89.995 s though it isn't listed: 3100.996999 s. With 5.2 s of CPU that are 3106.196999 s.
TEST(ForegroundWaitEvents, shareOfTheCallTimeIsBlankForIdleEvents) {
  WaitsRepository repository("11");
  waits(repository, &WaitsRepository::foreground);
  repository.sysstat("CPU used by this session", {"0", "520"});
  ReportFixture report(repository.write());
  report.open(0);
  // 600 s of that are 19.32 percent, 5.5 s are .18; TIME_SEC and the waits of a transaction are
  // numbers.
  const std::string lines = report.all("Foreground Wait Events", 0);
  EXPECT_EQ(lines.substr(0, kForegroundHeadings.size()), kForegroundHeadings);
  for (const char* timer : kTimers)
    EXPECT_NE(lines.find(std::string("|") + timer + "|12|100|600|50000|0.2|19.3\n"), std::string::npos)
        << lines;
  EXPECT_NE(lines.find("\n6|db file sequential read|200|33|6|28|3.3|.2\n"
                       "7|log file sync|40|0|6|138|0.7|.2\n"
                       "8|just|1|100|0|1|0|0\n"
                       "9|client message|1200|0|7200|6000|20| \n"),
            std::string::npos)
      << lines;
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(ForegroundWaitEvents, nothingToDivideByIsZeroForIdleEventsToo) {
  WaitsRepository repository("11");
  repository.transactions().idle("client message").sysstat("CPU used by this session", {"5", "5"});
  repository.foreground("log file sync", {{"0", "0", "0"}, {"4", "0", "0"}});
  repository.foreground("client message", {{"0", "0", "0"}, {"60", "0", "6000000"}});
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(report.all("Foreground Wait Events", 0), kForegroundHeadings +
                                                         "1|log file sync|4|0|0|0|0.1|0\n"
                                                         "2|client message|60|0|6|100|1|0\n");
}

// Pair 2: 2 ms waited and 1 hundredth of CPU, 12 ms in all: 16.7 percent.
TEST(ForegroundWaitEvents, seriesOfAnEvent) {
  WaitsRepository repository("11");
  waits(repository, &WaitsRepository::foreground);
  repository.sysstat("CPU used by this session", {"0", "520", "0", "1"});
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Foreground Wait Events", 0);
  EXPECT_EQ(
      report.col(6),
      "NO|EVENT|END TIME|WAITS|%TIMEOUT|TOTAL WAIT TIME(S)|AVG WAIT(MS)|WAITS/TXN|%TOTAL CALL TIME|STATUS\n"
      "1|db file sequential read|2026-01-05 11:00:00|200|33|6|28|3.3|.2|OK\n"
      "2||2026-01-05 12:00:00|||||||DB RESTART\n"
      "3|db file sequential read|2026-01-05 13:00:00|3|33|0|1|0.1|16.7|OK\n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(ForegroundWaitEvents, restartedPairHasHeadingsAlone) {
  WaitsRepository repository("11");
  waits(repository, &WaitsRepository::foreground);
  repository.sysstat("CPU used by this session", {"0", "520", "0", "1"});
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(report.all("Foreground Wait Events", 1), kForegroundHeadings);
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(ForegroundWaitEvents, withoutTransactionsTheDivisionFails) {
  WaitsRepository repository("11");
  repository.sysstat("user commits", {"5", "5"}).sysstat("user rollbacks", {"0", "0"});
  repository.sysstat("CPU used by this session", {"5", "6"});
  repository.foreground("log file sync", {{"0", "0", "0"}, {"4", "0", "2000000"}});
  ReportFixture report(repository.write());
  report.open(0);
  const std::string before = printed(report.grid());
  EXPECT_EQ(report.all("Foreground Wait Events", 0), before);
  EXPECT_THAT(report.boxes(),
              ElementsAre("[Critical] (clsForegroundWaitEvents){getFOREGROUND_WAIT_EVENTS_ALL} Error"));
}

TEST(ForegroundWaitEvents, failuresOfTheTotalsComeInTheirOrder) {
  WaitsRepository repository("11");
  const auto firstBox = [&] {
    ReportFixture report(repository.write());
    report.open(0);
    report.all("Foreground Wait Events", 0);
    return report.boxes().at(0);
  };
  EXPECT_EQ(firstBox(), "[Critical] (clsForegroundWaitEvents){getTRAN} Error");
  repository.transactions();
  EXPECT_EQ(firstBox(), "[Critical] (clsForegroundWaitEvents){getTWT} Error");
  repository.foreground("log file sync", {{"0", "0", "0"}, {"4", "0", "2000000"}});
  EXPECT_EQ(firstBox(), "[Critical] (clsForegroundWaitEvents){getTCPU} Error");
}

TEST(ForegroundWaitEvents, shortWaitsShowWithoutTiming) {
  WaitsRepository repository("11");
  repository.transactions().sysstat("CPU used by this session", {"0", "0"});
  repository.foreground("short", {{"0", "0", "0"}, {"6", "0", "999"}});
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(report.all("Foreground Wait Events", 0), kForegroundHeadings + "1|short|6|0|0|0|0.1|100\n");
  repository.parameter("timed_statistics", {"TRUE", "TRUE"});
  ReportFixture timed(repository.write());
  timed.open(0);
  EXPECT_EQ(timed.all("Foreground Wait Events", 0), kForegroundHeadings);
}

}  // namespace
}  // namespace kestrelix::testing_support
