// Rankings of Oracle 9 and 10, where a statement's end value less its start value counts.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/renderers.h"
#include "sections/sql_ranking_support.h"

namespace kestrelix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using namespace testing_support;

class SqlRanking10 : public SqlRankingTest {
 protected:
  SqlRanking10() : SqlRankingTest("10") {}
};
class SqlRanking9 : public SqlRankingTest {
 protected:
  SqlRanking9() : SqlRankingTest("9") {}
};

TEST_F(SqlRanking10, everyColumnOfEveryRanking) {
  plain(9000000, 99);  // of these the end value alone counts
  // All are numbers here, also the values per execution.
  expectRows({{"CPU TOTAL", "5.1"},        // 2.535 of 50 are 5.07
              {"Elapsed TOTAL", "10.1"},   // 10.065 of 100
              {"Gets TOTAL", "4.1"},       // 407 of 10,000
              {"Reads TOTAL", "2.3"},      // 23 of 1,000
              {"I/O Wait TOTAL", "3.1"},   // 3.075 of 100
              {"Cluster TOTAL", "10.1"},   // the elapsed time's share
              {"Executions", "1.5"},       // 3 of 200
              {"Parse Calls", "2"},        // 2 of 100
              {"Sharable Memory", "5.1"},  // 5,300,000 of 104,857,600 are 5.054
              {"Version Count", ""}},
             {{"NO", "1"},
              {"OLD_HASH_VALUE", "101"},
              {"MODULE", "sqlplus"},
              {"EXECUTIONS", "3"},
              {"TOTAL_DB_CPU(S)", "50"},
              {"TOTAL_DB_TIME(S)", "100"},
              {"TOTAL_LOGICAL_READS", "10000"},
              {"TOTAL_PHYSICAL_READS", "1000"},
              {"TOTAL_EXECUTE_COUNT", "200"},
              {"TOTAL_PARSE_COUNT", "100"},
              {"SHARED_POOL_SIZE", "104857600"},
              {"CPU_TIME(S)", "2.54"},
              {"CPU_TIME_PEXEC(S)", "0.85"},
              {"ELAPSED_TIME(S)", "10.07"},
              {"ELAPSED_TIME_PEXEC(S)", "3.36"},
              {"BUFFER_GETS", "407"},
              {"BUFFER_GETS_PEXEC", "135.67"},
              {"DISK_READS", "23"},
              {"DISK_READS_PEXEC", "7.67"},
              {"ROWS_PROCESSED", "5"},
              {"ROWS_PROCESSED_PEXEC", "1.67"},
              {"IO_WAIT_TIME(S)", "3.08"},
              {"IO_WAIT_TIME_PEXEC(S)", "1.03"},
              {"CLUSTER_WAIT_TIME(S)", "1.52"},
              {"CLUSTER_WAIT_%ELAPSED", "15.1"},
              {"CLUSTER_WAIT_TIME_PEXEC(S)", "0.51"},
              {"PARSE_CALLS", "2"},
              {"SHARABLE_MEM", "5300000"},
              {"VERSION_COUNT", "25"},
              {"HASH_VALUE", "9101"},
              {"ADDRESS", "00000000000000A1"}});
}

TEST_F(SqlRanking9, everyColumnOfEveryRanking) {
  plain(9000000, 99);  // of these the end value alone counts
  expectRows({{"Gets TOTAL", "4.1"},
              {"Reads TOTAL", "2.3"},
              {"Executions", "1.5"},
              {"Parse Calls", "2"},
              {"Sharable Memory", "5.1"},
              {"Version Count", ""}},
             {{"NO", "1"},
              {"HASH_VALUE", "101"},
              {"ADDRESS", "00000000000000A1"},
              {"MODULE", "sqlplus"},
              {"EXECUTIONS", "3"},
              {"TOTAL_LOGICAL_READS", "10000"},
              {"TOTAL_PHYSICAL_READS", "1000"},
              {"TOTAL_EXECUTE_COUNT", "200"},
              {"TOTAL_PARSE_COUNT", "100"},
              {"SHARED_POOL_SIZE", "104857600"},
              {"CPU_TIME(S)", "2.54"},
              {"CPU_TIME_PEXEC(S)", "0.85"},
              {"ELAPSED_TIME(S)", "10.07"},
              {"ELAPSED_TIME_PEXEC(S)", "3.36"},
              {"BUFFER_GETS", "407"},
              {"BUFFER_GETS_PEXEC", "135.67"},
              {"DISK_READS", "23"},
              {"DISK_READS_PEXEC", "7.67"},
              {"ROWS_PROCESSED", "5"},
              {"ROWS_PROCESSED_PEXEC", "1.67"},
              {"PARSE_CALLS", "2"},
              {"SHARABLE_MEM", "5300000"},
              {"VERSION_COUNT", "25"}});
}

