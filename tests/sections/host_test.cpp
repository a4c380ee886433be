// The host's processors and memory, and what the instance takes of them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/head_support.h"
#include "sections/renderers.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// 3000 busy and 6000 idle hundredths in pair 0: 9000 in all.
void busy(HeadRepository& repository) {
  repository.host("BUSY_TIME", {"1000", "4000", "0", "100"}).host("IDLE_TIME", {"50", "6050", "0", "300"});
}

void hostTimes(HeadRepository& repository) {
  busy(repository);
  repository.host("NUM_CPUS", {"4", "8", "8", "8"})
      .host("USER_TIME", {"7", "12", "0", "100"})   // .056, then 25
      .host("SYS_TIME", {"50", "1100", "0", "0"});  // 11.667
}

TEST(HostCpu, sharesOfTheHostsTime) {
  for (const char* version : {"10", "11"}) {
    HeadRepository repository(version);
    hostTimes(repository);
    repository.host("LOAD", {".125", "1.005"})
        .host("IOWAIT_TIME", {"2", "3"})
        .host("OS_CPU_WAIT_TIME", {"1", "34"});
    ReportFixture report(repository.write());
    report.open(0);
    // What can be blank is a text and has no digit before the point.
    EXPECT_EQ(report.all("Host CPU", 0),
              "NO|NAME|START|END|OTHER VALUE\n"
              "1|CPUs:|4|8|\n"
              "2|Load Average:|.13|1.01|\n"
              "3|User:|||0.06\n"
              "4|System:|||11.67\n"
              "5|Idle:|||66.67\n"
              "6|WIO:|||.01\n"
              "7|WCPU:|||.37\n");
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(HostCpu, whatAHostDoesNotReportIsBlank) {
  HeadRepository repository("10");
  hostTimes(repository);
  ReportFixture report(repository.write());
  report.open(0);
  const std::string lines = report.all("Host CPU", 0);
  EXPECT_EQ(columnsOf(lines, 2, 4),
            "START|END|OTHER VALUE\n4|8|\n | |\n||0.06\n||11.67\n||66.67\n|| \n|| \n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(HostCpu, missingUserTimeIsABoxThough) {
  HeadRepository repository("10");
  busy(repository);
  repository.host("NUM_CPUS", {"4", "8"}).host("SYS_TIME", {"0", "1"});
  ReportFixture report(repository.write());
  report.open(0);
  const std::string before = printed(report.grid());
  EXPECT_EQ(report.all("Host CPU", 0), before);
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsHostCPU){getUSER} Error"));
}

TEST(HostCpu, waitReportedFromTheEndOnIsABox) {
  HeadRepository repository("10", {"10:00:00", "11:00:00"});
  hostTimes(repository);
  repository.host("IOWAIT_TIME", {"-", "5"});
  ReportFixture report(repository.write());
  report.open(0);
  report.show(gDispHostCPU_Col(report.source(), {6, {}}));
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsHostCPU){getWIO} Error"));
}

TEST(HostCpu, missingProcessorsOrTotalsAreBoxes) {
  HeadRepository repository("10");
  repository.host("NUM_CPUS", {"4", "-"});
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Host CPU", 0);
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsHostCPU){getCPUS} Error"));

  HeadRepository withoutIdle("10");
  withoutIdle.host("NUM_CPUS", {"4", "4"}).host("BUSY_TIME", {"0", "1"}).host("USER_TIME", {"0", "1"});
  ReportFixture second(withoutIdle.write());
  second.open(0);
  second.all("Host CPU", 0);
  EXPECT_THAT(second.boxes(), ElementsAre("[Critical] (clsHostCPU){getUSER} Error"));
}

