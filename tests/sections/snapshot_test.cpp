#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/head_support.h"
#include "sections/renderers.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// 8 sessions with 12 cursors are 1.5 each; 3 with 11 are 3.7; none at snapshot 3; 3 with 2 are .7.
void sessions(HeadRepository& repository) {
  repository.sysstat("CPU used by this session", {"1", "2", "3", "4"})
      .sysstat("logons current", {"8", "3", "0", "3"})
      .sysstat("opened cursors current", {"12", "11", "4", "2"});
}

TEST(Snapshot, tellsBothSnapshotsAndTheMinutesBetween) {
  for (const char* version : {"9", "10", "11"}) {
    HeadRepository repository(version, {"10:00:00", "11:00:22"});
    sessions(repository);
    ReportFixture report(repository.write());
    report.open(0);
    // 3622 seconds are 60.3666... minutes. A comment that isn't there is one blank.
    EXPECT_EQ(report.all("Snapshot", 0),
              "NO|NAME|SNAP TIME|SNAP ID|SESSIONS|CURS/SESS|LEVEL|COMMENT|OTHER VALUE\n"
              "1|Begin Snap:|2026-01-05 10:00:00|1|8|1.5|7| |\n"
              "2|End Snap:|2026-01-05 11:00:22|2|3|3.7|7| |\n"
              "3|Elapsed(mins):|||||||60.37\n");
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(Snapshot, restartedPairLeavesElapsedBlankAlone) {
  HeadRepository repository("11");
  sessions(repository);
  ReportFixture report(repository.write());
  report.open(0);
  // Snapshot 3 has no sessions to share its cursors: a blank.
  EXPECT_EQ(report.all("Snapshot", 1),
            "NO|NAME|SNAP TIME|SNAP ID|SESSIONS|CURS/SESS|LEVEL|COMMENT|OTHER VALUE\n"
            "1|Begin Snap:|2026-01-05 11:00:00|2|3|3.7|7| |\n"
            "2|End Snap:|2026-01-05 12:00:00|3|0| |7| |\n"
            "3|Elapsed(mins):|||||||\n");
}

TEST(Snapshot, commentIsShownAsItIs) {
  HeadRepository repository("10", {"10:00:00"});
  sessions(repository);
  repository.row("stats$snapshot", {{"snap_id", "2"},
                                    {"snap_time", "2026-01-05 11:00:00"},
                                    {"snap_level", "5"},
                                    {"startup_time", "2000-01-01 00:00:00"},
                                    {"ucomment", "before the batch"}});
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Snapshot", 0);
  EXPECT_EQ(report.grid().TextMatrix(2, 7), "before the batch");
  EXPECT_EQ(report.grid().TextMatrix(2, 6), "5");
  EXPECT_EQ(report.grid().TextMatrix(3, 8), "60");
}

TEST(Snapshot, beginRowsOfAllPairsHaveTheirOwnTimeColumn) {
  HeadRepository repository("10");
  sessions(repository);
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Snapshot", 0);
  EXPECT_EQ(report.col(1),
            "NO|NAME|START TIME|SNAP ID|SESSIONS|CURS/SESS|LEVEL|COMMENT\n"
            "1|Begin Snap:|2026-01-05 10:00:00|1|8|1.5|7| \n"
            "2|Begin Snap:|2026-01-05 11:00:00|2|3|3.7|7| \n"
            "3|Begin Snap:|2026-01-05 12:00:00|3|0| |7| \n");
}

TEST(Snapshot, endRowsOfAllPairs) {
  HeadRepository repository("10");
  sessions(repository);
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Snapshot", 0);
  EXPECT_EQ(report.col(2),
            "NO|NAME|END TIME|SNAP ID|SESSIONS|CURS/SESS|LEVEL|COMMENT\n"
            "1|End Snap:|2026-01-05 11:00:00|2|3|3.7|7| \n"
            "2|End Snap:|2026-01-05 12:00:00|3|0| |7| \n"
            "3|End Snap:|2026-01-05 13:00:00|4|3|.7|7| \n");
}

TEST(Snapshot, elapsedTimesLeaveTheRestartBlankWithItsStatus) {
  HeadRepository repository("10");
  sessions(repository);
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Snapshot", 0);
  EXPECT_EQ(report.col(3),
            "NO|NAME|END TIME|OTHER VALUE|STATUS\n"
            "1|Elapsed(mins):|2026-01-05 11:00:00|60|OK\n"
            "2|Elapsed(mins):|2026-01-05 12:00:00||DB RESTART\n"
            "3|Elapsed(mins):|2026-01-05 13:00:00|60|OK\n");
}

TEST(Snapshot, noOtherRowLeadsAnywhere) {
  HeadRepository repository("10");
  ReportFixture report(repository.write());
  report.open(0);
  const std::string before = printed(report.grid());
  report.show(gDispSnapshot_Col(report.source(), {4, {}}));
  EXPECT_EQ(printed(report.grid()), before);
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(Snapshot, missingStatisticIsTheBoxOfItsEnd) {
  HeadRepository repository("10");
  repository.sysstat("logons current", {"8", "3"}).sysstat("opened cursors current", {"12", "-"});
  ReportFixture report(repository.write());
  report.open(0);
  const std::string before = printed(report.grid());
  EXPECT_EQ(report.all("Snapshot", 0), before);
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsSnapshot){getEND_SNAPSHOT} Error"));

  HeadRepository none("10");
  ReportFixture second(none.write());
  second.open(0);
  second.all("Snapshot", 0);
  EXPECT_THAT(second.boxes(), ElementsAre("[Critical] (clsSnapshot){getSTART_SNAPSHOT} Error"));
}

// The elapsed time reads stats$snapshot alone.
TEST(Snapshot, seriesOfElapsedTimesNeedsNoStatistic) {
  HeadRepository repository("10");
  ReportFixture report(repository.write());
  report.open(0);
  report.show(gDispSnapshot_Col(report.source(), {3, {}}));
  EXPECT_EQ(report.grid().TextMatrix(1, 3), "60");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

}  // namespace
}  // namespace kestrelix::testing_support
