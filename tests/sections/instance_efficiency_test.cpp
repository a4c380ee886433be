#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/head_support.h"
#include "sections/renderers.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

void common(HeadRepository& repository) {
  repository.series("stats$waitstat", {{"class", "data block"}}, "wait_count", {"10", "30"})
      .series("stats$waitstat", {{"class", "undo header"}}, "wait_count", {"5", "10"});
  repository.sysstat("redo entries", {"1000", "4000"})
      .sysstat("redo log space requests", {"4", "5"})  // 1 of 3000 waited: 99.9667
      .sysstat("sorts (memory)", {"5", "104"})
      .sysstat("sorts (disk)", {"2", "3"})  // 99 of 100
      .sysstat("parse count (total)", {"100", "400"})
      .sysstat("parse count (hard)", {"0", "30"})  // 30 of 300 were hard: 90
      .sysstat("execute count", {"0", "1200"})     // 300 parses by 1200: 75
      .sysstat("parse time cpu", {"9", "10"})
      .sysstat("parse time elapsed", {"0", "200"})           // 1 of 200: .5
      .sysstat("CPU used by this session", {"100", "300"});  // 1 of 200 was parsing: 99.5
  const char* const libraries[][5] = {{"SQL AREA", "100", "400", "100", "399"},
                                      {"BODY", "0", "100", "0", "100"}};
  for (const auto& [name, pins, laterPins, hits, laterHits] : libraries)  // 399 of 400
    for (const bool later : {false, true})
      repository.row("stats$librarycache", {{"snap_id", later ? "2" : "1"},
                                            {"namespace", name},
                                            {"pins", later ? laterPins : pins},
                                            {"pinhits", later ? laterHits : hits}});
  repository.rows("stats$latch", {"snap_id", "name", "gets", "misses"},
                  {{"1", "cache buffers chains", "0", "0"},
                   {"1", "shared pool", "500", "1"},
                   {"2", "cache buffers chains", "9000", "2"},
                   {"2", "shared pool", "1500", "2"}});  // 3 of 10000: 99.97
  repository.rows("stats$sql_statistics",
                  {"snap_id", "total_sql", "total_sql_mem", "single_use_sql", "single_use_sql_mem"},
                  {{"1", "200", "1000", "199", "250"},    // .5, 75
                   {"2", "400", "3000", "30", "1000"}});  // 92.5, 66.67
}

// 900 + 100 gets, of which 20 + 5 waited: 97.5; 50 were read from disk: 95.
void cacheOf10(HeadRepository& repository) {
  repository.sysstat("consistent gets from cache", {"100", "1000"})
      .sysstat("db block gets from cache", {"0", "100"})
      .sysstat("physical reads cache", {"7", "57"});
}

// The larger shared pool by its text is 2000 at the start and 900 at the end. 500 of 2000 free: 75; 450 of
// 900: 50.
void poolOf10(HeadRepository& repository) {
  repository.parameter("shared_pool_size", {"1000", "900"}).parameter("__shared_pool_size", {"2000", "2000"});
  repository.rows("stats$sgastat", {"snap_id", "pool", "name", "bytes"},
                  {{"1", "java pool", "free memory", "1"},
                   {"1", "shared pool", "free memory", "500"},
                   {"1", "shared pool", "library cache", "800"},
                   {"2", "shared pool", "free memory", "450"},
                   {"2", "", "buffer_cache", "9"}});
}

void workAreas(HeadRepository& repository) {
  // 50 more at their best of 50 in the first class; 40 of 49 in one that the start doesn't have: 90 of 99.
  repository.rows(
      "stats$sql_workarea_histogram",
      {"snap_id", "low_optimal_size", "high_optimal_size", "optimal_executions", "total_executions"},
      {{"1", "0", "1023", "50", "60"}, {"2", "0", "1023", "100", "110"}, {"2", "1024", "2047", "40", "49"}});
}

std::string expected(const std::string& nowait, const std::string& hit, const std::string& row4,
                     const std::string& memory) {
  return "NO|NAME|START|END|OTHER VALUE\n"
         "1|Buffer Nowait %:|||" +
         nowait +
         "\n"
         "2|Redo NoWait %:|||99.97\n"
         "3|Buffer  Hit   %:|||" +
         hit +
         "\n"
         "4|" +
         row4 +
         "\n"
         "5|Library Hit   %:|||99.75\n"
         "6|Soft Parse %:|||90\n"
         "7|Execute to Parse %:|||75\n"
         "8|Latch Hit %:|||99.97\n"
         "9|Parse CPU to Parse Elapsd %:|||.5\n"
         "10|% Non-Parse CPU:|||99.5\n"
         "11|Memory Usage %:|" +
         memory +
         "|\n"
         "12|% SQL with executions>1:|0.5|92.5|\n"
         "13|% Memory for SQL w/exec>1:|75|66.67|\n";
}

