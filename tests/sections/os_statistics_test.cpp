#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/instance_support.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class OsRepository : public InstanceRepository {
 public:
  using InstanceRepository::InstanceRepository;

  /// A statistic with its values at snapshots 1 and 2. Release 10 doesn't know whether it is cumulative.
  OsRepository& osstat(std::string_view id, std::string_view name, std::string_view start,
                       std::string_view end, std::string_view cumulative = "") {
    if (cumulative.empty())
      row("stats$osstatname", {{"osstat_id", id}, {"stat_name", name}});
    else
      row("stats$osstatname", {{"osstat_id", id}, {"stat_name", name}, {"cumulative", cumulative}});
    rows("stats$osstat", {"snap_id", "osstat_id", "value"}, {{"1", id, start}, {"2", id, end}});
    return *this;
  }
};

TEST(OsStatistics, inRelease10FiveIdsAreLevelsAndTheOrderGoesByTheWordsInTheName) {
  OsRepository repository("10");
  repository.osstat("0", "NUM_CPUS", "2", "4")
      .osstat("1", "IDLE_TIME", "1000", "5000")
      .osstat("2", "BUSY_TIME", "500", "900")
      .osstat("15", "LOAD", ".5", "1.7")
      .osstat("16", "NUM_CPU_SOCKETS", "1", "2")
      .osstat("17", "NUM_CPU_CORES", "2", "4")
      .osstat("14", "RSRC_MGR_CPU_WAIT_TIME", "10", "12")
      .osstat("1008", "PHYSICAL_MEMORY_BYTES", "4000", "8000")
      .osstat("1009", "VM_IN_BYTES", "100", "150")
      // Left out: averages, what fell, what ends at 0.
      .osstat("7", "AVG_BUSY_TIME", "1", "9")
      .osstat("3", "USER_TIME", "9", "8")
      .osstat("4", "SYS_TIME", "0", "0");
  OpenReport report(repository);
  // Weights: TIME 1, LOAD 2, TIME and CPU_WAIT 1 + 3, VM_ 4, PHYSICAL_MEMORY 5, NUM_CPU 6.
  EXPECT_EQ(report.all("OS Statistics", 0),
            "NO|STATISTIC|TOTAL\n"
            "1|BUSY_TIME|400\n"
            "2|IDLE_TIME|4000\n"
            "3|LOAD|2\n"
            "4|RSRC_MGR_CPU_WAIT_TIME|2\n"
            "5|VM_IN_BYTES|50\n"
            "6|PHYSICAL_MEMORY_BYTES|8000\n"
            "7|NUM_CPUS|4\n"
            "8|NUM_CPU_CORES|4\n"
            "9|NUM_CPU_SOCKETS|2\n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(OsStatistics, inRelease11TheRepositoryTellsLevelsAndNoLoadShows) {
  OsRepository repository("11");
  repository.osstat("0", "NUM_CPUS", "2", "4", "NO")
      .osstat("15", "LOAD", ".5", "1.7", "NO")
      .osstat("16", "OVERLOAD_TIME", "1", "2", "YES")
      // Not by its id, which was that of a level once.
      .osstat("17", "BUSY_TIME", "500", "900.6", "YES")
      .osstat("14", "RSRC_MGR_CPU_WAIT_TIME", "10", "12", "YES")
      .osstat("1009", "VM_IN_BYTES", "100", "150", "YES")
      .osstat("2000", "TCP_SEND_SIZE_MAX", "1048576", "1048576", "NO")
      .osstat("2001", "GLOBAL_RECEIVE_SIZE_MAX", "4194304", "4194304", "NO")
      .osstat("1008", "PHYSICAL_MEMORY_BYTES", "8000", "8000", "NO")
      // Left out: averages, what fell, what ends at 0.
      .osstat("7", "AVG_BUSY_TIME", "1", "9", "YES")
      .osstat("3", "USER_TIME", "9", "8", "YES")
      .osstat("4", "SYS_TIME", "0", "0", "YES");
  OpenReport report(repository);
  EXPECT_EQ(report.all("OS Statistics", 0),
            "NO|STATISTIC|TOTAL\n"
            "1|BUSY_TIME|401\n"
            "2|RSRC_MGR_CPU_WAIT_TIME|2\n"
            "3|VM_IN_BYTES|50\n"
            "4|PHYSICAL_MEMORY_BYTES|8000\n"
            "5|NUM_CPUS|4\n"
            "6|GLOBAL_RECEIVE_SIZE_MAX|4194304\n"
            "7|TCP_SEND_SIZE_MAX|1048576\n");
}

TEST(OsStatistics, aSeriesFollowsOneStatistic) {
  for (const char* major : {"10", "11"}) {
    OsRepository repository(major);
    repository.osstat("1", "IDLE_TIME", "1000", "5000").osstat("2", "BUSY_TIME", "500", "900");
    repository.rows("stats$osstat", {"snap_id", "osstat_id", "value"},
                    {{"3", "2", "900"}, {"4", "2", "901"}});
    OpenReport report(repository);
    report.all("OS Statistics", 0);
    EXPECT_EQ(report.col(1),
              "NO|STATISTIC|END TIME|TOTAL|STATUS\n"
              "1|BUSY_TIME|2026-01-05 11:00:00|400|OK\n"
              "2||2026-01-05 12:00:00||DB RESTART\n"
              "3|BUSY_TIME|2026-01-05 13:30:00|1|OK\n");
    EXPECT_EQ(report.all("OS Statistics", 1), "NO|STATISTIC|TOTAL\n");
  }
}

const char* const kDetail = "NO|SNAP ID|SNAPSHOT DAY TIME|LOAD|%BUSY|%USER|%SYSTEM|%WIO|%WCPU\n";

/// The times of a snapshot are joined to its number alone: another instance with the same number would count
/// too.
class OsDetailRepository : public OsRepository {
 public:
  OsDetailRepository() : OsRepository("11") { withNeighbours(false); }

  /// 700 of idle and 400 of busy time in pair 0.
  OsDetailRepository& cpuTimes() {
    osstat("1", "IDLE_TIME", "1000", "1700")
        .osstat("2", "BUSY_TIME", "200", "600")
        .osstat("3", "USER_TIME", "100", "365")
        .osstat("4", "SYS_TIME", "50", "107")
        .osstat("5", "IOWAIT_TIME", "10", "22")
        .osstat("15", "LOAD", ".25", "1.26");
    return *this;
  }
};

TEST(OsStatisticsDetail, eachSnapshotOfThePairHasARowAndTheFirstNoShares) {
  OsDetailRepository repository;
  repository.cpuTimes();
  OpenReport report(repository);
  // Of 1100: 400 is 36.36, 265 24.09, 57 5.18, 12 1.09. There is no CPU_WAIT_TIME.
  EXPECT_EQ(report.all("OS Statistics - detail", 0), std::string(kDetail) +
                                                         "1|1|Mon 05 10:00:00|.3| | | | | \n"
                                                         "2|2|Mon 05 11:00:00|1.3|36.4|24.1|5.2|1.1| \n");
  EXPECT_EQ(report.all("OS Statistics - detail", 1), kDetail);
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(OsStatisticsDetail, everyRowLeadsToTheSameSeries) {
  OsDetailRepository repository;
  repository.cpuTimes();
  OpenReport report(repository);
  const std::string series =
      "NO|SNAP ID|END TIME|SNAPSHOT DAY TIME|LOAD|%BUSY|%USER|%SYSTEM|%WIO|%WCPU|STATUS\n"
      "1|2|2026-01-05 11:00:00|Mon 05 11:00:00|1.3|36.4|24.1|5.2|1.1| |OK\n"
      "2||2026-01-05 12:00:00||||||||DB RESTART\n"
      "3||2026-01-05 13:30:00||||||||OK\n";
  report.all("OS Statistics - detail", 0);
  EXPECT_EQ(report.col(1), series);
  report.all("OS Statistics - detail", 0);
  EXPECT_EQ(report.col(2), series);
}

TEST(OsStatisticsDetail, aStatisticThatTheHostLacksIsBlank) {
  OsDetailRepository repository;
  repository.osstat("1", "IDLE_TIME", "1000", "1700")
      .osstat("2", "BUSY_TIME", "200", "600")
      .osstat("6", "CPU_WAIT_TIME", "1", "17");
  OpenReport report(repository);
  // 16 of 1100 are 1.45.
  EXPECT_EQ(report.all("OS Statistics - detail", 0), std::string(kDetail) +
                                                         "1|1|Mon 05 10:00:00| | | | | | \n"
                                                         "2|2|Mon 05 11:00:00| |36.4| | | |1.5\n");
}

TEST(OsStatisticsDetail, theTimeOfASnapshotIsThatOfItsNumberInWhicheverInstance) {
  OsDetailRepository repository;
  repository.cpuTimes().row(
      "stats$snapshot", {{"instance_number", "2"}, {"snap_id", "2"}, {"snap_time", "2026-01-05 11:00:00"}});
  OpenReport report(repository);
  // All of snapshot 2 counts twice: 2400 idle and 1000 busy; 630, 164 and 34 of 3400.
  EXPECT_EQ(report.all("OS Statistics - detail", 0), std::string(kDetail) +
                                                         "1|1|Mon 05 10:00:00|.3| | | | | \n"
                                                         "2|2|Mon 05 11:00:00|2.5|29.4|18.5|4.8|1| \n");
}

TEST(OsStatisticsDetail, aHostWithoutAnyTimeIsADivisionByZero) {
  OsDetailRepository repository;
  repository.osstat("1", "IDLE_TIME", "1000", "1000").osstat("2", "BUSY_TIME", "200", "200");
  OpenReport report(repository);
  report.grid().TextMatrix(0, 0, "former");
  EXPECT_EQ(report.all("OS Statistics - detail", 0).substr(0, 6), "former");
  EXPECT_THAT(report.boxes(),
              ElementsAre("[Critical] (clsOSStatisticsdetail){getOS_STATISTICS_DETAIL_ALL} Error"));
}

}  // namespace
}  // namespace kestrelix::testing_support