TEST(HostCpu, hostThatStoodStillIsABoxUnlessTheWaitIsBlankAnyway) {
  HeadRepository repository("10", {"10:00:00", "11:00:00"});
  repository.host("BUSY_TIME", {"5", "5"}).host("IDLE_TIME", {"6", "6"}).host("USER_TIME", {"1", "1"});
  ReportFixture report(repository.write());
  report.open(0);
  const auto series = [&](int row) { report.show(gDispHostCPU_Col(report.source(), {row, {}})); };
  series(3);
  series(5);
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsHostCPU){getUSER} Error",
                                          "[Critical] (clsHostCPU){getIDLE} Error"));
  series(6);
  EXPECT_EQ(report.grid().TextMatrix(1, 3), " ");
  EXPECT_EQ(report.boxes().size(), 2u);
}

TEST(HostCpu, seriesOfEachRow) {
  HeadRepository repository("11");
  hostTimes(repository);
  repository.host("LOAD", {"1", "2", "3", "4"});
  ReportFixture report(repository.write());
  report.open(0);
  const auto series = [&](int row) {
    report.all("Host CPU", 0);
    return report.col(row);
  };
  EXPECT_EQ(series(1),
            "NO|NAME|END TIME|START|END|STATUS\n"
            "1|CPUs:|2026-01-05 11:00:00|4|8|OK\n"
            "2|CPUs:|2026-01-05 12:00:00|||DB RESTART\n"
            "3|CPUs:|2026-01-05 13:00:00|8|8|OK\n");
  EXPECT_EQ(series(2),
            "NO|NAME|END TIME|START|END|STATUS\n"
            "1|Load Average:|2026-01-05 11:00:00|1|2|OK\n"
            "2|Load Average:|2026-01-05 12:00:00|||DB RESTART\n"
            "3|Load Average:|2026-01-05 13:00:00|3|4|OK\n");
  EXPECT_EQ(series(3),
            "NO|NAME|END TIME|OTHER VALUE|STATUS\n"
            "1|User:|2026-01-05 11:00:00|0.06|OK\n"
            "2|User:|2026-01-05 12:00:00||DB RESTART\n"
            "3|User:|2026-01-05 13:00:00|25|OK\n");
  EXPECT_EQ(columnsOf(series(4), 1, 3),
            "NAME|END TIME|OTHER VALUE\nSystem:|2026-01-05 11:00:00|11.67\n"
            "System:|2026-01-05 12:00:00|\nSystem:|2026-01-05 13:00:00|0\n");
  EXPECT_EQ(columnsOf(series(5), 3, 3), "OTHER VALUE\n66.67\n\n75\n");
  EXPECT_EQ(columnsOf(series(6), 1, 1), "NAME\nWIO:\nWIO:\nWIO:\n");
}

TEST(HostCpu, seriesOfTheWaitForCpuBearsTheLabelOfTheRowAbove) {
  HeadRepository repository("11", {"10:00:00", "11:00:00"});
  hostTimes(repository);
  repository.host("OS_CPU_WAIT_TIME", {"0", "250"}).host("IOWAIT_TIME", {"0", "1"});
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Host CPU", 0);
  EXPECT_EQ(report.grid().TextMatrix(7, 1), "WCPU:");
  EXPECT_EQ(report.col(7), "NO|NAME|END TIME|OTHER VALUE|STATUS\n1|WIO:|2026-01-05 11:00:00|2.78|OK\n");
}