// Ratios with a blank for no divisor are texts, ".5"; the levels are numbers, "0.5".
TEST(InstanceEfficiency, versionTen) {
  HeadRepository repository("10");
  common(repository);
  cacheOf10(repository);
  poolOf10(repository);
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(report.all("Instance Efficiency", 0), expected("97.5", "95", "In-memory Sort %:|||99", "75|50"));
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(InstanceEfficiency, versionElevenTellsWorkAreasInsteadOfSorts) {
  HeadRepository repository("11");
  common(repository);
  cacheOf10(repository);
  poolOf10(repository);
  workAreas(repository);
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(report.all("Instance Efficiency", 0),
            expected("97.5", "95", "Optimal W/A Exec %:|||90.91", "75|50"));
  EXPECT_THAT(report.boxes(), IsEmpty());
}

// All 2000 logical reads count as gets: 25 waits of them are 98.75; 150 reads less 30 and 20 direct ones
// are 95. The pool is what its parts add up to, 2000 at both ends.
TEST(InstanceEfficiency, versionNineReadsOtherStatistics) {
  HeadRepository repository("9");
  common(repository);
  repository.sysstat("session logical reads", {"0", "2000"})
      .sysstat("physical reads", {"0", "150"})
      .sysstat("physical reads direct", {"0", "30"})
      .sysstat("physical reads direct (lob)", {"0", "20"});
  repository.rows("stats$sgastat", {"snap_id", "pool", "name", "bytes"},
                  {{"1", "shared pool", "free memory", "500"},
                   {"1", "shared pool", "library cache", "1000"},
                   {"1", "all pools", "miscellaneous", "500"},
                   {"1", "java pool", "free memory", "7"},
                   {"2", "shared pool", "free memory", "1000"},
                   {"2", "shared pool", "library cache", "1000"}});
  ReportFixture report(repository.write());
  report.open(0);
  EXPECT_EQ(report.all("Instance Efficiency", 0), expected("98.75", "95", "In-memory Sort %:|||99", "75|50"));
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(InstanceEfficiency, restartedPairLeavesTheLabels) {
  HeadRepository repository("11");
  ReportFixture report(repository.write());
  report.open(0);
  const std::string lines = report.all("Instance Efficiency", 1);
  EXPECT_EQ(columnsOf(lines, 2, 4),
            "START|END|OTHER VALUE\n||\n||\n||\n||\n||\n||\n||\n||\n||\n||\n||\n||\n||\n");
  EXPECT_EQ(report.grid().TextMatrix(4, 1), "Optimal W/A Exec %:");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(InstanceEfficiency, ratioWithoutADivisorIsBlankInEveryRow) {
  for (const char* version : {"9", "10", "11"}) {
    HeadRepository repository(version, {"10:00:00", "11:00:00"});
    for (const char* name : {"redo entries", "redo log space requests", "sorts (memory)", "sorts (disk)",
                             "parse count (total)", "parse count (hard)", "execute count", "parse time cpu",
                             "parse time elapsed", "CPU used by this session", "consistent gets from cache",
                             "db block gets from cache", "physical reads cache", "session logical reads",
                             "physical reads", "physical reads direct", "physical reads direct (lob)"})
      repository.sysstat(name, {"7", "7"});
    repository.series("stats$waitstat", {{"class", "data block"}}, "wait_count", {"3", "3"});
    for (const char* id : {"1", "2"}) {
      repository.row("stats$librarycache",
                     {{"snap_id", id}, {"namespace", "BODY"}, {"pins", "5"}, {"pinhits", "5"}});
      repository.row("stats$latch",
                     {{"snap_id", id}, {"name", "shared pool"}, {"gets", "5"}, {"misses", "0"}});
      repository.row("stats$sql_statistics", {{"snap_id", id},
                                              {"total_sql", "4"},
                                              {"total_sql_mem", "4"},
                                              {"single_use_sql", "4"},
                                              {"single_use_sql_mem", "0"}});
      repository.row("stats$sgastat",
                     {{"snap_id", id}, {"pool", "shared pool"}, {"name", "free memory"}, {"bytes", "9"}});
      repository.row("stats$sql_workarea_histogram", {{"snap_id", id},
                                                      {"low_optimal_size", "0"},
                                                      {"high_optimal_size", "1"},
                                                      {"optimal_executions", "4"},
                                                      {"total_executions", "4"}});
    }
    repository.parameter("shared_pool_size", {"9", "9"});
    ReportFixture report(repository.write());
    report.open(0);
    EXPECT_EQ(
        columnsOf(report.all("Instance Efficiency", 0), 2, 4),
        "START|END|OTHER VALUE\n|| \n|| \n|| \n|| \n|| \n|| \n|| \n|| \n|| \n|| \n0|0|\n0|0|\n100|100|\n")
        << version;
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(InstanceEfficiency, levelsHaveNoGuard) {
  HeadRepository repository("10");
  common(repository);
  cacheOf10(repository);
  poolOf10(repository);
  repository.rows("stats$sql_statistics",
                  {"snap_id", "total_sql", "total_sql_mem", "single_use_sql", "single_use_sql_mem"},
                  {{"3", "0", "5", "0", "1"}, {"4", "3", "0", "0", "1"}});
  ReportFixture report(repository.write());
  report.open(0);
  report.all("Instance Efficiency", 0);
  const std::string before = printed(report.grid());
  EXPECT_EQ(report.col(12), before);
  EXPECT_EQ(report.col(13), before);
  EXPECT_THAT(report.boxes(),
              ElementsAre("[Critical] (clsInstanceEfficiency){getSQL_WITH_EXECUTIONS} Error",
                          "[Critical] (clsInstanceEfficiency){getMEMORY_FOR_SQL_WEXEC} Error"));
}

TEST(InstanceEfficiency, missingFigureIsTheBoxOfItsGetterAndTheGridStays) {
  HeadRepository bare("10");
  ReportFixture first(bare.write());
  first.open(0);
  const std::string before = printed(first.grid());
  EXPECT_EQ(first.all("Instance Efficiency", 0), before);
  EXPECT_THAT(first.boxes(), ElementsAre("[Critical] (clsInstanceEfficiency){getBUFFER_NOWAIT} Error"));

  HeadRepository withoutPool("10");
  common(withoutPool);
  cacheOf10(withoutPool);
  ReportFixture second(withoutPool.write());
  second.open(0);
  second.all("Instance Efficiency", 0);
  EXPECT_THAT(second.boxes(), ElementsAre("[Critical] (clsInstanceEfficiency){getMEMORY_USAGE} Error"));

  HeadRepository withoutWorkAreas("11");
  common(withoutWorkAreas);
  cacheOf10(withoutWorkAreas);
  poolOf10(withoutWorkAreas);
  ReportFixture third(withoutWorkAreas.write());
  third.open(0);
  third.all("Instance Efficiency", 0);
  EXPECT_THAT(third.boxes(), ElementsAre("[Critical] (clsInstanceEfficiency){getOPTIMAL_WA_EXEC} Error"));
}

TEST(InstanceEfficiency, firstOfSeveralFreeMemoriesCounts) {
  HeadRepository repository("10", {"10:00:00", "11:00:00"});
  repository.parameter("shared_pool_size", {"1000", "1000"});
  repository.rows("stats$sgastat", {"snap_id", "pool", "name", "bytes"},
                  {{"1", "shared pool", "free memory", "500"},
                   {"1", "all pools", "free memory", "500"},
                   {"2", "shared pool", "free memory", "250"}});
  ReportFixture report(repository.write());
  report.open(0);
  report.show(gDispInstanceEfficiency_Col(report.source(), {11, {}}));
  EXPECT_EQ(printed(report.grid()),
            "NO|NAME|END TIME|START|END|STATUS\n1|Memory Usage %:|2026-01-05 11:00:00|50|75|OK\n");
}

TEST(InstanceEfficiency, rowsLeadToTheirSeries) {
  for (const char* version : {"9", "10", "11"}) {
    // The series of a restarted pair alone needs no figures.
    HeadRepository repository(version, {"10:00:00"});
    repository.snapshot("2", "2026-01-05 11:00:00", "7", "2026-01-05 10:30:00");
    ReportFixture report(repository.write());
    report.open(0);
    for (int row = 1; row <= 13; ++row) {
      report.all("Instance Efficiency", 0);
      const std::string label = report.grid().TextMatrix(row, 1);
      const std::string values = row <= 10 ? "OTHER VALUE" : "START|END";
      const std::string blanks = row <= 10 ? "" : "|";
      EXPECT_EQ(report.col(row), "NO|NAME|END TIME|" + values + "|STATUS\n1|" + label +
                                     "|2026-01-05 11:00:00|" + blanks + "|DB RESTART\n");
    }
    const std::string before = printed(report.grid());
    report.show(gDispInstanceEfficiency_Col(report.source(), {14, {}}));
    EXPECT_EQ(printed(report.grid()), before);
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(InstanceEfficiency, rowFourLeadsToTheFigureOfItsVersion) {
  HeadRepository sorts("10", {"10:00:00", "11:00:00"});
  common(sorts);
  ReportFixture ten(sorts.write());
  ten.open(0);
  ten.show(gDispInstanceEfficiency_Col(ten.source(), {4, {}}));
  EXPECT_EQ(printed(ten.grid()),
            "NO|NAME|END TIME|OTHER VALUE|STATUS\n1|In-memory Sort %:|2026-01-05 11:00:00|99|OK\n");
  HeadRepository areas("11", {"10:00:00", "11:00:00"});
  workAreas(areas);
  ReportFixture eleven(areas.write());
  eleven.open(0);
  eleven.show(gDispInstanceEfficiency_Col(eleven.source(), {4, {}}));
  EXPECT_EQ(printed(eleven.grid()),
            "NO|NAME|END TIME|OTHER VALUE|STATUS\n1|Optimal W/A Exec %:|2026-01-05 11:00:00|90.91|OK\n");
}

}  // namespace
}  // namespace kestrelix::testing_support