TEST_F(SqlRanking10, onlyStatementsThatRanAreListedAndAReloadShowsALoss) {
  repository.usualTotals();
  repository.add({.snap = 1, .hash = 201, .executions = 50, .gets = 5000, .address = "A1"});
  repository.add({.snap = 3, .hash = 201, .executions = 8, .gets = 800, .address = "B1"});  // counts whole
  repository.add({.snap = 1, .hash = 202, .executions = 40, .gets = 4000});
  repository.add({.snap = 3, .hash = 202, .executions = 9, .gets = 700});  // fell: not listed
  repository.add(
      {.snap = 3, .hash = 203, .executions = 5, .gets = 600, .address = "C1"});  // at the end alone
  repository.add({.snap = 2, .hash = 204, .executions = 9, .gets = 900});        // in the middle alone
  repository.add({.snap = 1, .hash = 205, .executions = 9, .gets = 900});        // at the start alone
  repository.add({.snap = 1, .hash = 206, .executions = 1, .gets = 100});        // did not run
  repository.add({.snap = 3, .hash = 206, .executions = 1, .gets = 900});
  repository.add({.snap = 1, .hash = 207, .executions = 10, .elapsed = 20000000, .gets = 5000});
  repository.add({.snap = 3, .hash = 207, .executions = 14, .elapsed = 5000000, .gets = 4000});  // lost
  EXPECT_THAT(all("Gets TOTAL", {"OLD_HASH_VALUE", "EXECUTIONS", "BUFFER_GETS", "ADDRESS"}),
              ElementsAre("201|8|800|B1", "203|5|600|C1"));
  EXPECT_THAT(all("Executions", {"OLD_HASH_VALUE", "EXECUTIONS", "ELAPSED_TIME(S)", "ELAPSED_TIME_PEXEC(S)",
                                 "BUFFER_GETS", "BUFFER_GETS_PEXEC"}),
              ElementsAre("201|8|0|0|800|100", "203|5|0|0|600|120", "207|4|-15|-3.75|-1000|-250"));
}

TEST_F(SqlRanking10, perExecutionTheOrderIsAnother) {
  repository.usualTotals();
  repository.add({.snap = 3, .hash = 301, .executions = 10, .gets = 900});
  repository.add({.snap = 3, .hash = 302, .executions = 2, .gets = 400});
  repository.add({.snap = 3, .hash = 303, .executions = 4, .gets = 800});
  EXPECT_THAT(all("Gets TOTAL", {"OLD_HASH_VALUE"}), ElementsAre("301", "303", "302"));
  EXPECT_THAT(all("Gets EXEC", {"OLD_HASH_VALUE", "BUFFER_GETS_PEXEC"}),
              ElementsAre("302|200", "303|200", "301|90"));  // equals go by hash
}

TEST_F(SqlRanking10, oneExactPercentIsListedAndLessIsNot) {
  repository.usualTotals();
  repository.add({.snap = 3, .hash = 401, .executions = 1, .elapsed = 1000000});
  repository.add({.snap = 3, .hash = 402, .executions = 1, .elapsed = 999999});
  EXPECT_THAT(all("Elapsed TOTAL", {"OLD_HASH_VALUE", "%TOTAL"}), ElementsAre("401|1"));
}

TEST_F(SqlRanking9, oneExactPercentIsListedAndLessIsNot) {
  repository.usualTotals();
  repository.add({.snap = 3, .hash = 401, .executions = 1, .gets = 100});
  repository.add({.snap = 3, .hash = 402, .executions = 1, .gets = 99});
  EXPECT_THAT(all("Gets TOTAL", {"HASH_VALUE", "%TOTAL"}), ElementsAre("401|1"));
}

