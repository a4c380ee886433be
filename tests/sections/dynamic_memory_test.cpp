#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/instance_support.h"

namespace kestrelix::testing_support {
namespace {

using testing::IsEmpty;

const char* const kComponents =
    "NO|CACHE|START SNAP SIZE(M)|END SNAP SIZE(M)|OP COUNT|LAST OP TYPE/MODE|LAST OP TIME\n";

/// Snapshots 1 and 2 of some components, and 3 and 4 of one.
class ComponentRepository : public InstanceRepository {
 public:
  ComponentRepository() : InstanceRepository("11") {
    rows("stats$memory_dynamic_comps",
         {"snap_id", "component", "current_size", "oper_count", "last_oper_type", "last_oper_mode",
          "last_oper_time"},
         {{"1", "DEFAULT buffer cache", "105381888", "1", "SHRINK", "MANUAL", "2026-01-05 09:30:00"},
          {"2", "DEFAULT buffer cache", "126353408", "3", "GROW", "DEFERRED", "2026-01-05 10:30:00"},
          {"1", "KEEP buffer cache", "0", "0", "STATIC", "", ""},
          {"2", "KEEP buffer cache", "0", "1", "INITIALIZING", "IMMEDIATE", "2026-01-05 10:40:00"},
          {"1", "RECYCLE buffer cache", "0", "0", "STATIC", "", ""},
          {"2", "RECYCLE buffer cache", "8388608", "0", "STATIC", "MANUAL", ""},
          {"1", "large pool", "16777216", "0", "STATIC", "", ""},
          {"2", "large pool", "16777216", "0", "STATIC", "", ""},
          {"1", "streams pool", "0", "0", "STATIC", "", ""},
          {"2", "streams pool", "0", "0", "STATIC", "", ""},
          {"2", "ASM Buffer Cache", "8388608", "1", "GROW", "DEFERRED", ""},
          {"3", "RECYCLE buffer cache", "8388608", "0", "STATIC", "", ""},
          {"4", "RECYCLE buffer cache", "8388608", "0", "STATIC", "", ""}});
  }
};

TEST(MemoryComponents, thoseWithASizeOrAnOperationShow) {
  ComponentRepository repository;
  OpenReport report(repository);
  // 100.5 and 120.5 MB are rounded up. The type is cut to six letters and the mode to three; a static
  // component has a blank between. An end size is blank where it is that of the start. A component that only
  // the end knows is left out.
  EXPECT_EQ(report.all("Memory Dynamic Components", 0),
            std::string(kComponents) +
                "1|D:buffer cache|101|121|2|GROW/DEF|2026-01-05 10:30:00\n"
                "2|K:buffer cache|0| |1|INITIA/IMM|2026-01-05 10:40:00\n"
                "3|R: buffer cache|0|8|0|STATIC MAN| \n"
                "4|large pool|16| |0|STATIC | \n");
  EXPECT_EQ(report.all("Memory Dynamic Components", 1), kComponents);
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(MemoryComponents, aSeriesIsFoundByTheShortName) {
  ComponentRepository repository;
  OpenReport report(repository);
  report.all("Memory Dynamic Components", 0);
  EXPECT_EQ(report.col(3),
            "NO|CACHE|END TIME|START SNAP SIZE(M)|END SNAP SIZE(M)|OP COUNT|LAST OP TYPE/MODE|LAST OP TIME|"
            "STATUS\n"
            "1|R: buffer cache|2026-01-05 11:00:00|0|8|0|STATIC MAN| |OK\n"
            "2||2026-01-05 12:00:00||||||DB RESTART\n"
            "3|R: buffer cache|2026-01-05 13:30:00|8| |0|STATIC | |OK\n");
}

const char* const kResizes =
    "NO|OPERATION TIME|ELAP(S)|CACHE|INIT SIZE(M)|DELTA(M) & MODE|FINAL SIZE(M)|STATUS|NUM OPS\n";

/// Pair 0 is from 10:00 to 11:00. Operations of 27 and 54 seconds, which are whole as parts of a day.
class ResizeRepository : public InstanceRepository {
 public:
  ResizeRepository() : InstanceRepository("11") {
    rows("stats$memory_resize_ops",
         {"snap_id", "component", "oper_type", "oper_mode", "start_time", "end_time", "initial_size",
          "target_size", "final_size", "status", "num_ops"},
         {{"2", "large pool", "GROW", "MANUAL", "2026-01-05 09:59:33", "2026-01-05 10:00:00", "524288",
           "1572864", "1572864", "COMPLETE", "1"},
          {"2", "DEFAULT buffer cache", "GROW", "DEFERRED", "2026-01-05 10:30:00", "2026-01-05 10:30:54",
           "67108864", "134217728", "134217728", "COMPLETE", "1"},
          {"2", "shared pool", "SHRINK", "DEFERRED", "2026-01-05 10:30:00", "2026-01-05 10:30:54",
           "134217728", "67108864", "67108864", "COMPLETE", "1"},
          {"2", "DEFAULT buffer cache", "SHRINK", "IMMEDIATE", "2026-01-05 10:45:00", "2026-01-05 10:45:27",
           "134217728", "100663296", "134217728", "ERROR", "2"},
          {"2", "java pool", "GROW", "DEFERRED", "2026-01-05 09:00:00", "2026-01-05 13:00:00", "0", "1048576",
           "1048576", "COMPLETE", "1"},
          {"4", "DEFAULT buffer cache", "GROW", "DEFERRED", "2026-01-05 12:30:00", "2026-01-05 12:30:27", "0",
           "10737418240", "10737418240", "COMPLETE", "1"}});
  }
};

TEST(MemoryResizes, thoseThatBeganOrEndedInThePairShowInTheOrderOfTheirTimes) {
  ResizeRepository repository;
  OpenReport report(repository);
  // The one that spans the pair is left out. Of two at the same time SHRINK comes before GROW.
  EXPECT_EQ(report.all("Memory Resize Operations", 0),
            std::string(kResizes) +
                "1|2026/01/05 09:59:33|27|large pool|0.5|   +1 MAN|1.5|COMPLETE|1\n"
                "2|2026/01/05 10:30:00|54|shared pool|128|  -64 DEF|64|COMPLETE|1\n"
                "3|2026/01/05 10:30:00|54|D:buffer cache|64|  +64 DEF|128|COMPLETE|1\n"
                "4|2026/01/05 10:45:00|27|D:buffer cache|128|  -32 IMM|128|ERROR|2\n");
  EXPECT_EQ(report.all("Memory Resize Operations", 1), kResizes);
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(MemoryResizes, theSeriesTakesTheLastOfTheComponentInEachPairAndHasTwoColumnsOfStatus) {
  ResizeRepository repository;
  OpenReport report(repository);
  report.all("Memory Resize Operations", 0);
  // 10240 MB don't fit the four digits.
  EXPECT_EQ(
      report.col(3),
      "NO|OPERATION TIME|ELAP(S)|CACHE|END TIME|INIT SIZE(M)|DELTA(M) & MODE|FINAL SIZE(M)|STATUS|NUM OPS|"
      "STATUS\n"
      "1|2026/01/05 10:45:00|27|D:buffer cache|2026-01-05 11:00:00|128|  -32 IMM|128|ERROR|2|OK\n"
      "2||||2026-01-05 12:00:00||||||DB RESTART\n"
      "3|2026/01/05 12:30:00|27|D:buffer cache|2026-01-05 13:30:00|0|##### DEF|10240|COMPLETE|1|OK\n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

// 1/86400 of a day is 11 57 and then 40 74 07 again and again; the twenty digits to the base of 100 end
// before a 40 and are rounded down by .4074 of 1e-44. Times 86400 that is 3.52e-40 short of 1, to forty
// places 4e-40.
TEST(MemoryResizes, aSecondAsPartOfADayIsATraceShort) {
  InstanceRepository repository("11");
  repository.row("stats$memory_resize_ops", {{"snap_id", "2"},
                                             {"component", "large pool"},
                                             {"oper_type", "GROW"},
                                             {"oper_mode", "MANUAL"},
                                             {"start_time", "2026-01-05 10:30:00"},
                                             {"end_time", "2026-01-05 10:30:01"},
                                             {"initial_size", "0"},
                                             {"target_size", "1048576"},
                                             {"final_size", "1048576"},
                                             {"status", "COMPLETE"},
                                             {"num_ops", "1"}});
  OpenReport report(repository);
  report.all("Memory Resize Operations", 0);
  EXPECT_EQ(report.grid().TextMatrix(1, 2), "0.9999999999999999999999999999999999999996");
}

const char* const kChanges = "NO|CACHE|START SIZE(MB)|END SIZE(MB)|DIFF SIZE(MB)\n";

TEST(CacheSizeChanges, sizesInForceAtBothEndsShowTheLargestFirst) {
  for (const char* major : {"10", "11"}) {
    InstanceRepository repository(major);
    repository.rows("stats$parameter", {"snap_id", "name", "value"},
                    {{"1", "__db_cache_size", "104857600"},
                     {"2", "__db_cache_size", "209715200"},
                     {"1", "__shared_pool_size", "52428800"},
                     {"2", "__shared_pool_size", "52428800"},
                     {"1", "__large_pool_size", "4199547"},
                     {"2", "__large_pool_size", "4729078"},
                     {"1", "__java_pool_size", "4194304"},
                     {"2", "__java_pool_size", "1572864"},
                     {"2", "__streams_pool_size", "4194304"},
                     {"1", "db_cache_size", "0"},
                     {"2", "db_cache_size", "1"}});
    OpenReport report(repository);
    // The large pool has a trace more than 4.005 and 4.51 MB, .505 between. The streams pool has no size at
    // the start.
    EXPECT_EQ(report.all("Cache Size Changes", 0), std::string(kChanges) +
                                                       "1|Buffer Cache|100|200|100\n"
                                                       "2|Shared Pool|50|50|0\n"
                                                       "3|Large Pool|4.01|4.51|.51\n"
                                                       "4|Java Pool|4|1.5|-2.5\n");
    EXPECT_EQ(report.all("Cache Size Changes", 1), kChanges);
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(CacheSizeChanges, aSizeThatIsMissingIsBlankAndSortsFirst) {
  InstanceRepository repository("10");
  repository.rows("stats$parameter", {"snap_id", "name", "value"},
                  {{"1", "__db_cache_size", "1048576"},
                   {"2", "__db_cache_size", "2097152"},
                   {"1", "__streams_pool_size", "1048576"},
                   {"2", "__streams_pool_size", ""},
                   {"1", "__java_pool_size", ""},
                   {"2", "__java_pool_size", "1048576"}});
  OpenReport report(repository);
  EXPECT_EQ(report.all("Cache Size Changes", 0), std::string(kChanges) +
                                                     "1|Streams Pool|1| | \n"
                                                     "2|Buffer Cache|1|2|1\n"
                                                     "3|Java Pool| |1| \n");
}

TEST(CacheSizeChanges, everySnapshotBetweenTheTwoHasItsOwnRow) {
  InstanceRepository repository("11");
  repository.snapshot("9", "2026-01-05 14:30:00", "7", "2026-01-05 11:30:00");
  repository.rows("stats$parameter", {"snap_id", "name", "value"},
                  {{"4", "__db_cache_size", "1048576"},
                   {"6", "__db_cache_size", "3145728"},
                   {"9", "__db_cache_size", "2097152"}});
  OpenReport report(repository);
  EXPECT_EQ(report.all("Cache Size Changes", 3), std::string(kChanges) +
                                                     "1|Buffer Cache|1|3|2\n"
                                                     "2|Buffer Cache|3|2|-1\n");
}

TEST(CacheSizeChanges, aSeriesFollowsOneCache) {
  InstanceRepository repository("10");
  repository.rows("stats$parameter", {"snap_id", "name", "value"},
                  {{"1", "__java_pool_size", "1048576"},
                   {"2", "__java_pool_size", "2097152"},
                   {"3", "__java_pool_size", "2097152"},
                   {"4", "__java_pool_size", "1048576"},
                   {"1", "__db_cache_size", "1048576"},
                   {"2", "__db_cache_size", "1048576"}});
  OpenReport report(repository);
  report.all("Cache Size Changes", 0);
  EXPECT_EQ(report.col(1),
            "NO|CACHE|END TIME|START SIZE(MB)|END SIZE(MB)|DIFF SIZE(MB)|STATUS\n"
            "1|Java Pool|2026-01-05 11:00:00|1|2|1|OK\n"
            "2||2026-01-05 12:00:00||||DB RESTART\n"
            "3|Java Pool|2026-01-05 13:30:00|2|1|-1|OK\n");
}

}  // namespace
}  // namespace kestrelix::testing_support
