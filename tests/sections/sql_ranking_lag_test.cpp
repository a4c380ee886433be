// Rankings of Oracle 11, where a statement's steps from snapshot to snapshot are summed.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/renderers.h"
#include "sections/sql_ranking_support.h"

namespace kestrelix {
namespace {

using testing::AnyOf;
using testing::ElementsAre;
using testing::IsEmpty;
using namespace testing_support;

class SqlRanking11 : public SqlRankingTest {
 protected:
  SqlRanking11() : SqlRankingTest("11") {}

  /// The Col view of row `row` of the All view that shows.
  Lines col(int row, const Lines& headings) {
    report->col(row);
    return cellsOf(report->grid(), headings);
  }

  /// Statements of different fates, told by their elapsed seconds. All have as many gets as seconds.
  void fates() {
    const auto at = [this](int snap, int hash, long executions, long microseconds,
                           std::string address = "A1") {
      repository.add({.snap = snap,
                      .hash = hash,
                      .executions = executions,
                      .elapsed = microseconds,
                      .gets = microseconds / 1000000,
                      .address = address});
    };
    repository.usualTotals();
    at(1, 102, 50, 50000000, "A1");  // reloaded at another address: 3 + 5 = 8 s
    at(2, 102, 3, 3000000, "B1");
    at(3, 102, 8, 8000000, "B1");
    at(1, 103, 40, 40000000);  // reloaded at the same address, the counters fell: 4 + 3 = 7 s
    at(2, 103, 5, 4000000);
    at(3, 103, 9, 7000000);
    at(3, 104, 2, 6000000);   // seen at the end alone: 6 s
    at(2, 105, 1, 5000000);   // seen in the middle alone: 5 s
    at(1, 106, 9, 90000000);  // seen at the start alone: nothing
    at(1, 107, 1, 1000000);   // grew by 4 s without an execution
    at(3, 107, 1, 5000000);
    at(1, 108, 1, 1000000);  // 1 s, exactly 1 percent of 100 s
    at(3, 108, 2, 2000000);
    at(1, 109, 1, 1000000);  // 1.000001 s
    at(3, 109, 2, 2000001);
  }
};

TEST_F(SqlRanking11, everyColumnOfEveryRanking) {
  plain(3000000, 10);
  // Values per execution are texts, so a half has no zero before its point.
  expectRows(
      {
          {"CPU TOTAL", "5.1"},        // 2.535 of 50 are 5.07
          {"Elapsed TOTAL", "10.1"},   // 10.065 of 100
          {"Gets TOTAL", "4.1"},       // 407 of 10,000
          {"Reads TOTAL", "2.3"},      // 23 of 1,000
          {"I/O Wait TOTAL", "3.1"},   // 3.075 of 100
          {"Cluster TOTAL", "10.1"},   // the elapsed time's share
          {"Executions", "1.5"},       // 3 of 200
          {"Parse Calls", "2"},        // 2 of 100
          {"Sharable Memory", "5.1"},  // 5,300,000 of 104,857,600 are 5.054
          {"Version Count", ""},
      },
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
       {"CPU_TIME_PEXEC(S)", ".85"},
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
       {"CLUSTER_WAIT_TIME_PEXEC(S)", ".51"},
       {"PARSE_CALLS", "2"},
       {"MAX_SHARABLE_MEM", "5300000"},
       {"LAST_SHARABLE_MEM", "5300000"},
       {"MAX_VERSION_COUNT", "25"},
       {"LAST_VERSION_COUNT", "25"},
       {"DELTA_VERSION_COUNT", "15"},
       {"HASH_VALUE", "9101"},
       {"ADDRESS", "00000000000000A1"}});
}

TEST_F(SqlRanking11, aReloadedCursorCountsAnewAndALateOneWhole) {
  fates();
  EXPECT_THAT(all("Elapsed TOTAL", {"OLD_HASH_VALUE", "EXECUTIONS", "ELAPSED_TIME(S)", "%TOTAL"}),
              ElementsAre("102|8|8|8", "103|9|7|7", "104|2|6|6", "105|1|5|5", "107|0|4|4", "109|1|1|1"));
}

TEST_F(SqlRanking11, theAddressIsThatOfTheReloadedCursor) {
  fates();
  EXPECT_THAT(all("Elapsed TOTAL", {"OLD_HASH_VALUE", "ADDRESS"}),
              ElementsAre("102|B1", "103|A1", "104|A1", "105|A1", "107|A1", "109|A1"));
}

TEST_F(SqlRanking11, withoutAnExecutionEveryValuePerExecutionIsBlank) {
  fates();
  const Lines cells = all(
      "Elapsed TOTAL", {"OLD_HASH_VALUE", "ELAPSED_TIME_PEXEC(S)", "CPU_TIME_PEXEC(S)", "BUFFER_GETS_PEXEC",
                        "DISK_READS_PEXEC", "ROWS_PROCESSED_PEXEC", "IO_WAIT_TIME_PEXEC(S)"});
  EXPECT_EQ(cells.at(4), "107| | | | | | ");
  EXPECT_EQ(cells.at(2), "104|3|0|3|0|0|0");
}

TEST_F(SqlRanking11, perExecutionAStatementWithoutOneComesLast) {
  fates();
  // 5/1, 6/2, 1.000001/1, 8/8, 7/9, none
  EXPECT_THAT(all("Elapsed EXEC", {"OLD_HASH_VALUE", "ELAPSED_TIME_PEXEC(S)"}),
              ElementsAre("105|5", "104|3", "109|1", "102|1", "103|.78", "107| "));
}

TEST_F(SqlRanking11, aStatementOfTheMiddleAloneHasNoLastMemoryAndNoLastVersions) {
  fates();
  EXPECT_EQ(all("Elapsed TOTAL", {"OLD_HASH_VALUE", "MAX_SHARABLE_MEM", "LAST_SHARABLE_MEM",
                                  "MAX_VERSION_COUNT", "LAST_VERSION_COUNT", "DELTA_VERSION_COUNT"})
                .at(3),
            "105|1000|0|1|0|1");
}

TEST_F(SqlRanking11, aTotalOfTimeIsInSecondsOfTwoDigits) {
  repository.time("2", "DB time", "0", "100005000");
  repository.add({.snap = 3, .hash = 201, .executions = 1, .elapsed = 90000000});
  EXPECT_THAT(all("Elapsed TOTAL", {"OLD_HASH_VALUE", "TOTAL_DB_TIME(S)"}), ElementsAre("201|100.01"));
}

TEST_F(SqlRanking11, withATotalOfZeroEveryStatementPassesAndTheShareIsBlank) {
  repository.time("2", "DB time", "7000000", "7000000");
  repository.add({.snap = 3, .hash = 201, .executions = 1, .elapsed = 1});
  repository.add({.snap = 3, .hash = 202, .executions = 1, .elapsed = 2});
  EXPECT_THAT(all("Elapsed TOTAL", {"OLD_HASH_VALUE", "TOTAL_DB_TIME(S)", "%TOTAL"}),
              ElementsAre("202|0| ", "201|0| "));
  EXPECT_THAT(report->boxes(), IsEmpty()) << testing::PrintToString(report->errors());
}

TEST_F(SqlRanking11, withAnUnknownTotalNoStatementPasses) {
  repository.statistic("session logical reads", "500", "");
  repository.add({.snap = 3, .hash = 201, .executions = 1, .gets = 1000});
  EXPECT_THAT(all("Gets TOTAL", {"OLD_HASH_VALUE"}), IsEmpty());
  EXPECT_THAT(report->boxes(), IsEmpty()) << testing::PrintToString(report->errors());
}

TEST_F(SqlRanking11, withoutTheTotalsRowAtOneEndTheListIsEmptyAndTheSeriesBlank) {
  repository.statistic("session logical reads", "500", "10500");
  repository.fixture.row("stats$sysstat", {{"snap_id", "1"}, {"name", "physical reads"}, {"value", "5"}});
  repository.add({.snap = 3, .hash = 201, .executions = 1, .gets = 1000, .reads = 100});
  EXPECT_THAT(all("Reads TOTAL", {"OLD_HASH_VALUE"}), IsEmpty());
  EXPECT_THAT(all("Gets TOTAL", {"OLD_HASH_VALUE"}), ElementsAre("201"));
  report->grid().Row(1);
  report->show(gDispSQLorderedbyReads_Col(report->source(), {1, {"201"}}));
  EXPECT_THAT(cellsOf(report->grid(), {"NO", "OLD_HASH_VALUE", "DISK_READS", "STATUS"}),
              ElementsAre("1|||OK"));
  EXPECT_THAT(report->boxes(), IsEmpty()) << testing::PrintToString(report->errors());
}

TEST_F(SqlRanking11, ofSeventyStatements65ShowAndEqualsGoByHash) {
  repository.usualTotals();
  for (int hash = 1070; hash > 1000; --hash)
    repository.add({.snap = 3, .hash = hash, .executions = 1, .elapsed = 2000000});
  Lines expected;
  for (int hash = 1001; hash <= 1065; ++hash) expected.push_back(std::to_string(hash));
  EXPECT_EQ(all("Elapsed TOTAL", {"OLD_HASH_VALUE"}), expected);
}

TEST_F(SqlRanking11, clusterListsEveryStatementThatWaitedWhateverItsShare) {
  repository.usualTotals();
  // The first took a thousandth of the time, the second waited for nothing, the third has no elapsed time.
  repository.add({.snap = 3, .hash = 301, .executions = 2, .elapsed = 100000, .clusterWait = 25000});
  repository.add({.snap = 3, .hash = 302, .executions = 1, .elapsed = 90000000});
  repository.add({.snap = 3, .hash = 303, .executions = 0, .elapsed = 0, .clusterWait = 30000});
  EXPECT_THAT(all("Cluster TOTAL", {"OLD_HASH_VALUE", "%TOTAL", "CLUSTER_WAIT_TIME(S)",
                                    "CLUSTER_WAIT_%ELAPSED", "CLUSTER_WAIT_TIME_PEXEC(S)"}),
              ElementsAre("303|0|0.03| | ", "301|.1|0.03|25|.01"));  // 25 ms as seconds; 12.5 ms an execution
  EXPECT_THAT(all("Cluster EXEC", {"OLD_HASH_VALUE"}), ElementsAre("301", "303"));
}

TEST_F(SqlRanking11, memoryIsRankedByItsMaximumAndMustExceedTheThreshold) {
  repository.usualTotals();
  repository.add({.snap = 1, .hash = 401, .memory = 999});  // grew in the middle, fell until the end
  repository.add({.snap = 2, .hash = 401, .memory = 2097152});
  repository.add({.snap = 3, .hash = 401, .memory = 500000});
  repository.add({.snap = 1, .hash = 402, .memory = 1000000});  // exactly the threshold
  repository.add({.snap = 3, .hash = 402, .memory = 1000000});
  repository.add({.snap = 1, .hash = 403, .memory = 1000001});
  repository.add({.snap = 3, .hash = 403, .memory = 1000001});
  EXPECT_THAT(all("Sharable Memory", {"OLD_HASH_VALUE", "MAX_SHARABLE_MEM", "LAST_SHARABLE_MEM", "%TOTAL"}),
              ElementsAre("401|2097152|500000|2", "403|1000001|1000001|1"));
}

TEST_F(SqlRanking11, versionsAreRankedByTheirMaximumAndMustExceedTheThreshold) {
  repository.add({.snap = 1, .hash = 501, .versions = 5});
  repository.add({.snap = 2, .hash = 501, .versions = 30});
  repository.add({.snap = 3, .hash = 501, .versions = 21});
  repository.add({.snap = 1, .hash = 502, .versions = 20});
  repository.add({.snap = 3, .hash = 502, .versions = 20});
  repository.add({.snap = 3, .hash = 503, .versions = 40});
  // 501: 30 - 5, then the count fell to 21, which counts whole: 46.
  EXPECT_THAT(all("Version Count",
                  {"OLD_HASH_VALUE", "MAX_VERSION_COUNT", "LAST_VERSION_COUNT", "DELTA_VERSION_COUNT"}),
              ElementsAre("503|40|40|40", "501|30|21|46"));
}

TEST_F(SqlRanking11, aStatementOfNoActivityAndLittleMemoryIsNotListed) {
  repository.time("2", "DB time", "0", "0");  // a total of zero lets every active statement pass
  repository.add({.snap = 1, .hash = 601, .executions = 5, .memory = 999999, .versions = 19});
  repository.add({.snap = 3, .hash = 601, .executions = 5, .memory = 999999, .versions = 19});
  repository.add({.snap = 1, .hash = 602, .executions = 5, .memory = 1000000, .versions = 19});
  repository.add({.snap = 3, .hash = 602, .executions = 5, .memory = 1000000, .versions = 19});
  repository.add({.snap = 1, .hash = 603, .executions = 5, .memory = 999999, .versions = 20});
  repository.add({.snap = 3, .hash = 603, .executions = 5, .memory = 999999, .versions = 20});
  repository.add({.snap = 1, .hash = 604, .executions = 5, .elapsed = 1});  // elapsed time alone is none
  repository.add({.snap = 3, .hash = 604, .executions = 5, .elapsed = 9});
  repository.add({.snap = 1, .hash = 605, .executions = 5, .parseCalls = 1});
  repository.add({.snap = 3, .hash = 605, .executions = 5, .parseCalls = 2});
  EXPECT_THAT(all("Elapsed TOTAL", {"OLD_HASH_VALUE"}), ElementsAre("602", "603", "605"));
}

TEST_F(SqlRanking11, ofSeveralCursorsOfAStatementTheSeriesShowsOne) {
  repository.usualTotals();
  repository.add({.snap = 1, .hash = 701, .executions = 5, .elapsed = 5000000, .address = "A1"});
  repository.add({.snap = 2, .hash = 701, .executions = 7, .elapsed = 9000000, .address = "A1"});
  repository.add({.snap = 3, .hash = 701, .executions = 3, .elapsed = 6000000, .address = "B1"});
  const Lines headings{"OLD_HASH_VALUE", "EXECUTIONS", "ELAPSED_TIME(S)", "ADDRESS"};
  EXPECT_THAT(all("Elapsed TOTAL", headings), ElementsAre("701|3|6|B1", "701|2|4|A1"));
  EXPECT_THAT(col(1, headings), ElementsAre(AnyOf("701|3|6|B1", "701|2|4|A1")));
}

TEST_F(SqlRanking11, theSeriesIgnoresTheCutOffAndIsBlankWhereTheStatementIsMissing) {
  fates();
  repository.snapshot(5, "2026-01-05 12:00:00").snapshot(7, "2026-01-05 13:00:00", "2026-01-05 12:30:00");
  repository.fixture.rows("stats$sys_time_model", {"snap_id", "stat_id", "value"}, {{"5", "2", "207000000"}});
  all("Elapsed TOTAL", {"OLD_HASH_VALUE"});
  report->show(gDispSQLorderedbyElapsed_Col(report->source(), {1, {"108"}}));
  EXPECT_THAT(
      cellsOf(report->grid(), {"NO", "OLD_HASH_VALUE", "END TIME", "ELAPSED_TIME(S)", "%TOTAL", "STATUS"}),
      ElementsAre("1|108|2026-01-05 11:00:00|1|1|OK", "2||2026-01-05 12:00:00|||OK",
                  "3||2026-01-05 13:00:00|||DB RESTART"));
  EXPECT_THAT(report->boxes(), IsEmpty()) << testing::PrintToString(report->errors());
}

TEST_F(SqlRanking11, aStatementWithoutAModuleShowsABlank) {
  repository.usualTotals();
  repository.add({.snap = 3, .hash = 801, .executions = 1, .elapsed = 5000000, .module = ""});
  EXPECT_THAT(all("Elapsed TOTAL", {"OLD_HASH_VALUE", "MODULE"}), ElementsAre("801| "));
}

TEST_F(SqlRanking11, aSeriesWithAnUnknownTotalShowsTheBoxOfItsMember) {
  repository.statistic("session logical reads", "500", "");
  repository.add({.snap = 3, .hash = 901, .executions = 1, .gets = 500});
  open();
  report->show(gDispSQLorderedbyGets_Col(report->source(), {1, {"901"}}));
  EXPECT_THAT(report->boxes(),
              ElementsAre("[Critical] (clsSQLorderedby){getSQL_ORDERED_BY_GETS_TIME} Error"));
}

}  // namespace
}  // namespace kestrelix
