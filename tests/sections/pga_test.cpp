#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/instance_support.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PgaRepository : public InstanceRepository {
 public:
  using InstanceRepository::InstanceRepository;

  PgaRepository& pgastat(std::string_view snapshot, std::string_view name, std::string_view value) {
    row("stats$pgastat", {{"snap_id", snapshot}, {"name", name}, {"value", value}});
    return *this;
  }
  /// Bytes processed, and those that went over disk.
  PgaRepository& traffic(std::string_view snapshot, std::string_view processed, std::string_view extra) {
    return pgastat(snapshot, "bytes processed", processed)
        .pgastat(snapshot, "extra bytes read/written", extra);
  }
  /// Bytes allocated and used by automatic and manual work areas; the bound is 40960.5 KB, the target
  /// 170.5 MB.
  PgaRepository& memory(std::string_view snapshot, std::string_view allocated, std::string_view automatic,
                        std::string_view manual) {
    return pgastat(snapshot, "total PGA allocated", allocated)
        .pgastat(snapshot, "total PGA used for auto workareas", automatic)
        .pgastat(snapshot, "total PGA used for manual workareas", manual)
        .pgastat(snapshot, "global memory bound", "41943552")
        .pgastat(snapshot, "aggregate PGA auto target", "178782208");
  }
};

const char* const kHitRatio = "NO|PGA CACHE HIT %|W/A MB PROCESSED|EXTRA W/A MB READ/WRITTEN\n";

