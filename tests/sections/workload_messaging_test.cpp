#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/cluster_support.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

void blockServers(FixtureRepository& repository, std::string_view crFlushes,
                  std::string_view currentFlushes) {
  repository.rows("stats$cr_block_server", {"snap_id", "flushes"}, {{"1", "100"}, {"2", crFlushes}})
      .rows("stats$current_block_server",
            {"snap_id", "flush1", "flush10", "flush100", "flush1000", "flush10000"},
            {{"1", "1", "1", "1", "1", "1"}, {"2", currentFlushes, "1", "2", "3", "1"}});
}

TEST(WorkloadCharacteristics, averagesAreInMillisecondsAndFlushesArePercentages) {
  ClusterRepository repository;
  repository.sysstat("global enqueue gets async", "0", "30")
      .sysstat("global enqueue gets sync", "0", "70")
      .sysstat("global enqueue get time", "0", "25")
      .sysstat("gc cr blocks received", "0", "80")
      .sysstat("gc cr block receive time", "0", "10")
      .sysstat("gc current blocks received", "0", "3")
      .sysstat("gc current block receive time", "0", "1")
      .sysstat("gc cr blocks served", "0", "200")
      .sysstat("gc cr block build time", "0", "4")
      .sysstat("gc cr block send time", "0", "7")
      .sysstat("gc cr block flush time", "0", "9")
      .sysstat("gc current blocks served", "0", "50")
      .sysstat("gc current block pin time", "0", "2")
      .sysstat("gc current block send time", "0", "6")
      .sysstat("gc current block flush time", "0", "11");
  blockServers(repository, "118", "5");
  ReportFixture report(repository.write());
  report.open(0);
  // cr flushes 118 - 100 = 18; current flushes (5+1+2+3+1) - 5 = 7.
  // 25/100*10 = 2.5; 100/80 = 1.25 -> 1.3; 10/3 -> 3.3; 40/200 = .2; 70/200 = .35 -> .4; 90/18 = 5; 18/200 =
  // 9 %; 20/50 = .4; 60/50 = 1.2; 110/7 = 15.71 -> 15.7; 7/50 = 14 %. The first result of DECODE is a text,
  // and so the cells are texts: no digit before the point.
  EXPECT_EQ(report.all("GCS/GES Workload Characteristics", 0),
            "NO|NAME|VALUE\n"
            "1|Avg global enqueue get time (ms):|2.5\n"
            "2|Avg global cache cr block receive time (ms):|1.3\n"
            "3|Avg global cache current block receive time (ms):|3.3\n"
            "4|Avg global cache cr block build time (ms):|.2\n"
            "5|Avg global cache cr block send time (ms):|.4\n"
            "6|Avg global cache cr block flush time (ms):|5\n"
            "7|Global cache log flushes for cr blocks served %:|9\n"
            "8|Avg global cache current block pin time (ms):|.4\n"
            "9|Avg global cache current block send time (ms):|1.2\n"
            "10|Avg global cache current block flush time (ms):|15.7\n"
            "11|Global cache log flushes for current blocks served %:|14\n");
  EXPECT_EQ(report.col(10),
            "NO|NAME|END TIME|VALUE|STATUS\n"
            "1|Avg global cache current block flush time (ms):|2026-01-05 11:00:00|15.7|OK\n"
            "2|Avg global cache current block flush time (ms):|2026-01-05 12:00:00||DB RESTART\n");
  EXPECT_EQ(report.all("GCS/GES Workload Characteristics", 1), "NO|NAME|VALUE\n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(WorkloadCharacteristics, aNodeThatServedNothingShowsBlanks) {
  ClusterRepository repository;
  for (const char* name : {"global enqueue gets async", "global enqueue gets sync", "global enqueue get time",
                           "gc cr blocks received", "gc cr block receive time", "gc current blocks received",
                           "gc current block receive time", "gc cr blocks served", "gc cr block build time",
                           "gc cr block send time", "gc current blocks served", "gc current block pin time",
                           "gc current block send time", "gc current block flush time"})
    repository.sysstat(name, "40", "40");
  repository.sysstat("gc cr block flush time", "0", "3");
  blockServers(repository, "102", "1");
  ReportFixture report(repository.write());
  report.open(0);
  // 2 flushes for cr blocks took 3 hundredths: 15 ms. (1+1+2+3+1) - 5 = 3 flushes of current blocks took
  // none: 0.
  EXPECT_EQ(report.all("GCS/GES Workload Characteristics", 0),
            "NO|NAME|VALUE\n"
            "1|Avg global enqueue get time (ms):| \n"
            "2|Avg global cache cr block receive time (ms):| \n"
            "3|Avg global cache current block receive time (ms):| \n"
            "4|Avg global cache cr block build time (ms):| \n"
            "5|Avg global cache cr block send time (ms):| \n"
            "6|Avg global cache cr block flush time (ms):|15\n"
            "7|Global cache log flushes for cr blocks served %:| \n"
            "8|Avg global cache current block pin time (ms):| \n"
            "9|Avg global cache current block send time (ms):| \n"
            "10|Avg global cache current block flush time (ms):|0\n"
            "11|Global cache log flushes for current blocks served %:| \n");
}

TEST(WorkloadCharacteristics, aSnapshotWithoutItsBlockServerRowFailsInTheGetter) {
  ClusterRepository repository;
  repository.sysstat("gc cr block flush time", "0", "3");
  ReportFixture report(repository.write());
  report.open(0);
  report.all("GCS/GES Workload Characteristics", 0);
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsWorkloadCharacteristics){getAGEGT} Error"));
}

