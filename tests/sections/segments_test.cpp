#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/cluster_support.h"
#include "sections/instance_support.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The gate of a ranking asks for a snapshot's level by its number alone: another instance with the same
/// number would be a second row, and the server's error.
class SegmentRepository : public InstanceRepository {
 public:
  explicit SegmentRepository(std::string_view major) : InstanceRepository(major) { withNeighbours(false); }
};

/// Names a segment: objects have the number of their row.
void object(FixtureRepository& repository, const std::string& number, const std::string& owner,
            const std::string& tablespace, const std::string& name, const std::string& subobject,
            const std::string& type) {
  repository.row("stats$seg_stat_obj", {{"dataobj#", number},
                                        {"obj#", number},
                                        {"ts#", "4"},
                                        {"dbid", "7"},
                                        {"owner", owner},
                                        {"tablespace_name", tablespace},
                                        {"object_name", name},
                                        {"subobject_name", subobject},
                                        {"object_type", type}});
}

/// A segment's figures at a snapshot: logical reads, physical reads and row lock waits; the others are 0.
void figures(FixtureRepository& repository, const std::string& snapshot, const std::string& number,
             const std::string& logical, const std::string& physical = "0", const std::string& locks = "0") {
  repository.row("stats$seg_stat", {{"snap_id", snapshot},
                                    {"dataobj#", number},
                                    {"obj#", number},
                                    {"ts#", "4"},
                                    {"logical_reads", logical},
                                    {"buffer_busy_waits", "0"},
                                    {"db_block_changes", "0"},
                                    {"physical_reads", physical},
                                    {"physical_writes", "0"},
                                    {"direct_physical_reads", "0"},
                                    {"direct_physical_writes", "0"},
                                    {"itl_waits", "0"},
                                    {"row_lock_waits", locks}});
}

const std::string kLogicalHeadings =
    "NO|OWNER|TABLESPACE|OBJECT NAME|SUB OBJECT NAME|OBJECT TYPE|LOGICAL READS|PCT TOTAL|DB BLOCK "
    "CHANGES|PHYSICAL "
    "READS|PHYSICAL WRITES|DIRECT READS|DIRECT WRITES|BUFFER BUSY_WAITS|ROW LOCK WAITS|ITL WAITS\n";

TEST(Segments, tenOfManyShowWithTheirShareOfAll) {
  SegmentRepository repository("9");
  // Twelve segments with 10, 20 .. 120 reads: 780 in all. The two smallest are cut off.
  for (int i = 1; i <= 12; ++i) {
    const std::string number = std::to_string(i);
    object(repository, number, "APP", "USERS", "T" + number, "", "TABLE");
    figures(repository, "1", number, "1000");
    figures(repository, "2", number, std::to_string(1000 + 10 * i));
  }
  OpenReport report(repository);
  report.all("Segments by Logical Reads", 0);
  ASSERT_EQ(report.grid().Rows(), 11);
  EXPECT_EQ(report.grid().Cols(), 16);
  EXPECT_EQ(report.grid().TextMatrix(1, 3), "T12");
  EXPECT_EQ(report.grid().TextMatrix(1, 6), "120");
  EXPECT_EQ(report.grid().TextMatrix(1, 7), "15.4");  // 120 / 780
  EXPECT_EQ(report.grid().TextMatrix(10, 3), "T3");
  EXPECT_EQ(report.grid().TextMatrix(10, 7), "3.8");  // 30 / 780
}

TEST(Segments, aSegmentThatFellOutOfTheTenIsStillFoundInItsSeries) {
  SegmentRepository repository("10");
  for (int i = 1; i <= 12; ++i) {
    const std::string number = std::to_string(i);
    object(repository, number, "APP", "USERS", "T" + number, "", "TABLE");
    figures(repository, "1", number, "0");
    figures(repository, "2", number, std::to_string(10 * i));
    figures(repository, "3", number, "0");
    // Behind the restart the order is the other way round.
    figures(repository, "4", number, std::to_string(130 - 10 * i));
  }
  OpenReport report(repository);
  report.all("Segments by Logical Reads", 0);
  report.col(1);
  EXPECT_EQ(report.grid().Cols(), 18);
  EXPECT_EQ(report.grid().TextMatrix(0, 6), "END TIME");
  EXPECT_EQ(report.grid().TextMatrix(3, 3), "T12");
  EXPECT_EQ(report.grid().TextMatrix(3, 6), "2026-01-05 13:30:00");
  EXPECT_EQ(report.grid().TextMatrix(3, 7), "10");
  EXPECT_EQ(report.grid().TextMatrix(3, 8), "1.3");  // 10 / 780
  EXPECT_EQ(report.grid().TextMatrix(2, 3), "");
  EXPECT_EQ(report.grid().TextMatrix(2, 17), "DB RESTART");
}