TEST(PgaHitRatio, isTheShareOfAllTrafficThatStayedInMemory) {
  for (const char* major : {"9", "10", "11"}) {
    PgaRepository repository(major);
    // 100 MB processed and 25 MB extra in pair 0, nothing processed in pair 2.
    repository.traffic("1", "1048576", "0").traffic("2", "105906176", "26214400");
    repository.traffic("3", "500", "0").traffic("4", "500", "7");
    OpenReport report(repository);
    EXPECT_EQ(report.all("PGA Aggr Target Stats[1]", 0), std::string(kHitRatio) + "1|80|100|25\n");
    EXPECT_EQ(report.col(1),
              "NO|END TIME|PGA CACHE HIT %|W/A MB PROCESSED|EXTRA W/A MB READ/WRITTEN|STATUS\n"
              "1|2026-01-05 11:00:00|80|100|25|OK\n"
              "2|2026-01-05 12:00:00||||DB RESTART\n"
              "3|2026-01-05 13:30:00||||OK\n");
    EXPECT_EQ(report.all("PGA Aggr Target Stats[1]", 1), kHitRatio);
    EXPECT_EQ(report.all("PGA Aggr Target Stats[1]", 2), kHitRatio);
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(PgaHitRatio, aSnapshotWithoutFiguresCountsFromZeroAtTheStart) {
  PgaRepository repository("10");
  repository.traffic("2", "2621440", "524288");
  OpenReport report(repository);
  // 2.5 of 3 MB; halves are rounded up.
  EXPECT_EQ(report.all("PGA Aggr Target Stats[1]", 0), std::string(kHitRatio) + "1|83.3|3|1\n");
  EXPECT_EQ(report.all("PGA Aggr Target Stats[1]", 2), kHitRatio);
}

const char* const kSizes =
    "PGA AGGR TARGET(MB)|AUTO PGA TARGET(MB)|PGA MEM ALLOC(MB)|W/A PGA USED(MB)|%PGA W/A MEM|%AUTO W/A MEM|"
    "%MAN W/A MEM|GLOBAL MEM BOUND(KB)\n";

TEST(PgaSizes, bothSnapshotsHaveARowAlsoAcrossARestart) {
  for (const char* major : {"9", "10", "11"}) {
    PgaRepository repository(major);
    // 10 and 5 of 100 MB; no work area at the end of pair 0. Then .525 of 1.55 MB, a trace more and less. The
    // target is 200 MB, 200.5 at the end of pair 0.
    for (const char* snapshot : {"1", "2", "3"})
      repository.row("stats$parameter",
                     {{"snap_id", snapshot},
                      {"name", "pga_aggregate_target"},
                      {"value", snapshot == std::string("2") ? "210239488" : "209715200"}});
    repository.rows("stats$pgastat", {"snap_id", "name", "value"}, {{"1", "maximum PGA allocated", "999"}});
    repository.memory("1", "104857600", "10485760", "5242880")
        .memory("2", "104857600", "0", "0")
        .memory("3", "1625293", "0", "550502");
    OpenReport report(repository);
    EXPECT_EQ(report.all("PGA Aggr Target Stats[2]", 0), std::string("NO|SNAP|") + kSizes +
                                                             "1|B|200|171|100|15|15|66.7|33.3|40961\n"
                                                             "2|E|201|171|100|0|0|0|0|40961\n");
    EXPECT_EQ(report.all("PGA Aggr Target Stats[2]", 1), std::string("NO|SNAP|") + kSizes +
                                                             "1|B|201|171|100|0|0|0|0|40961\n"
                                                             "2|E|200|171|1.6|0.5|33.9|0|100|40961\n");
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(PgaSizes, beginAndEndRowsLeadToSeriesOfTheirOwn) {
  PgaRepository repository("10");
  repository.parameter("pga_aggregate_target", "209715200");
  for (const char* snapshot : {"1", "2", "3", "4"})
    repository.memory(snapshot, "104857600", snapshot == std::string("2") ? "10485760" : "5242880", "0");
  OpenReport report(repository);
  report.all("PGA Aggr Target Stats[2]", 0);
  EXPECT_EQ(report.col(1), std::string("NO|SNAP|START TIME|") + kSizes +
                               "1|B|2026-01-05 10:00:00|200|171|100|5|5|100|0|40961\n"
                               "2|B|2026-01-05 11:00:00|200|171|100|10|10|100|0|40961\n"
                               "3|B|2026-01-05 12:00:00|200|171|100|5|5|100|0|40961\n");
  report.all("PGA Aggr Target Stats[2]", 0);
  EXPECT_EQ(report.col(2), std::string("NO|SNAP|END TIME|") + kSizes +
                               "1|E|2026-01-05 11:00:00|200|171|100|10|10|100|0|40961\n"
                               "2|E|2026-01-05 12:00:00|200|171|100|5|5|100|0|40961\n"
                               "3|E|2026-01-05 13:30:00|200|171|100|5|5|100|0|40961\n");
}

TEST(PgaSizes, anInstanceWithoutATargetHasNoRow) {
  PgaRepository repository("11");
  repository.parameter("pga_aggregate_target", "0");
  repository.memory("1", "104857600", "10485760", "5242880").memory("2", "104857600", "0", "0");
  OpenReport report(repository);
  EXPECT_EQ(report.all("PGA Aggr Target Stats[2]", 0), std::string("NO|SNAP|") + kSizes);
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(PgaSizes, noAllocatedMemoryIsADivisionByZero) {
  PgaRepository repository("11");
  repository.parameter("pga_aggregate_target", "209715200");
  repository.memory("1", "0", "0", "0").memory("2", "104857600", "0", "0");
  OpenReport report(repository);
  report.grid().TextMatrix(0, 0, "former");
  EXPECT_EQ(report.all("PGA Aggr Target Stats[2]", 0).substr(0, 6), "former");
  EXPECT_THAT(report.boxes(),
              ElementsAre("[Critical] (clsPGAAggrTargetStats){getPGA_AGGR_TARGET_STATS_2_ALL} Error"));
}

const char* const kHistogram =
    "NO|LOW OPTIMAL|HIGH OPTIMAL|TOTAL EXECS|OPTIMAL EXECS|1-PASS EXECS|M-PASS EXECS\n";

/// Growth by size of the work area: 3 below 1 KB, 10 of 1 to 2 KB (new), 6 of 1.5 to
/// 2.5 KB, none of 2 to 4 KB, and one each of
/// megabytes, gigabytes and terabytes.
class HistogramRepository : public InstanceRepository {
 public:
  explicit HistogramRepository(std::string_view major) : InstanceRepository(major) {
    rows("stats$sql_workarea_histogram",
         {"snap_id", "low_optimal_size", "high_optimal_size", "total_executions", "optimal_executions",
          "onepass_executions", "multipasses_executions"},
         {{"1", "0", "1023", "7", "7", "0", "0"},
          {"2", "0", "1023", "10", "10", "0", "0"},
          {"2", "1024", "2047", "10", "7", "2", "1"},
          {"2", "1536", "2559", "6", "6", "0", "0"},
          {"1", "2048", "4095", "5", "5", "0", "0"},
          {"2", "2048", "4095", "5", "5", "0", "0"},
          {"2", "1048576", "2097151", "1", "1", "0", "0"},
          {"2", "1073741824", "2147483647", "1", "0", "1", "0"},
          {"2", "1099511627776", "2199023255551", "1", "0", "0", "1"},
          {"4", "1024", "2047", "4", "4", "0", "0"}});
  }
};

TEST(PgaHistogram, sizesShowInTheirUnitAtTheRightOfTwelveCharacters) {
  for (const char* major : {"9", "10", "11"}) {
    HistogramRepository repository(major);
    OpenReport report(repository);
    // The upper end of the smallest sizes alone is not padded.
    EXPECT_EQ(report.all("PGA Aggr Target Histogram", 0), std::string(kHistogram) +
                                                              "1|          0B|1023B|3|3|0|0\n"
                                                              "2|          1K|          2K|10|7|2|1\n"
                                                              "3|          2K|          2K|6|6|0|0\n"
                                                              "4|          1M|          2M|1|1|0|0\n"
                                                              "5|          1G|          2G|1|0|1|0\n"
                                                              "6|          1T|          2T|1|0|0|1\n");
    EXPECT_EQ(report.all("PGA Aggr Target Histogram", 1), kHistogram);
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(PgaHistogram, aSeriesIsFoundByThePaddedTexts) {
  HistogramRepository repository("10");
  OpenReport report(repository);
  report.all("PGA Aggr Target Histogram", 0);
  EXPECT_EQ(
      report.col(2),
      "NO|LOW OPTIMAL|HIGH OPTIMAL|END TIME|TOTAL EXECS|OPTIMAL EXECS|1-PASS EXECS|M-PASS EXECS|STATUS\n"
      "1|          1K|          2K|2026-01-05 11:00:00|10|7|2|1|OK\n"
      "2|||2026-01-05 12:00:00|||||DB RESTART\n"
      "3|          1K|          2K|2026-01-05 13:30:00|4|4|0|0|OK\n");
}

TEST(PgaHistogram, theSmallestSizesHaveNoSeries) {
  HistogramRepository repository("10");
  OpenReport report(repository);
  report.all("PGA Aggr Target Histogram", 0);
  EXPECT_EQ(
      report.col(1),
      "NO|LOW OPTIMAL|HIGH OPTIMAL|END TIME|TOTAL EXECS|OPTIMAL EXECS|1-PASS EXECS|M-PASS EXECS|STATUS\n"
      "1|||2026-01-05 11:00:00|||||OK\n"
      "2|||2026-01-05 12:00:00|||||DB RESTART\n"
      "3|||2026-01-05 13:30:00|||||OK\n");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

}  // namespace
}  // namespace kestrelix::testing_support