TEST_F(SqlRanking10, ofSeventyStatements64ShowAndEqualsGoByHash) {
  repository.usualTotals();
  for (int hash = 1070; hash > 1000; --hash)
    repository.add({.snap = 3, .hash = hash, .executions = 1, .elapsed = 2000000});
  Lines expected;
  for (int hash = 1001; hash <= 1064; ++hash) expected.push_back(std::to_string(hash));
  EXPECT_EQ(all("Elapsed TOTAL", {"OLD_HASH_VALUE"}), expected);
}

TEST_F(SqlRanking9, ofSeventyStatements64ShowAndEqualsGoByHash) {
  repository.usualTotals();
  for (int hash = 1070; hash > 1000; --hash)
    repository.add({.snap = 3, .hash = hash, .executions = 1, .gets = 200});
  Lines expected;
  for (int hash = 1001; hash <= 1064; ++hash) expected.push_back(std::to_string(hash));
  EXPECT_EQ(all("Gets EXEC", {"HASH_VALUE"}), expected);
}

TEST_F(SqlRanking10, aTotalOfZeroIsTheServersErrorAndTheGridKeepsItsView) {
  repository.time("2", "DB time", "7", "7").statistic("execute count", "0", "10");
  repository.add({.snap = 3, .hash = 501, .executions = 5, .elapsed = 10});
  const Lines before = all("Executions", {"OLD_HASH_VALUE", "%TOTAL"});
  EXPECT_THAT(before, ElementsAre("501|50"));
  EXPECT_EQ(all("Elapsed TOTAL", {"OLD_HASH_VALUE", "%TOTAL"}), before);
  EXPECT_THAT(report->boxes(),
              ElementsAre("[Critical] (clsSQLorderedby){getSQL_ORDERED_BY_ELAPSED_TOTAL} Error"));
}

TEST_F(SqlRanking10, aTotalOfZeroInASeriesShowsTheBoxOfEachMember) {
  repository.time("1", "DB CPU", "7", "7").time("2", "DB time", "7", "7");
  repository.statistic("session logical reads", "1", "1");
  repository.add({.snap = 3, .hash = 501, .executions = 5, .elapsed = 10, .cpu = 1, .gets = 1});
  open();
  // The boxes of the first two name another place.
  report->show(gDispSQLorderedbyCPU_Col(report->source(), {1, {"501"}}));
  report->show(gDispSQLorderedbyElapsed_Col(report->source(), {1, {"501"}}));
  report->show(gDispSQLorderedbyGets_Col(report->source(), {1, {"501"}}));
  EXPECT_THAT(report->boxes(),
              ElementsAre("[Critical] (clsSnapId){unsetBAIND_VALUE} Error",
                          "[Critical] (clsSnapId){unsetBAIND_VALUE} Error",
                          "[Critical] (clsSQLorderedby){getSQL_ORDERED_BY_GETS_TIME} Error"));
}

TEST_F(SqlRanking10, aSeriesOfVersionCountsThatFailsNamesAnotherPlace) {
  repository.fixture.row("stats$sql_summary", {{"snap_id", "3"},
                                               {"old_hash_value", "501"},
                                               {"hash_value", "9501"},
                                               {"text_subset", "select"},
                                               {"address", "A1"},
                                               {"executions", "1"},
                                               {"version_count", ""}});
  open();
  report->show(gDispSQLorderedbyVersionCount_Col(report->source(), {1, {"501"}}));
  EXPECT_THAT(report->boxes(), ElementsAre("[Critical] (clsLoadProfile){getLOGONS} Error"));
}

TEST_F(SqlRanking10, readsWithATotalOfZeroHaveNoRowsAndNoError) {
  repository.statistic("physical reads", "5", "5");
  repository.add({.snap = 3, .hash = 501, .executions = 5, .reads = 10});
  EXPECT_THAT(all("Reads TOTAL", {"OLD_HASH_VALUE"}), IsEmpty());
  report->show(gDispSQLorderedbyReads_Col(report->source(), {1, {"501"}}));
  EXPECT_THAT(cellsOf(report->grid(), {"NO", "OLD_HASH_VALUE", "DISK_READS", "STATUS"}),
              ElementsAre("1|||OK"));
  EXPECT_THAT(report->boxes(), IsEmpty()) << testing::PrintToString(report->errors());
}

