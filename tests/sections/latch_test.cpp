#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/instance_support.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

const std::initializer_list<std::string_view> kLatch = {
    "snap_id", "name",           "latch#",           "level#",    "gets",     "misses",
    "sleeps",  "immediate_gets", "immediate_misses", "spin_gets", "wait_time"};

void latches(FixtureRepository& repository) {
  repository.rows("stats$latch", kLatch,
                  {{"1", "cache buffers chains", "1", "1", "1000", "10", "4", "100", "1", "6", "0"},
                   {"2", "cache buffers chains", "1", "1", "3000", "25", "11", "300", "4", "15", "2500000"},
                   // No gets but immediate ones, and misses that stood still.
                   {"1", "redo copy", "2", "1", "50", "5", "5", "1000", "0", "0", "0"},
                   {"2", "redo copy", "2", "1", "50", "5", "5", "1100", "1", "0", "400000"},
                   // Misses and no sleep.
                   {"1", "library cache", "3", "5", "10", "0", "0", "7", "0", "0", "0"},
                   {"2", "library cache", "3", "5", "410", "9", "0", "7", "0", "9", "0"},
                   // Nothing happened.
                   {"1", "session idle bit", "4", "1", "5", "0", "0", "0", "0", "0", "0"},
                   {"2", "session idle bit", "4", "1", "5", "0", "0", "0", "0", "0", "0"},
                   // New at the end.
                   {"2", "new latch", "5", "1", "99", "9", "9", "9", "9", "9", "9"}});
}

TEST(LatchActivity, everyLatchThatWasAskedForShowsByName) {
  InstanceRepository repository("9");
  latches(repository);
  OpenReport report(repository);
  // Chains: 15 misses in 2000 gets .75 -> .8 %, 7 sleeps in 15 misses .47 -> .5, 2.5 s -> 3, 3 of 200
  // immediate 1.5
  // -> 2 %. Library cache: 9 of 400 is 2.25 -> 2.3 %. Redo copy: 1 of 100 is 1 %, .4 s -> 0.
  EXPECT_EQ(report.all("Latch Activity", 0),
            "NO|LATCH|GET REQUESTS|PCT GET MISS|AVG SLPS MISS|WAIT TIME(S)|NOWAIT REQUESTS|PCT NOWAIT MISS\n"
            "1|cache buffers chains|2000|.8|.5|3|200|2\n"
            "2|library cache|400|2.3|0|0|0| \n"
            "3|redo copy|0| | |0|100|1\n");
}