void messages(ClusterRepository& repository, std::string_view direct, std::string_view indirect,
              std::string_view controlled) {
  repository.dlm("1", "msgs sent queued", "0", "40")
      .dlm("2", "msgs sent queue time (ms)", "0", "10")
      .dlm("3", "msgs sent queued on ksxp", "5", "5")
      .dlm("4", "msgs sent queue time on ksxp (ms)", "0", "9")
      .dlm("5", "msgs received queued", "0", "3")
      .dlm("6", "msgs received queue time (ms)", "0", "200")
      .dlm("7", "gcs msgs received", "0", "8")
      .dlm("8", "gcs msgs process time(ms)", "0", "6")
      .dlm("9", "ges msgs received", "0", "1000")
      .dlm("10", "ges msgs process time(ms)", "0", "1")
      .dlm("11", "messages sent directly", "0", direct)
      .dlm("12", "messages sent indirectly", "0", indirect)
      .dlm("13", "messages flow controlled", "0", controlled);
}

TEST(MessagingStatistics, sharesAddUpToAHundredUpToRounding) {
  ClusterRepository repository;
  messages(repository, "1", "1", "4");
  ReportFixture report(repository.write());
  report.open(0);
  // 10/40 = .25 -> .3; nothing on ksxp; 200/3 = 66.67 -> 66.7; 6/8 = .75 -> .8; 1/1000 -> 0; 1/6, 1/6, 4/6.
  EXPECT_EQ(report.all("GCS/GES Messaging Statistics", 0),
            "NO|NAME|VALUE\n"
            "1|Avg message sent queue time (ms):|.3\n"
            "2|Avg message sent queue time on ksxp (ms):| \n"
            "3|Avg message received queue time (ms):|66.7\n"
            "4|Avg GCS message process time (ms):|.8\n"
            "5|Avg GES message process time (ms):|0\n"
            "6|% of direct sent messages:|16.67\n"
            "7|% of indirect sent messages:|16.67\n"
            "8|% of flow controlled messages:|66.67\n");
  EXPECT_EQ(report.col(8),
            "NO|NAME|END TIME|VALUE|STATUS\n"
            "1|% of flow controlled messages:|2026-01-05 11:00:00|66.67|OK\n"
            "2|% of flow controlled messages:|2026-01-05 12:00:00||DB RESTART\n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(MessagingStatistics, withoutMessagesTheSharesAreBlank) {
  ClusterRepository repository;
  messages(repository, "0", "0", "0");
  ReportFixture report(repository.write());
  report.open(0);
  const std::string grid = report.all("GCS/GES Messaging Statistics", 0);
  EXPECT_THAT(grid, testing::EndsWith("6|% of direct sent messages:| \n"
                                      "7|% of indirect sent messages:| \n"
                                      "8|% of flow controlled messages:| \n"));
}

}  // namespace
}  // namespace kestrelix::testing_support