TEST(HostCpu, restartedPairLeavesTheLabels) {
  HeadRepository repository("10");
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(
      report.all("Host CPU", 1),
      "NO|NAME|START|END|OTHER VALUE\n1|CPUs:|||\n2|Load Average:|||\n3|User:|||\n4|System:|||\n5|Idle:|||\n"
      "6|WIO:|||\n7|WCPU:|||\n");
  EXPECT_EQ(columnsOf(report.all("Instance CPU", 1), 2, 2), "VALUE\n\n\n\n");
  EXPECT_EQ(columnsOf(report.all("Virtual Memory Paging", 1), 2, 2), "VALUE\n\n\n");
  EXPECT_EQ(columnsOf(report.all("Memory Statistics", 1), 2, 3), "START|END\n|\n|\n|\n|\n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

// 6.2 + 1.5 seconds of 90, 30 of them busy. The wait is 15 by 10, rounded to 2 before it becomes a
// percentage.
void instanceTimes(HeadRepository& repository) {
  busy(repository);
  repository.host("RSRC_MGR_CPU_WAIT_TIME", {"5", "20", "20", "20"});
  repository.timeModel("DB CPU", {"0", "6200000", "0", "1000000"})
      .timeModel("background cpu time", {"500000", "2000000", "0", "0"})
      .timeModel("DB time", {"0", "10", "0", "10"});
}

TEST(InstanceCpu, shareOfTheHostAndTheWaitForTheResourceManager) {
  HeadRepository repository("10");
  instanceTimes(repository);
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(report.all("Instance CPU", 0),
            "NO|NAME|VALUE\n"
            "1|% of total CPU for Instance:|8.56\n"
            "2|% of busy  CPU for Instance:|25.67\n"
            "3|%DB time waiting for CPU - Resource Mgr:|200\n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

// Pair 2: 1 second of 4, 1 of 1 busy; the wait stands still.
TEST(InstanceCpu, seriesAndTheBlankOfAnUnchangedWait) {
  HeadRepository repository("11");
  instanceTimes(repository);
  ReportFixture report(repository.write());
  report.open(0);
  const auto series = [&](int row) {
    report.all("Instance CPU", 0);
    return report.col(row);
  };
  EXPECT_EQ(series(1),
            "NO|NAME|END TIME|VALUE|STATUS\n"
            "1|% of total CPU for Instance:|2026-01-05 11:00:00|8.56|OK\n"
            "2|% of total CPU for Instance:|2026-01-05 12:00:00||DB RESTART\n"
            "3|% of total CPU for Instance:|2026-01-05 13:00:00|25|OK\n");
  EXPECT_EQ(columnsOf(series(2), 3, 4), "VALUE|STATUS\n25.67|OK\n|DB RESTART\n100|OK\n");
  EXPECT_EQ(columnsOf(series(3), 1, 3),
            "NAME|END TIME|VALUE\n"
            "%DB time waiting for CPU - Resource Mgr:|2026-01-05 11:00:00|200\n"
            "%DB time waiting for CPU - Resource Mgr:|2026-01-05 12:00:00|\n"
            "%DB time waiting for CPU - Resource Mgr:|2026-01-05 13:00:00| \n");
}

TEST(InstanceCpu, waitBelowHalfOfTheDbTimeIsNone) {
  HeadRepository repository("10");
  busy(repository);
  repository.host("RSRC_MGR_CPU_WAIT_TIME", {"0", "4"});
  repository.timeModel("DB CPU", {"0", "0"})
      .timeModel("background cpu time", {"0", "0"})
      .timeModel("DB time", {"0", "10"});
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(columnsOf(report.all("Instance CPU", 0), 2, 2), "VALUE\n0\n0\n0\n");
}

TEST(InstanceCpu, divisorsHaveNoGuard) {
  HeadRepository still("10");
  still.host("BUSY_TIME", {"5", "5"}).host("IDLE_TIME", {"5", "5"});
  still.timeModel("DB CPU", {"0", "1"}).timeModel("background cpu time", {"0", "0"});
  ReportFixture first(still.write());
  first.open(0);
  first.all("Instance CPU", 0);
  EXPECT_THAT(first.boxes(),
              ElementsAre("[Critical] (clsInstanceCPU){getPER_OF_TOTAL_CPU_FOR_INSTANCE} Error"));

  HeadRepository idle("10");
  idle.host("BUSY_TIME", {"5", "5"}).host("IDLE_TIME", {"5", "6"});
  idle.timeModel("DB CPU", {"0", "1"}).timeModel("background cpu time", {"0", "0"});
  ReportFixture second(idle.write());
  second.open(0);
  second.all("Instance CPU", 0);
  EXPECT_THAT(second.boxes(),
              ElementsAre("[Critical] (clsInstanceCPU){getPER_OF_BUSY_CPU_FOR_INSTANCE} Error"));

  HeadRepository timeless("10");
  busy(timeless);
  timeless.host("RSRC_MGR_CPU_WAIT_TIME", {"0", "4"});
  timeless.timeModel("DB CPU", {"0", "1"})
      .timeModel("background cpu time", {"0", "0"})
      .timeModel("DB time", {"9", "9"});
  ReportFixture third(timeless.write());
  third.open(0);
  third.all("Instance CPU", 0);
  EXPECT_THAT(third.boxes(), ElementsAre("[Critical] (clsInstanceCPU){getPER_RESOURCE_MGR} Error"));
}

TEST(InstanceCpu, missingWaitIsABox) {
  HeadRepository repository("10");
  busy(repository);
  repository.timeModel("DB CPU", {"0", "1"})
      .timeModel("background cpu time", {"0", "0"})
      .timeModel("DB time", {"0", "9"});
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Instance CPU", 0);
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsInstanceCPU){getPER_RESOURCE_MGR} Error"));
}

// 36000 KB and 180 KB in 3600 whole seconds: 10 and .05, which is .1.
void paging(HeadRepository& repository) {
  repository.host("VM_OUT_BYTES", {"0", "36864000", "0", "0"})
      .host("VM_IN_BYTES", {"1024", "185344", "0", "0"});
}

TEST(VirtualMemoryPaging, kilobytesPerSecond) {
  HeadRepository repository("11");
  paging(repository);
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(report.all("Virtual Memory Paging", 0),
            "NO|NAME|VALUE\n1|KB paged out per sec:|10\n2|KB paged  in per sec:|0.1\n");
  EXPECT_EQ(report.col(2),
            "NO|NAME|END TIME|VALUE|STATUS\n"
            "1|KB paged  in per sec:|2026-01-05 11:00:00|0.1|OK\n"
            "2|KB paged  in per sec:|2026-01-05 12:00:00||DB RESTART\n"
            "3|KB paged  in per sec:|2026-01-05 13:00:00|0|OK\n");
  report.all("Virtual Memory Paging", 0);
  EXPECT_EQ(columnsOf(report.col(1), 1, 3),
            "NAME|END TIME|VALUE\nKB paged out per sec:|2026-01-05 11:00:00|10\n"
            "KB paged out per sec:|2026-01-05 12:00:00|\n"
            "KB paged out per sec:|2026-01-05 13:00:00|0\n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(VirtualMemoryPaging, emptyWhereTheHostDoesNotReportItOrNoTimePassed) {
  HeadRepository silent("10");
  silent.host("VM_IN_BYTES", {"0", "-"});
  ReportFixture first(silent.write());
  first.open(0);
  EXPECT_EQ(first.all("Virtual Memory Paging", 0),
            "NO|NAME|VALUE\n1|KB paged out per sec:|\n2|KB paged  in per sec:|\n");
  EXPECT_THAT(first.boxes(), IsEmpty());

  HeadRepository instant("10", {"10:00:00", "10:00:00"});
  paging(instant);
  ReportFixture second(instant.write());
  second.open(0);
  EXPECT_EQ(columnsOf(second.all("Virtual Memory Paging", 0), 2, 2), "VALUE\n\n\n");
  EXPECT_THAT(second.boxes(), IsEmpty());
}

// 8192 MB of host; 1024 + 100 MB of SGA and 150 of sessions are 1274, or 15.55 percent; later 1024 and .5.
void memory(HeadRepository& repository) {
  repository.host("PHYSICAL_MEMORY_BYTES", {"8589934592", "8589934592"});
  repository.pga("total PGA allocated", {"157286400", "524288"}).pga("total PGA inuse", {"1", "2"});
  repository.rows("stats$sga", {"snap_id", "name", "value"},
                  {{"1", "Database Buffers", "1073741824"},
                   {"1", "Variable Size", "104857600"},
                   {"2", "Database Buffers", "1073741824"}});
}

TEST(MemoryStatistics, levelsAtBothEnds) {
  for (const char* version : {"10", "11"}) {
    HeadRepository repository(version, {"10:00:00", "11:00:00"});
    memory(repository);
    ReportFixture report(repository.write());
    report.open(0);
    EXPECT_EQ(report.all("Memory Statistics", 0),
              "NO|NAME|START|END\n"
              "1|Host Mem (MB):|8192|8192\n"
              "2|SGA use (MB):|1124|1024\n"
              "3|PGA use (MB):|150|0.5\n"
              "4|% Host Mem used for SGA+PGA:|15.6|12.5\n");
    EXPECT_EQ(report.col(4),
              "NO|NAME|END TIME|START|END|STATUS\n"
              "1|% Host Mem used for SGA+PGA:|2026-01-05 11:00:00|15.6|12.5|OK\n");
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(MemoryStatistics, seriesOfTheOtherRows) {
  HeadRepository repository("10", {"10:00:00", "11:00:00"});
  memory(repository);
  repository.snapshot("3", "2026-01-05 12:00:00", "7", "2026-01-05 11:30:00");
  ReportFixture report(repository.write());
  report.open(0);
  const std::pair<const char*, const char*> rows[] = {
      {"Host Mem (MB):", "8192|8192"}, {"SGA use (MB):", "1124|1024"}, {"PGA use (MB):", "150|0.5"}};
  int row = 0;
  for (const auto& [label, values] : rows) {
    report.all("Memory Statistics", 0);
    EXPECT_EQ(report.col(++row), "NO|NAME|END TIME|START|END|STATUS\n1|" + std::string(label) +
                                     "|2026-01-05 11:00:00|" + values + "|OK\n2|" + label +
                                     "|2026-01-05 12:00:00|||DB RESTART\n");
  }
}

TEST(MemoryStatistics, missingFigureIsTheBoxOfItsGetter) {
  HeadRepository silent("10");
  ReportFixture first(silent.write());
  first.open(0);
  first.all("Memory Statistics", 0);
  EXPECT_THAT(first.boxes(), ElementsAre("[Critical] (clsMemoryStatistics){getHOST_MEM_MB} Error"));

  HeadRepository repository("10");
  repository.host("PHYSICAL_MEMORY_BYTES", {"8589934592", "8589934592"});
  ReportFixture second(repository.write());
  second.open(0);
  second.all("Memory Statistics", 0);
  EXPECT_THAT(second.boxes(), ElementsAre("[Critical] (clsMemoryStatistics){getSGA_USE_MB} Error"));

  repository.rows("stats$sga", {"snap_id", "name", "value"},
                  {{"1", "Fixed Size", "1"}, {"2", "Fixed Size", "1"}});
  ReportFixture third(repository.write());
  third.open(0);
  third.all("Memory Statistics", 0);
  EXPECT_THAT(third.boxes(), ElementsAre("[Critical] (clsMemoryStatistics){getPGA_USE_MB} Error"));
}

TEST(MemoryStatistics, hostWithoutMemoryIsADivisionByZero) {
  HeadRepository repository("10");
  repository.host("PHYSICAL_MEMORY_BYTES", {"0", "0"});
  repository.pga("total PGA allocated", {"1", "1"});
  repository.rows("stats$sga", {"snap_id", "name", "value"},
                  {{"1", "Fixed Size", "1"}, {"2", "Fixed Size", "1"}});
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Memory Statistics", 0);
  EXPECT_THAT(report.boxes(),
              ElementsAre("[Critical] (clsMemoryStatistics){getHOST_MEM_USE_FOR_SGA_PGA} Error"));
}

}  // namespace
}  // namespace kestrelix::testing_support