TEST(LatchActivity, aSeriesIsBlankWhereTheLatchHasNoRow) {
  InstanceRepository repository("11");
  latches(repository);
  OpenReport report(repository);
  report.all("Latch Activity", 0);
  EXPECT_EQ(
      report.col(3),
      "NO|LATCH|END TIME|GET REQUESTS|PCT GET MISS|AVG SLPS MISS|WAIT TIME(S)|NOWAIT REQUESTS|PCT NOWAIT "
      "MISS|STATUS\n"
      "1|redo copy|2026-01-05 11:00:00|0| | |0|100|1|OK\n"
      "2||2026-01-05 12:00:00|||||||DB RESTART\n"
      "3||2026-01-05 13:30:00|||||||OK\n");
  EXPECT_EQ(
      report.all("Latch Activity", 1),
      "NO|LATCH|GET REQUESTS|PCT GET MISS|AVG SLPS MISS|WAIT TIME(S)|NOWAIT REQUESTS|PCT NOWAIT MISS\n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(LatchSleepBreakdown, latchesWithNewSleepsShowByTheirMisses) {
  InstanceRepository repository("10");
  latches(repository);
  repository.rows("stats$latch", kLatch,
                  {{"1", "shared pool", "6", "7", "0", "0", "0", "0", "0", "0", "0"},
                   {"2", "shared pool", "6", "7", "900", "100", "2", "0", "0", "98", "0"}});
  OpenReport report(repository);
  EXPECT_EQ(report.all("Latch Sleep Breakdown", 0),
            "NO|LATCH NAME|GET REQUESTS|MISSES|SLEEPS|SPIN GETS\n"
            "1|shared pool|900|100|2|98\n"
            "2|cache buffers chains|2000|15|7|9\n");
  EXPECT_EQ(report.col(2),
            "NO|LATCH NAME|END TIME|GET REQUESTS|MISSES|SLEEPS|SPIN GETS|STATUS\n"
            "1|cache buffers chains|2026-01-05 11:00:00|2000|15|7|9|OK\n"
            "2||2026-01-05 12:00:00|||||DB RESTART\n"
            "3||2026-01-05 13:30:00|||||OK\n");
  EXPECT_EQ(report.all("Latch Sleep Breakdown", 1), "NO|LATCH NAME|GET REQUESTS|MISSES|SLEEPS|SPIN GETS\n");
}

const std::initializer_list<std::string_view> kMisses = {"snap_id",      "parent_name", "where_in_code",
                                                         "nwfail_count", "sleep_count", "wtr_slp_count"};

TEST(LatchMissSources, aPlaceThatIsNewAtTheEndCountsFromZero) {
  InstanceRepository repository("9");
  repository.rows("stats$latch_misses_summary", kMisses,
                  {{"1", "shared pool", "kghalo", "1", "10", "5"},
                   {"2", "shared pool", "kghalo", "3", "12", "9"},
                   {"2", "shared pool", "kghfre", "0", "7", "1"},
                   {"2", "cache buffers chains", "kcbgtcr: it's fast", "0", "1", "0"},
                   {"1", "redo copy", "kcrfw", "1", "4", "0"},
                   {"2", "redo copy", "kcrfw", "9", "4", "9"}});
  OpenReport report(repository);
  EXPECT_EQ(report.all("Latch Miss Sources", 0),
            "NO|LATCH NAME|WHERE|NOWAIT MISSES|SLEEPS|WAITER SLEEPS\n"
            "1|cache buffers chains|kcbgtcr: it's fast|0|1|0\n"
            "2|shared pool|kghfre|0|7|1\n"
            "3|shared pool|kghalo|2|2|4\n");
  report.col(1);
  EXPECT_EQ(printed(report.grid()),
            "NO|LATCH NAME|END TIME|WHERE|NOWAIT MISSES|SLEEPS|WAITER SLEEPS|STATUS\n"
            "1|cache buffers chains|2026-01-05 11:00:00|kcbgtcr: it's fast|0|1|0|OK\n"
            "2||2026-01-05 12:00:00|||||DB RESTART\n"
            "3||2026-01-05 13:30:00|||||OK\n");
  EXPECT_EQ(report.all("Latch Miss Sources", 1), "NO|LATCH NAME|WHERE|NOWAIT MISSES|SLEEPS|WAITER SLEEPS\n");
}

TEST(LatchMissSources, aSeriesShowsTheFirstOfTheLatchsPlaces) {
  InstanceRepository repository("9");
  repository.rows(
      "stats$latch_misses_summary", kMisses,
      {{"2", "shared pool", "kghalo", "0", "2", "0"}, {"2", "shared pool", "kghfre", "0", "7", "1"}});
  OpenReport report(repository);
  report.all("Latch Miss Sources", 0);
  report.col(2);
  EXPECT_EQ(report.grid().TextMatrix(1, 1), "shared pool");
  // Either place, with its own sleeps: the server picks.
  EXPECT_THAT(report.grid().TextMatrix(1, 3) + " " + report.grid().TextMatrix(1, 5),
              testing::AnyOf("kghalo 2", "kghfre 7"));
  EXPECT_EQ(report.grid().Rows(), 4);
}

const std::initializer_list<std::string_view> kMutex = {"snap_id", "mutex_type", "location", "sleeps",
                                                        "wait_time"};

TEST(MutexSleep, typesAndPlacesShowByTheTimeWaited) {
  InstanceRepository repository("10");
  repository.rows("stats$mutex_sleep", kMutex,
                  {{"1", "Cursor Pin", "kksfbc", "5", "1000000"},
                   {"2", "Cursor Pin", "kksfbc", "8", "1060000"},
                   {"1", "Cursor Pin", "kksLockDelete", "1", "100"},
                   {"2", "Cursor Pin", "kksLockDelete", "3", "5000100"},
                   {"2", "Cursor Pin S", "kksxsd", "2", "3000000"},
                   {"1", "Library Cache", "kglhdgn2", "5", "0"},
                   {"2", "Library Cache", "kglhdgn2", "5", "900"}});
  OpenReport report(repository);
  // 5 s, 3 s, .06 s -> .1.
  EXPECT_EQ(report.all("Mutex Sleep", 0),
            "NO|MUTEX TYPE|LOCATION|SLEEPS|WAIT TIME(S)\n"
            "1|Cursor Pin|kksLockDelete|2|5\n"
            "2|Cursor Pin S|kksxsd|2|3\n"
            "3|Cursor Pin|kksfbc|3|0.1\n");
  EXPECT_EQ(report.col(2),
            "NO|MUTEX TYPE|END TIME|LOCATION|SLEEPS|WAIT TIME(S)|STATUS\n"
            "1|Cursor Pin S|2026-01-05 11:00:00|kksxsd|2|3|OK\n"
            "2||2026-01-05 12:00:00||||DB RESTART\n"
            "3||2026-01-05 13:30:00||||OK\n");
  EXPECT_EQ(report.all("Mutex Sleep", 1), "NO|MUTEX TYPE|LOCATION|SLEEPS|WAIT TIME(S)\n");
}

TEST(MutexSleep, theKeyOfASeriesIsAPrefix) {
  InstanceRepository repository("11");
  repository.rows("stats$mutex_sleep", kMutex,
                  {{"2", "Cursor Pin", "a", "1", "9000000"}, {"4", "Cursor Pin S", "b", "6", "1500000"}});
  OpenReport report(repository);
  report.all("Mutex Sleep", 0);
  report.col(1);
  EXPECT_EQ(report.grid().TextMatrix(1, 1), "Cursor Pin");
  EXPECT_EQ(report.grid().TextMatrix(3, 1), "Cursor Pin S") << "found by the beginning of its name";
  EXPECT_EQ(report.grid().TextMatrix(3, 5), "1.5");
}

TEST(LatchSections, aMissingTableFailsInTheMemberAndTheGridStays) {
  InstanceRepository repository("10");
  latches(repository);
  repository.without("stats$mutex_sleep");
  OpenReport report(repository);
  const std::string before = report.all("Latch Activity", 0);
  EXPECT_EQ(report.all("Mutex Sleep", 0), before);
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsMutexSleep){getMUTEX_SLEEP_ALL} Error"));
  EXPECT_EQ(report.all("Latch Activity", 0), before) << "the next Section works";
  EXPECT_THAT(report.boxes(), testing::SizeIs(1));
}

}  // namespace
}  // namespace kestrelix::testing_support
