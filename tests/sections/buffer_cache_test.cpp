#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "sections/instance_support.h"

namespace kestrelix::testing_support {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

const char* const kPools =
    "NO|POOL NAME|BUFFERS|POOL HIT%|BUFFER GETS|PHYSICAL READS|PHYSICAL WRITES|FREE BUFFER WAITS|"
    "WRITE COMPLETE WAITT|BUFFER BUSY WAITS\n";

class PoolRepository : public InstanceRepository {
 public:
  /// An empty block size leaves the parameter out.
  explicit PoolRepository(std::string_view major, std::string_view blockSize = "8192")
      : InstanceRepository(major) {
    if (!blockSize.empty()) parameter("db_block_size", blockSize);
  }

  /// Block gets, consistent gets, reads, writes, and waits for free buffers, writes and busy buffers.
  PoolRepository& pool(std::string_view snapshot, std::string_view id, std::string_view name,
                       std::string_view blockSize, std::string_view buffers,
                       const std::array<std::string_view, 7>& figures = {"0", "0", "0", "0", "0", "0", "0"}) {
    row("stats$buffer_pool_statistics", {{"snap_id", snapshot},
                                         {"id", id},
                                         {"name", name},
                                         {"block_size", blockSize},
                                         {"set_msize", buffers},
                                         {"db_block_gets", figures[0]},
                                         {"consistent_gets", figures[1]},
                                         {"physical_reads", figures[2]},
                                         {"physical_writes", figures[3]},
                                         {"free_buffer_wait", figures[4]},
                                         {"write_complete_wait", figures[5]},
                                         {"buffer_busy_wait", figures[6]}});
    return *this;
  }
};

TEST(BufferPoolStatistics, poolsShowByNameWithTheGrowthOfTheirCounters) {
  for (const char* major : {"9", "10", "11"}) {
    PoolRepository repository(major);
    repository.pool("1", "3", "DEFAULT", "8192", "10000", {"100", "1000", "50", "10", "0", "0", "5"})
        .pool("2", "3", "DEFAULT", "8192", "10000", {"600", "1500", "174", "30", "1", "2", "8"})
        .pool("2", "1", "KEEP", "8192", "9999")
        .pool("2", "2", "RECYCLE", "8192", "12345678", {"40", "60", "150", "0", "0", "0", "0"});
    OpenReport report(repository);
    // DEFAULT: 124 reads of 1000 gets miss. KEEP had no gets. RECYCLE: 150 reads of 100 gets.
    EXPECT_EQ(report.all("Buffer Pool Statistics", 0), std::string(kPools) +
                                                           "1|D|    10K|88|1000|124|20|1|2|3\n"
                                                           "2|K|  9999 | |0|0|0|0|0|0\n"
                                                           "3|R|    12M|-50|100|150|0|0|0|0\n");
    EXPECT_EQ(report.all("Buffer Pool Statistics", 1), kPools);
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(BufferPoolStatistics, buffersAreCutToFourDigitsAndAUnit) {
  const std::pair<const char*, const char*> cases[] = {{"0", "     0 "},
                                                       {"9999999", "  9999K"},
                                                       {"10000000", "    10M"},
                                                       {"9900000000000", "  9900G"},
                                                       {"12300000000000", "    12T"},
                                                       {"9999999999999999", "  9999T"},
                                                       {"10000000000000000", "    10P"},
                                                       {"123456000000000000000", "  12345"}};
  for (const auto& [buffers, text] : cases) {
    PoolRepository repository("11");
    repository.pool("2", "3", "DEFAULT", "8192", buffers);
    OpenReport report(repository);
    report.all("Buffer Pool Statistics", 0);
    EXPECT_EQ(report.grid().TextMatrix(1, 2), text) << buffers;
  }
}

TEST(BufferPoolStatistics, poolsOfOtherBlockSizesShowUnderTheSizeAndHaveTheirSeries) {
  PoolRepository repository("10");
  repository.pool("2", "3", "DEFAULT", "8192", "100")
      .pool("2", "4", "DEFAULT", "16384", "50", {"1", "2", "0", "0", "0", "0", "0"})
      .pool("3", "4", "DEFAULT", "16384", "50", {"1", "2", "0", "0", "0", "0", "0"})
      .pool("4", "4", "DEFAULT", "16384", "60", {"3", "4", "1", "0", "0", "0", "0"});
  OpenReport report(repository);
  report.all("Buffer Pool Statistics", 0);
  EXPECT_THAT(report.rowsInAnyOrder(),
              UnorderedElementsAre("D|   100 | |0|0|0|0|0|0", "16k|    50 |100|3|0|0|0|0|0"));
  EXPECT_EQ(report.col(report.grid().TextMatrix(1, 1) == "16k" ? 1 : 2),
            "NO|POOL NAME|END TIME|BUFFERS|POOL HIT%|BUFFER GETS|PHYSICAL READS|PHYSICAL WRITES|"
            "FREE BUFFER WAITS|WRITE COMPLETE WAITT|BUFFER BUSY WAITS|STATUS\n"
            "1|16k|2026-01-05 11:00:00|    50 |100|3|0|0|0|0|0|OK\n"
            "2||2026-01-05 12:00:00|||||||||DB RESTART\n"
            "3|16k|2026-01-05 13:30:00|    60 |75|4|1|0|0|0|0|OK\n");
}

TEST(BufferPoolStatistics, theBlockSizeInForceAtTheStartCounts) {
  PoolRepository repository("10", "");
  repository.rows(
      "stats$parameter", {"snap_id", "name", "value"},
      {{"1", "db_block_size", "4096"}, {"1", "__db_block_size", "8192"}, {"2", "db_block_size", "16384"}});
  repository.pool("2", "3", "DEFAULT", "8192", "1");
  OpenReport report(repository);
  EXPECT_EQ(report.all("Buffer Pool Statistics", 0), std::string(kPools) + "1|D|     1 | |0|0|0|0|0|0\n");
}

TEST(BufferPoolStatistics, withoutABlockSizeABoxComesAndTheRowsShowAllTheSame) {
  PoolRepository repository("10", "");
  repository.pool("2", "3", "DEFAULT", "8192", "1");
  OpenReport report(repository);
  EXPECT_EQ(report.all("Buffer Pool Statistics", 0), std::string(kPools) + "1|8k|     1 | |0|0|0|0|0|0\n");
  EXPECT_THAT(report.boxes(), ElementsAre("[Critical] (clsBufferPoolStatistics){getBLOCK_SIZE} Error"));
}

TEST(BufferWaitStatistics, classesThatWereWaitedForShowByTheirTime) {
  for (const char* major : {"9", "10", "11"}) {
    InstanceRepository repository(major);
    repository.rows("stats$waitstat", {"snap_id", "class", "wait_count", "time"},
                    {{"1", "segment header", "10", "100"},
                     {"2", "segment header", "30", "350"},
                     {"1", "extent map", "5", "7"},
                     {"2", "extent map", "5", "9"},
                     {"1", "data block", "0", "0"},
                     {"2", "data block", "4", "300"},
                     {"1", "undo block", "0", "0"},
                     {"2", "undo block", "1", "600"},
                     {"2", "free list", "9", "9"},
                     {"3", "segment header", "0", "0"},
                     {"4", "segment header", "8", "10"}});
    OpenReport report(repository);
    const std::string headings = "NO|CLASS|WAITS|TOTAL WAIT TIME(S)|AVG TIME(MS)\n";
    // 2.5 seconds are shown as 3, and 20 waits sort before 4. A class without a start row is left out.
    EXPECT_EQ(report.all("Buffer wait Statistics", 0), headings +
                                                           "1|undo block|1|6|6000\n"
                                                           "2|segment header|20|3|125\n"
                                                           "3|data block|4|3|750\n");
    // .1 seconds over 8 waits are 12.5 ms.
    EXPECT_EQ(report.col(2),
              "NO|CLASS|END TIME|WAITS|TOTAL WAIT TIME(S)|AVG TIME(MS)|STATUS\n"
              "1|segment header|2026-01-05 11:00:00|20|3|125|OK\n"
              "2||2026-01-05 12:00:00||||DB RESTART\n"
              "3|segment header|2026-01-05 13:30:00|8|0|13|OK\n");
    EXPECT_EQ(report.all("Buffer wait Statistics", 1), headings);
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

const char* const kRecovery =
    "NO|SNAP|TARGT MTTR(S)|ESTD MTTR(S)|RECOVERY ESTD IOS|ACTUAL REDO BLKS|TARGET REDO BLKS|"
    "LOG FILE SIZE_REDO BLKS|LOG CKPT TIMEOUT REDO BLKS|LOG CKPT INTERVAL REDO BLKS\n";
const char* const kRecoveryTail =
    "TARGT MTTR(S)|ESTD MTTR(S)|RECOVERY ESTD IOS|ACTUAL REDO BLKS|TARGET REDO BLKS|"
    "LOG FILE SIZE_REDO BLKS|LOG CKPT TIMEOUT REDO BLKS|LOG CKPT INTERVAL REDO BLKS\n";

/// Snapshot 3 has no row.
class RecoveryRepository : public InstanceRepository {
 public:
  explicit RecoveryRepository(std::string_view major) : InstanceRepository(major) {
    rows("stats$instance_recovery",
         {"snap_id", "target_mttr", "estimated_mttr", "recovery_estimated_ios", "actual_redo_blks",
          "target_redo_blks", "log_file_size_redo_blks", "log_chkpt_timeout_redo_blks",
          "log_chkpt_interval_redo_blks"},
         {{"1", "30", "12", "100", "5000", "6000", "7000", "8000", ""},
          {"2", "31", "13", "101", "5001", "6001", "7001", "8001", "9001"},
          {"4", "", "", "", "", "", "", "", ""}});
  }
};

TEST(InstanceRecovery, bothSnapshotsHaveARowAndNullsAreBlank) {
  for (const char* major : {"9", "10", "11"}) {
    RecoveryRepository repository(major);
    OpenReport report(repository);
    EXPECT_EQ(report.all("Instance Recovery Stats", 0), std::string(kRecovery) +
                                                            "1|B|30|12|100|5000|6000|7000|8000| \n"
                                                            "2|E|31|13|101|5001|6001|7001|8001|9001\n");
    EXPECT_EQ(report.all("Instance Recovery Stats", 2), std::string(kRecovery) + "1|E| | | | | | | | \n");
    EXPECT_THAT(report.boxes(), IsEmpty());
  }
}

TEST(InstanceRecovery, aRestartChangesNothing) {
  RecoveryRepository repository("10");
  OpenReport report(repository);
  EXPECT_EQ(report.all("Instance Recovery Stats", 1),
            std::string(kRecovery) + "1|B|31|13|101|5001|6001|7001|8001|9001\n");
}

TEST(InstanceRecovery, beginAndEndRowsLeadToSeriesOfTheirOwn) {
  RecoveryRepository repository("11");
  OpenReport report(repository);
  report.all("Instance Recovery Stats", 0);
  EXPECT_EQ(report.col(1), std::string("NO|SNAP|START TIME|") + kRecoveryTail +
                               "1|B|2026-01-05 10:00:00|30|12|100|5000|6000|7000|8000| \n"
                               "2|B|2026-01-05 11:00:00|31|13|101|5001|6001|7001|8001|9001\n"
                               "3||2026-01-05 12:00:00||||||||\n");
  report.all("Instance Recovery Stats", 0);
  EXPECT_EQ(report.col(2), std::string("NO|SNAP|END TIME|") + kRecoveryTail +
                               "1|E|2026-01-05 11:00:00|31|13|101|5001|6001|7001|8001|9001\n"
                               "2||2026-01-05 12:00:00||||||||\n"
                               "3|E|2026-01-05 13:30:00| | | | | | | | \n");
}

TEST(InstanceRecovery, aRowThatIsNeitherBeginNorEndLeadsNowhere) {
  RecoveryRepository repository("11");
  OpenReport report(repository);
  const std::string view = report.all("Instance Recovery Stats", 0);
  EXPECT_EQ(report.col(0), view);
}

}  // namespace
}  // namespace kestrelix::testing_support