TEST(Segments, withoutAPositiveGrowthTheHeadingsStandAlone) {
  SegmentRepository repository("11");
  object(repository, "1", "APP", "USERS", "T1", "", "TABLE");
  figures(repository, "1", "1", "50");
  figures(repository, "2", "1", "50");
  OpenReport report(repository);
  EXPECT_EQ(report.all("Segments by Logical Reads", 0), kLogicalHeadings);
  EXPECT_EQ(report.all("Segments by Logical Reads", 1), kLogicalHeadings);
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(Segments, belowLevelSevenThereIsNothing) {
  FixtureRepository repository("10");
  repository.common({{"dbid", "7"}, {"instance_number", "1"}})
      .row("stats$database_instance", {{"db_name", "ORCL"},
                                       {"instance_name", "orcl"},
                                       {"host_name", "node1"},
                                       {"version", "10.2.0.5.0"},
                                       {"parallel", "NO"},
                                       {"startup_time", "2026-01-01 00:00:00"},
                                       {"snap_id", "1"}})
      .snapshot("1", "2026-01-05 10:00:00", "6")
      .snapshot("2", "2026-01-05 11:00:00", "7");
  object(repository, "1", "APP", "USERS", "T1", "", "TABLE");
  figures(repository, "2", "1", "50");
  OpenReport report(repository);
  EXPECT_EQ(report.all("Segments by Logical Reads", 0), kLogicalHeadings);
  EXPECT_THAT(report.boxes(), IsEmpty());
}

TEST(Segments, anIdThatTwoDatabasesShareFailsInTheGateOfTheLevel) {
  SegmentRepository repository("10");
  repository.row("stats$snapshot", {{"snap_id", "1"},
                                    {"dbid", "8"},
                                    {"snap_time", "2026-01-05 10:00:00"},
                                    {"snap_level", "7"},
                                    {"startup_time", "2026-01-01 00:00:00"}});
  object(repository, "1", "APP", "USERS", "T1", "", "TABLE");
  figures(repository, "2", "1", "50");
  OpenReport report(repository);
  report.all("Segments by Logical Reads", 0);
  EXPECT_THAT(report.boxes(),
              ElementsAre("[Critical] (clsSegmentsby){getSEGMENTS_BY_LOGICAL_READS_ALL} Error"));
}

TEST(Segments, aPartitionAndItsTableAreToldApartAndTheBlankIsAKey) {
  SegmentRepository repository("11");
  object(repository, "1", "APP", "USERS", "SALES", "", "TABLE");
  object(repository, "2", "APP", "USERS", "SALES", "P1", "TABLE");
  object(repository, "3", "APP", "USERS", "売上'表", "区画1", "TABLE PARTITION");
  figures(repository, "1", "1", "0");
  figures(repository, "2", "1", "300");
  figures(repository, "2", "2", "600");  // new at the end: from zero
  figures(repository, "2", "3", "100", "40");
  OpenReport report(repository);
  EXPECT_EQ(report.all("Segments by Logical Reads", 0),
            kLogicalHeadings +
                "1|APP|USERS|SALES|P1|TABLE|600|60|0|0|0|0|0|0|0|0\n"
                "2|APP|USERS|SALES| |TABLE|300|30|0|0|0|0|0|0|0|0\n"
                "3|APP|USERS|売上'表|区画1|TABLE PARTITION|100|10|0|40|0|0|0|0|0|0\n");
  report.col(2);
  EXPECT_EQ(report.grid().TextMatrix(1, 4), " ");
  EXPECT_EQ(report.grid().TextMatrix(1, 7), "300");
  report.all("Segments by Logical Reads", 0);
  report.col(3);
  EXPECT_EQ(report.grid().TextMatrix(1, 3), "売上'表");
  EXPECT_EQ(report.grid().TextMatrix(1, 7), "100");
}

TEST(Segments, twoThatDifferByTablespaceAloneShareOneSeries) {
  SegmentRepository repository("10");
  object(repository, "1", "APP", "USERS", "SALES", "", "TABLE");
  object(repository, "2", "APP", "ARCHIVE", "SALES", "", "TABLE");
  figures(repository, "2", "1", "300");
  figures(repository, "2", "2", "100");
  figures(repository, "3", "2", "0");
  figures(repository, "4", "2", "50");
  OpenReport report(repository);
  report.all("Segments by Logical Reads", 0);
  report.col(2);
  // The first that comes: here either, in the last pair the other one alone.
  EXPECT_THAT(report.grid().TextMatrix(1, 2) + " " + report.grid().TextMatrix(1, 7),
              testing::AnyOf("USERS 300", "ARCHIVE 100"));
  EXPECT_EQ(report.grid().TextMatrix(3, 2), "ARCHIVE");
  EXPECT_EQ(report.grid().TextMatrix(3, 7), "50");
  EXPECT_EQ(report.grid().Rows(), 4);
}

const std::initializer_list<std::string_view> kPlain = {"snap_id",
                                                        "dataobj#",
                                                        "obj#",
                                                        "ts#",
                                                        "logical_reads",
                                                        "db_block_changes",
                                                        "physical_reads",
                                                        "physical_writes",
                                                        "direct_physical_reads",
                                                        "direct_physical_writes",
                                                        "buffer_busy_waits",
                                                        "row_lock_waits",
                                                        "itl_waits"};

TEST(Segments, aSegmentMadeAnewUnderItsNumberCountsFromZero) {
  SegmentRepository repository("10");
  repository.rows(
      "stats$seg_stat_obj",
      {"dataobj#", "obj#", "ts#", "owner", "tablespace_name", "object_name", "object_type"},
      {{"80", "1", "4", "APP", "USERS", "T1", "TABLE"}, {"81", "1", "4", "APP", "USERS", "T1", "TABLE"}});
  repository.rows("stats$seg_stat", kPlain,
                  {{"1", "80", "1", "4", "1000", "0", "0", "0", "0", "0", "0", "0", "0"},
                   {"2", "81", "1", "4", "40", "0", "0", "0", "0", "0", "0", "0", "0"}});
  OpenReport report(repository);
  EXPECT_EQ(report.all("Segments by Logical Reads", 0),
            kLogicalHeadings + "1|APP|USERS|T1| |TABLE|40|100|0|0|0|0|0|0|0|0\n");
}

struct Ranking {
  const char* section;
  const char* headings;
  const char* busy;  ///< the cells of the segment that is first in all of them
  const char* read;  ///< those of the other one; null where it has none of the ranked statistic
};
void PrintTo(const Ranking& ranking, std::ostream* out) { *out << ranking.section; }

class RankedSegments : public testing::TestWithParam<Ranking> {};

TEST_P(RankedSegments, goByTheirOwnStatisticAndShowEachFigureUnderItsHeading) {
  SegmentRepository repository("9");
  object(repository, "1", "A", "T", "BUSY", "", "TABLE");
  object(repository, "2", "A", "T", "READ", "", "INDEX");
  repository.rows("stats$seg_stat", kPlain,
                  {{"2", "1", "1", "4", "9", "8", "7", "6", "5", "4", "3", "2", "1"},
                   {"2", "2", "2", "4", "1", "0", "1", "0", "0", "0", "2", "1", "0"}});
  OpenReport report(repository);
  const Ranking& ranking = GetParam();
  const std::string names = "NO|OWNER|TABLESPACE|OBJECT NAME|SUB OBJECT NAME|OBJECT TYPE|";
  const std::string headings = ranking.headings;
  const std::string busy = ranking.busy;
  std::string all = names + headings + "\n1|A|T|BUSY| |TABLE|" + busy + "\n";
  if (ranking.read != nullptr) all += std::string("2|A|T|READ| |INDEX|") + ranking.read + "\n";
  EXPECT_EQ(report.all(ranking.section, 0), all);
  EXPECT_EQ(report.col(1), names + "END TIME|" + headings +
                               "|STATUS\n1|A|T|BUSY| |TABLE|2026-01-05 11:00:00|" + busy +
                               "|OK\n2||||||2026-01-05 12:00:00|||||||||||DB RESTART\n"
                               "3||||||2026-01-05 13:30:00|||||||||||OK\n");
}

// 9 of 10 logical reads are 90 %, 7 of 8 physical ones 87.5 %, 2 of 3 waits for row locks 66.7 %, 3 of 5 for
// busy buffers 60 %; the busy one alone waited for a transaction slot.
INSTANTIATE_TEST_SUITE_P(
    Plain, RankedSegments,
    testing::Values(Ranking{"Segments by Logical Reads",
                            "LOGICAL READS|PCT TOTAL|DB BLOCK CHANGES|PHYSICAL READS|PHYSICAL WRITES|DIRECT "
                            "READS|DIRECT WRITES|BUFFER BUSY_WAITS|ROW LOCK WAITS|ITL WAITS",
                            "9|90|8|7|6|5|4|3|2|1", "1|10|0|1|0|0|0|2|1|0"},
                    Ranking{"Segments by Physical Reads",
                            "PHYSICAL READS|PCT TOTAL|PHYSICAL WRITES|LOGICAL READS|DB BLOCK CHANGES|DIRECT "
                            "READS|DIRECT WRITES|BUFFER BUSY_WAITS|ROW LOCK WAITS|ITL WAITS",
                            "7|87.5|6|9|8|5|4|3|2|1", "1|12.5|0|1|0|0|0|2|1|0"},
                    Ranking{"Segments by Row Lock Waits",
                            "ROW LOCK WAITS|PCT TOTAL|LOGICAL READS|DB BLOCK CHANGES|PHYSICAL READS|PHYSICAL "
                            "WRITES|DIRECT READS|DIRECT WRITES|BUFFER BUSY_WAITS|ITL WAITS",
                            "2|66.7|9|8|7|6|5|4|3|1", "1|33.3|1|0|1|0|0|0|2|0"},
                    Ranking{"Segments by ITL Waits",
                            "ITL WAITS|PCT TOTAL|LOGICAL READS|DB BLOCK CHANGES|PHYSICAL READS|PHYSICAL "
                            "WRITES|DIRECT READS|DIRECT WRITES|BUFFER BUSY_WAITS|ROW LOCK WAITS",
                            "1|100|9|8|7|6|5|4|3|2", nullptr},
                    Ranking{"Segments by Buffer Busy Waits",
                            "BUFFER BUSY_WAITS|PCT TOTAL|LOGICAL READS|DB BLOCK CHANGES|PHYSICAL "
                            "READS|PHYSICAL WRITES|DIRECT READS|DIRECT WRITES|ROW LOCK WAITS|ITL WAITS",
                            "3|60|9|8|7|6|5|4|2|1", "2|40|1|0|1|0|0|0|1|0"}),
    [](const auto& tested) {
      std::string name = tested.param.section;
      std::erase(name, ' ');
      return name;
    });

const std::initializer_list<std::string_view> kCluster = {"snap_id",
                                                          "dataobj#",
                                                          "obj#",
                                                          "ts#",
                                                          "logical_reads",
                                                          "buffer_busy_waits",
                                                          "db_block_changes",
                                                          "physical_reads",
                                                          "physical_writes",
                                                          "direct_physical_reads",
                                                          "direct_physical_writes",
                                                          "itl_waits",
                                                          "row_lock_waits",
                                                          "gc_buffer_busy",
                                                          "gc_cr_blocks_received",
                                                          "gc_current_blocks_received",
                                                          "global_cache_cr_blocks_served",
                                                          "global_cache_cu_blocks_served"};

TEST(Segments, clusterRankingsHaveFiveMoreColumnsAndBlankWhatWasNeverServed) {
  ClusterRepository repository;
  object(repository, "1", "A", "T", "HOT", "", "TABLE");
  repository.rows(
      "stats$seg_stat", kCluster,
      {{"1", "1", "1", "4", "0", "0", "0", "0", "0", "0", "0", "0", "0", "1", "2", "3", "", "5"},
       {"2", "1", "1", "4", "9", "8", "7", "6", "5", "4", "3", "2", "1", "11", "22", "33", "", "55"}});
  ReportFixture report(repository.write());
  report.open(0);
  const std::string names = "NO|OWNER|TABLESPACE|OBJECT NAME|SUB OBJECT NAME|OBJECT TYPE|";
  const std::string rest =
      "GLOBAL CACHE CR BLOCKS SERVED|GLOBAL CACHE CU BLOCKS SERVED|LOGICAL READS|DB BLOCK CHANGES|PHYSICAL "
      "READS|PHYSICAL WRITES|DIRECT READS|DIRECT WRITES|BUFFER BUSY_WAITS|ROW LOCK WAITS|ITL WAITS\n";
  // The served blocks of consistent reads are null at the end: null less 0 is null, and a blank.
  const std::string figuresOfRest = " |50|9|7|6|5|4|3|8|1|2\n";
  EXPECT_EQ(report.all("Segments by GC Buffer Busy Waits", 0),
            names + "GC BUFFER BUSY|PCT TOTAL|GC CR BLOCKS RECEIVED|GC CURRENT BLOCKS RECEIVED|" + rest +
                "1|A|T|HOT| |TABLE|10|100|20|30|" + figuresOfRest);
  EXPECT_EQ(report.all("Segments by CR Blocks Received", 0),
            names + "GC CR BLOCKS RECEIVED|PCT TOTAL|GC BUFFER BUSY|GC CURRENT BLOCKS RECEIVED|" + rest +
                "1|A|T|HOT| |TABLE|20|100|10|30|" + figuresOfRest);
  EXPECT_EQ(report.all("Segments By CU Blocks Received", 0),
            names + "GC CURRENT BLOCKS RECEIVED|PCT TOTAL|GC BUFFER BUSY|GC CR BLOCKS RECEIVED|" + rest +
                "1|A|T|HOT| |TABLE|30|100|10|20|" + figuresOfRest);
  report.col(1);
  EXPECT_EQ(report.grid().Cols(), 23);
  EXPECT_EQ(report.grid().TextMatrix(1, 7), "30");
  EXPECT_EQ(report.grid().TextMatrix(2, 22), "DB RESTART");
  EXPECT_THAT(report.boxes(), IsEmpty());
}

}  // namespace
}  // namespace kestrelix::testing_support
