// What kestrelix-report prints beside a box, and what it doesn't.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/instance_support.h"
#include "support/run_program.h"
#include "support/sql_repository.h"

namespace kestrelix::testing_support {
namespace {

Outcome report(const std::filesystem::path& file, const std::string& arguments) {
  return runProgram("kestrelix-report", "--format csv --repository " + file.string() + " " + arguments, file);
}

const std::string kBlockSizeBox = "[Critical] (clsBufferPoolStatistics){getBLOCK_SIZE} Error\n";

/// Nobody tells the block size: the pool keeps the name of its blocks.
TEST(SurvivingBoxes, aViewThatSurvivesABoxIsPrintedAndTheStatusTellsOfTheBox) {
  InstanceRepository repository("10");
  repository.rows(
      "stats$buffer_pool_statistics",
      {"snap_id", "id", "name", "block_size", "set_msize", "db_block_gets", "consistent_gets",
       "physical_reads", "physical_writes", "free_buffer_wait", "write_complete_wait", "buffer_busy_wait"},
      {{"1", "3", "DEFAULT", "8192", "900", "10", "100", "1", "2", "0", "0", "4"},
       {"2", "3", "DEFAULT", "8192", "1000", "20", "200", "12", "7", "0", "0", "7"}});
  repository.write();
  const Outcome all = report(repository.path(), "section 'Buffer Pool Statistics' --instance 0 --pair 0");
  EXPECT_EQ(all.status, 1);
  // 10 + 100 gets, of which 11 were read from disk: 90 %.
  EXPECT_EQ(all.output,
            "NO,POOL NAME,BUFFERS,POOL HIT%,BUFFER GETS,PHYSICAL READS,PHYSICAL WRITES,FREE BUFFER WAITS,"
            "WRITE COMPLETE WAITT,BUFFER BUSY WAITS\r\n1,8k,  1000 ,90,110,11,5,0,0,3\r\n");
  EXPECT_THAT(all.errors, testing::StartsWith(kBlockSizeBox));

  const Outcome series =
      report(repository.path(), "section 'Buffer Pool Statistics' --instance 0 --pair 0 --row 1");
  EXPECT_EQ(series.status, 1);
  EXPECT_THAT(series.output, testing::HasSubstr("1,8k,2026-01-05 11:00:00,  1000 ,90,110,11,5,0,0,3,OK\r\n"));
  const Outcome chart =
      report(repository.path(), "chart 'Buffer Pool Statistics' --instance 0 --pair 0 --row 1 --column 5");
  EXPECT_EQ(chart.status, 1);
  EXPECT_THAT(chart.output, testing::HasSubstr("2026-01-05 11:00:00,110\r\n"));
}

TEST(SurvivingBoxes, aRefusedSeriesPrintsNothingAndIsNoSuccess) {
  InstanceRepository repository("10");
  repository.row("stats$undostat", {{"begin_time", "2026-01-05 10:10:00"},
                                    {"end_time", "2026-01-05 10:20:00"},
                                    {"snap_id", "2"},
                                    {"undotsn", "1"},
                                    {"undoblks", "50"},
                                    {"txncount", "5"},
                                    {"maxquerylen", "60"},
                                    {"maxconcurrency", "2"},
                                    {"tuned_undoretention", "900"},
                                    {"unxpstealcnt", "0"},
                                    {"unxpblkrelcnt", "0"},
                                    {"unxpblkreucnt", "0"},
                                    {"expstealcnt", "0"},
                                    {"expblkrelcnt", "0"},
                                    {"expblkreucnt", "0"},
                                    {"ssolderrcnt", "0"},
                                    {"nospaceerrcnt", "0"}});
  repository.write();
  const Outcome outcome =
      report(repository.path(), "section 'Undo Segment Stats' --instance 0 --pair 0 --row 1");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.output, "");
  EXPECT_EQ(outcome.errors, "[Exclamation] The time series display is not supported.\n");
}

TEST(SurvivingBoxes, aTextThatCannotBeReadIsOneBoxShapedOrNot) {
  SqlRepository repository("11");
  repository.usualTotals();
  repository.addStatementWithPlan();
  repository.fixture.without("stats$sqltext");
  repository.write();
  for (const std::string shaped : {"", " --shaped"}) {
    const Outcome outcome = report(repository.fixture.path(),
                                   "sql 'SQL ordered by Gets TOTAL' --instance 0 --pair 0 --row 1" + shaped);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "");
    EXPECT_THAT(outcome.errors, testing::StartsWith("[Critical] (clsSQLText){getSQL_TEXT} Error\n"));
    EXPECT_EQ(outcome.errors.find("[Critical]", 1), std::string::npos) << outcome.errors;
  }
}

}  // namespace
}  // namespace kestrelix::testing_support