TEST_F(SqlRanking9, readsWithATotalOfZeroHaveNoRowsAndNoError) {
  repository.statistic("physical reads", "5", "5");
  repository.add({.snap = 3, .hash = 501, .executions = 5, .reads = 10});
  EXPECT_THAT(all("Reads EXEC", {"HASH_VALUE"}), IsEmpty());
  EXPECT_THAT(report->boxes(), IsEmpty()) << testing::PrintToString(report->errors());
}

TEST_F(SqlRanking10, aTotalOfTimeIsInSecondsOfTwoDigits) {
  repository.time("2", "DB time", "0", "100005000");
  repository.add({.snap = 3, .hash = 502, .executions = 1, .elapsed = 90000000});
  EXPECT_THAT(all("Elapsed TOTAL", {"OLD_HASH_VALUE", "TOTAL_DB_TIME(S)"}), ElementsAre("502|100.01"));
}

TEST_F(SqlRanking10, clusterListsEveryStatementThatWaitedAlsoOneThatDidNotRun) {
  repository.usualTotals();
  repository.add({.snap = 3, .hash = 601, .executions = 2, .elapsed = 100000, .clusterWait = 25000});
  repository.add({.snap = 3, .hash = 602, .executions = 1, .elapsed = 90000000});  // waited for nothing
  repository.add({.snap = 1, .hash = 603, .executions = 7, .elapsed = 1000000, .clusterWait = 0});
  repository.add({.snap = 3, .hash = 603, .executions = 7, .elapsed = 1100000, .clusterWait = 30000});
  EXPECT_THAT(
      all("Cluster TOTAL", {"OLD_HASH_VALUE", "EXECUTIONS", "%TOTAL", "CLUSTER_WAIT_TIME(S)",
                            "CLUSTER_WAIT_%ELAPSED", "CLUSTER_WAIT_TIME_PEXEC(S)", "ELAPSED_TIME_PEXEC(S)"}),
      // 12.5 ms and 50 ms an execution
      ElementsAre("603|0|0.1|0.03|30|0|0", "601|2|0.1|0.03|25|0.01|0.05"));
  EXPECT_THAT(all("Cluster EXEC", {"OLD_HASH_VALUE"}), ElementsAre("601", "603"));
}

TEST_F(SqlRanking10, memoryAndVersionsAreRankedByTheEndValueAndMustExceedTheThreshold) {
  repository.usualTotals();
  repository.add({.snap = 1, .hash = 701, .executions = 1, .memory = 9000000, .versions = 90});
  repository.add({.snap = 3, .hash = 701, .executions = 2, .memory = 999999, .versions = 19});
  repository.add({.snap = 3, .hash = 702, .executions = 2, .memory = 1000000, .versions = 20});
  repository.add({.snap = 3, .hash = 703, .executions = 2, .memory = 1000001, .versions = 22});
  repository.add({.snap = 3, .hash = 704, .executions = 2, .memory = 2097152, .versions = 21});
  repository.add(
      {.snap = 1, .hash = 705, .executions = 2, .memory = 3000000, .versions = 40});  // did not run
  repository.add({.snap = 3, .hash = 705, .executions = 2, .memory = 3000000, .versions = 40});
  EXPECT_THAT(all("Sharable Memory", {"OLD_HASH_VALUE", "SHARABLE_MEM", "%TOTAL"}),
              ElementsAre("704|2097152|2", "703|1000001|1"));
  EXPECT_THAT(all("Version Count", {"OLD_HASH_VALUE", "VERSION_COUNT"}), ElementsAre("703|22", "704|21"));
}

TEST_F(SqlRanking9, memoryIsRankedByTheEndValue) {
  repository.sharedPool("shared_pool_size", "104857600");
  repository.add({.snap = 3, .hash = 703, .executions = 2, .memory = 1000001});
  repository.add({.snap = 3, .hash = 704, .executions = 2, .memory = 2097152});
  EXPECT_THAT(all("Sharable Memory", {"HASH_VALUE", "SHARABLE_MEM", "%TOTAL"}),
              ElementsAre("704|2097152|2", "703|1000001|1"));
}

TEST_F(SqlRanking10, aStatementWithoutAModuleShowsABlank) {
  repository.usualTotals();
  repository.add({.snap = 3, .hash = 801, .executions = 1, .elapsed = 5000000, .module = ""});
  EXPECT_THAT(all("Elapsed TOTAL", {"OLD_HASH_VALUE", "MODULE"}), ElementsAre("801| "));
}

}  // namespace
}  // namespace kestrelix
