// Which columns a ranking shows, and what it asks with: no rows are needed for that.
#include <gtest/gtest.h>

#include <map>

#include "sections/sql/sqlRankings.h"
#include "support/grid_report.h"
#include "support/snapshots.h"

namespace kestrelix {
namespace {

using namespace testing_support;

class SqlRankingColumns : public testing::Test {
 protected:
  void SetUp() override {
    laySnapshots(server, {{"41", "2026-01-05 10:00:00", "7", "2026-01-01 00:00:00"},
                          {"42", "2026-01-05 11:00:00", "7", "2026-01-01 00:00:00"},
                          {"43", "2026-01-05 12:00:00", "7", "2026-01-05 11:30:00"}});
    server.answer("stats$sql_summary");  // no rows
    report.repository.gOraDatabase = std::make_unique<FakeDatabase>(server);
    report.loadPairs("1001", "1");
  }

  void all(const std::string& section, const std::string& version, int pair = 0) {
    server.asked.clear();
    report.all(section, version, "YES", pair);
  }
  /// The Col view of a row with that hash in the key cell.
  void col(const std::string& version, const std::string& hash) {
    grid().Rows(2);
    grid().TextMatrix(1, 1, hash);
    grid().Row(1);
    server.asked.clear();
    report.col(version);
  }
  Grid& grid() { return report.grid; }
  std::string headings() {
    std::string line;
    for (int c = 0; c < grid().Cols(); ++c) line += (c == 0 ? "" : "|") + grid().TextArray(c);
    return line;
  }

  FakeServer server;
  GridReport report;
};

TEST_F(SqlRankingColumns, theCountsOfColumnsByVersionAndView) {
  struct Counts {
    const char* section;
    std::map<std::string, std::pair<int, int>> allAndCol;
  };
  const std::map<std::string, std::pair<int, int>> since10{{"10", {23, 25}}, {"11", {26, 28}}};
  const std::map<std::string, std::pair<int, int>> since9{
      {"9", {20, 22}}, {"10", {23, 25}}, {"11", {26, 28}}};
  const std::map<std::string, std::pair<int, int>> cluster{{"10", {26, 28}}, {"11", {29, 31}}};
  const std::map<std::string, std::pair<int, int>> versions{
      {"9", {18, 20}}, {"10", {21, 23}}, {"11", {24, 26}}};
  const std::vector<Counts> table{
      {"SQL ordered by CPU TOTAL", since10},      {"SQL ordered by CPU EXEC", since10},
      {"SQL ordered by Elapsed TOTAL", since10},  {"SQL ordered by Elapsed EXEC", since10},
      {"SQL ordered by Gets TOTAL", since9},      {"SQL ordered by Gets EXEC", since9},
      {"SQL ordered by Reads TOTAL", since9},     {"SQL ordered by Reads EXEC", since9},
      {"SQL ordered by I/O Wait TOTAL", since10}, {"SQL ordered by I/O Wait EXEC", since10},
      {"SQL ordered by Cluster TOTAL", cluster},  {"SQL ordered by Cluster EXEC", cluster},
      {"SQL ordered by Executions", since9},      {"SQL ordered by Parse Calls", since9},
      {"SQL ordered by Sharable Memory", since9}, {"SQL ordered by Version Count", versions}};
  for (const Counts& counts : table)
    for (const auto& [version, expected] : counts.allAndCol) {
      all(counts.section, version);
      EXPECT_EQ(grid().Cols(), expected.first) << counts.section << " " << version;
      col(version, "815");
      EXPECT_EQ(grid().Cols(), expected.second) << counts.section << " " << version;
    }
  EXPECT_TRUE(report.boxes.shown.empty());
}

TEST_F(SqlRankingColumns, theHeadingsOfVersion11) {
  const std::string key = "NO|OLD_HASH_VALUE|MODULE|";
  const std::string tail =
      "MAX_SHARABLE_MEM|LAST_SHARABLE_MEM|MAX_VERSION_COUNT|LAST_VERSION_COUNT|DELTA_VERSION_COUNT|HASH_"
      "VALUE|"
      "ADDRESS";
  const std::map<std::string, std::string> expected{
      {"CPU TOTAL",
       "EXECUTIONS|TOTAL_DB_CPU(S)|%TOTAL|CPU_TIME(S)|CPU_TIME_PEXEC(S)|ELAPSED_TIME(S)|ELAPSED_TIME_PEXEC(S)"
       "|"
       "BUFFER_GETS|BUFFER_GETS_PEXEC|DISK_READS|DISK_READS_PEXEC|ROWS_PROCESSED|ROWS_PROCESSED_PEXEC|"
       "IO_WAIT_TIME(S)|IO_WAIT_TIME_PEXEC(S)|PARSE_CALLS|" +
           tail},
      {"Elapsed TOTAL",
       "EXECUTIONS|TOTAL_DB_TIME(S)|%TOTAL|ELAPSED_TIME(S)|ELAPSED_TIME_PEXEC(S)|CPU_TIME(S)|CPU_TIME_PEXEC("
       "S)|"
       "BUFFER_GETS|BUFFER_GETS_PEXEC|DISK_READS|DISK_READS_PEXEC|ROWS_PROCESSED|ROWS_PROCESSED_PEXEC|"
       "IO_WAIT_TIME(S)|IO_WAIT_TIME_PEXEC(S)|PARSE_CALLS|" +
           tail},
      {"Gets TOTAL",
       "EXECUTIONS|TOTAL_LOGICAL_READS|%TOTAL|BUFFER_GETS|BUFFER_GETS_PEXEC|DISK_READS|DISK_READS_PEXEC|"
       "CPU_TIME(S)|CPU_TIME_PEXEC(S)|ELAPSED_TIME(S)|ELAPSED_TIME_PEXEC(S)|ROWS_PROCESSED|"
       "ROWS_PROCESSED_PEXEC|IO_WAIT_TIME(S)|IO_WAIT_TIME_PEXEC(S)|PARSE_CALLS|" +
           tail},
      {"Reads TOTAL",
       "EXECUTIONS|TOTAL_PHYSICAL_READS|%TOTAL|DISK_READS|DISK_READS_PEXEC|BUFFER_GETS|BUFFER_GETS_PEXEC|"
       "CPU_TIME(S)|CPU_TIME_PEXEC(S)|ELAPSED_TIME(S)|ELAPSED_TIME_PEXEC(S)|ROWS_PROCESSED|"
       "ROWS_PROCESSED_PEXEC|IO_WAIT_TIME(S)|IO_WAIT_TIME_PEXEC(S)|PARSE_CALLS|" +
           tail},
      {"I/O Wait TOTAL",
       "EXECUTIONS|TOTAL_DB_TIME(S)|%TOTAL|IO_WAIT_TIME(S)|IO_WAIT_TIME_PEXEC(S)|CPU_TIME(S)|CPU_TIME_PEXEC("
       "S)|"
       "ELAPSED_TIME(S)|ELAPSED_TIME_PEXEC(S)|BUFFER_GETS|BUFFER_GETS_PEXEC|DISK_READS|DISK_READS_PEXEC|"
       "ROWS_PROCESSED|ROWS_PROCESSED_PEXEC|PARSE_CALLS|" +
           tail},
      {"Cluster TOTAL",
       "EXECUTIONS|TOTAL_DB_TIME(S)|%TOTAL|ELAPSED_TIME(S)|ELAPSED_TIME_PEXEC(S)|CLUSTER_WAIT_TIME(S)|"
       "CLUSTER_WAIT_%ELAPSED|CLUSTER_WAIT_TIME_PEXEC(S)|CPU_TIME(S)|CPU_TIME_PEXEC(S)|BUFFER_GETS|"
       "BUFFER_GETS_PEXEC|DISK_READS|DISK_READS_PEXEC|ROWS_PROCESSED|ROWS_PROCESSED_PEXEC|IO_WAIT_TIME(S)|"
       "IO_WAIT_TIME_PEXEC(S)|PARSE_CALLS|" +
           tail},
      {"Executions",
       "TOTAL_EXECUTE_COUNT|%TOTAL|EXECUTIONS|ROWS_PROCESSED|ROWS_PROCESSED_PEXEC|CPU_TIME(S)|"
       "CPU_TIME_PEXEC(S)|ELAPSED_TIME(S)|ELAPSED_TIME_PEXEC(S)|BUFFER_GETS|BUFFER_GETS_PEXEC|DISK_READS|"
       "DISK_READS_PEXEC|IO_WAIT_TIME(S)|IO_WAIT_TIME_PEXEC(S)|PARSE_CALLS|" +
           tail},
      {"Parse Calls",
       "TOTAL_PARSE_COUNT|%TOTAL|PARSE_CALLS|EXECUTIONS|CPU_TIME(S)|CPU_TIME_PEXEC(S)|ELAPSED_TIME(S)|"
       "ELAPSED_TIME_PEXEC(S)|BUFFER_GETS|BUFFER_GETS_PEXEC|DISK_READS|DISK_READS_PEXEC|ROWS_PROCESSED|"
       "ROWS_PROCESSED_PEXEC|IO_WAIT_TIME(S)|IO_WAIT_TIME_PEXEC(S)|" +
           tail},
      {"Sharable Memory",
       "SHARED_POOL_SIZE|%TOTAL|MAX_SHARABLE_MEM|LAST_SHARABLE_MEM|EXECUTIONS|PARSE_CALLS|MAX_VERSION_COUNT|"
       "LAST_VERSION_COUNT|DELTA_VERSION_COUNT|CPU_TIME(S)|CPU_TIME_PEXEC(S)|ELAPSED_TIME(S)|"
       "ELAPSED_TIME_PEXEC(S)|BUFFER_GETS|BUFFER_GETS_PEXEC|DISK_READS|DISK_READS_PEXEC|ROWS_PROCESSED|"
       "ROWS_PROCESSED_PEXEC|IO_WAIT_TIME(S)|IO_WAIT_TIME_PEXEC(S)|HASH_VALUE|ADDRESS"},
      {"Version Count",
       "MAX_VERSION_COUNT|LAST_VERSION_COUNT|DELTA_VERSION_COUNT|EXECUTIONS|PARSE_CALLS|MAX_SHARABLE_MEM|"
       "LAST_SHARABLE_MEM|CPU_TIME(S)|CPU_TIME_PEXEC(S)|ELAPSED_TIME(S)|ELAPSED_TIME_PEXEC(S)|BUFFER_GETS|"
       "BUFFER_GETS_PEXEC|DISK_READS|DISK_READS_PEXEC|ROWS_PROCESSED|ROWS_PROCESSED_PEXEC|IO_WAIT_TIME(S)|"
       "IO_WAIT_TIME_PEXEC(S)|HASH_VALUE|ADDRESS"}};
  for (const auto& [name, columns] : expected) {
    all("SQL ordered by " + name, "11");
    EXPECT_EQ(headings(), key + columns) << name;
  }
}

TEST_F(SqlRankingColumns, anExecSectionHasTheHeadingsOfItsTotalTwin) {
  for (const std::string version : {"10", "11"})
    for (const std::string name : {"CPU", "Elapsed", "Gets", "Reads", "I/O Wait", "Cluster"}) {
      all("SQL ordered by " + name + " TOTAL", version);
      const std::string total = headings();
      all("SQL ordered by " + name + " EXEC", version);
      EXPECT_EQ(headings(), total) << name;
    }
}

TEST_F(SqlRankingColumns, version10KnowsTheEndValueOfMemoryAndVersionsAlone) {
  all("SQL ordered by CPU TOTAL", "10");
  EXPECT_EQ(headings(),
            "NO|OLD_HASH_VALUE|MODULE|EXECUTIONS|TOTAL_DB_CPU(S)|%TOTAL|CPU_TIME(S)|CPU_TIME_PEXEC(S)|"
            "ELAPSED_TIME(S)|ELAPSED_TIME_PEXEC(S)|BUFFER_GETS|BUFFER_GETS_PEXEC|DISK_READS|DISK_READS_PEXEC|"
            "ROWS_PROCESSED|ROWS_PROCESSED_PEXEC|IO_WAIT_TIME(S)|IO_WAIT_TIME_PEXEC(S)|PARSE_CALLS|"
            "SHARABLE_MEM|VERSION_COUNT|HASH_VALUE|ADDRESS");
  all("SQL ordered by Version Count", "10");
  EXPECT_EQ(
      headings(),
      "NO|OLD_HASH_VALUE|MODULE|VERSION_COUNT|EXECUTIONS|PARSE_CALLS|SHARABLE_MEM|CPU_TIME(S)|"
      "CPU_TIME_PEXEC(S)|ELAPSED_TIME(S)|ELAPSED_TIME_PEXEC(S)|BUFFER_GETS|BUFFER_GETS_PEXEC|DISK_READS|"
      "DISK_READS_PEXEC|ROWS_PROCESSED|ROWS_PROCESSED_PEXEC|IO_WAIT_TIME(S)|IO_WAIT_TIME_PEXEC(S)|"
      "HASH_VALUE|ADDRESS");
}

TEST_F(SqlRankingColumns, version9BeginsWithHashAndAddressAndKnowsNoIoWaits) {
  all("SQL ordered by Gets EXEC", "9");
  EXPECT_EQ(
      headings(),
      "NO|HASH_VALUE|ADDRESS|MODULE|EXECUTIONS|TOTAL_LOGICAL_READS|%TOTAL|BUFFER_GETS|BUFFER_GETS_PEXEC|"
      "DISK_READS|DISK_READS_PEXEC|CPU_TIME(S)|CPU_TIME_PEXEC(S)|ELAPSED_TIME(S)|ELAPSED_TIME_PEXEC(S)|"
      "ROWS_PROCESSED|ROWS_PROCESSED_PEXEC|PARSE_CALLS|SHARABLE_MEM|VERSION_COUNT");
  all("SQL ordered by Sharable Memory", "9");
  EXPECT_EQ(headings(),
            "NO|HASH_VALUE|ADDRESS|MODULE|SHARED_POOL_SIZE|%TOTAL|SHARABLE_MEM|EXECUTIONS|PARSE_CALLS|"
            "VERSION_COUNT|CPU_TIME(S)|CPU_TIME_PEXEC(S)|ELAPSED_TIME(S)|ELAPSED_TIME_PEXEC(S)|BUFFER_GETS|"
            "BUFFER_GETS_PEXEC|DISK_READS|DISK_READS_PEXEC|ROWS_PROCESSED|ROWS_PROCESSED_PEXEC");
}

TEST_F(SqlRankingColumns, aColViewPutsTheEndTimeBehindTheKeyAndTheStatusAtTheEnd) {
  all("SQL ordered by Version Count", "11");
  col("11", "815");
  EXPECT_TRUE(headings().starts_with("NO|OLD_HASH_VALUE|END TIME|MODULE|MAX_VERSION_COUNT|")) << headings();
  EXPECT_TRUE(headings().ends_with("|HASH_VALUE|ADDRESS|STATUS")) << headings();
  all("SQL ordered by Version Count", "9");
  col("9", "815");
  EXPECT_TRUE(headings().starts_with("NO|HASH_VALUE|ADDRESS|END TIME|MODULE|VERSION_COUNT|")) << headings();
  EXPECT_TRUE(headings().ends_with("|ROWS_PROCESSED_PEXEC|STATUS")) << headings();
}

TEST_F(SqlRankingColumns, aColViewHasARowForEveryPairAlsoWhereTheStatementIsNotCaptured) {
  all("SQL ordered by Executions", "11");
  col("11", "815");
  ASSERT_EQ(grid().Rows(), 3);
  EXPECT_EQ(grid().TextMatrix(1, 0), "1");
  EXPECT_EQ(grid().TextMatrix(1, 1), "");
  EXPECT_EQ(grid().TextMatrix(1, 2), "2026-01-05 11:00:00");
  EXPECT_EQ(grid().TextMatrix(1, 27), "OK");
  for (int c = 3; c < 27; ++c) EXPECT_EQ(grid().TextMatrix(1, c), "") << c;
  EXPECT_EQ(grid().TextMatrix(2, 2), "2026-01-05 12:00:00");
  EXPECT_EQ(grid().TextMatrix(2, 27), "DB RESTART");
}

TEST_F(SqlRankingColumns, aPairAcrossARestartShowsHeadingsAndAsksNothing) {
  all("SQL ordered by Executions", "11", 1);
  EXPECT_EQ(grid().Rows(), 1);
  EXPECT_EQ(grid().Cols(), 26);
  EXPECT_TRUE(server.asked.empty());
}

TEST_F(SqlRankingColumns, theListAsksForOnePercentAnd65RowsAndTheColViewForTheHash) {
  const auto sent = [this] {
    std::string line;
    for (const auto& [name, bind] : server.asked.at(0).binds) {
      EXPECT_EQ(bind.first, ServerType::Number) << name;
      line += name + "=" + bind.second + " ";
    }
    return line;
  };
  all("SQL ordered by CPU TOTAL", "11");
  ASSERT_EQ(server.asked.size(), 1u);
  EXPECT_EQ(sent(), "B1=1001 B2=1 B3=41 B4=42 B5=0 PAR=1 TOP_NUM=65 ");
  EXPECT_EQ(report.repository.gOraDatabase->parameters().count(), 0u);
  col("11", "815");
  ASSERT_EQ(server.asked.size(), 1u);  // the second pair goes across a restart
  EXPECT_EQ(sent(), "B1=1001 B2=1 B3=41 B4=42 B5=815 PAR=0 TOP_NUM=0 ");
}

TEST_F(SqlRankingColumns, totalAndExecSendTheirOwnStatement) {
  for (const std::string version : {"10", "11"})
    for (const std::string name : {"CPU", "Elapsed", "Gets", "Reads", "I/O Wait", "Cluster"}) {
      all("SQL ordered by " + name + " TOTAL", version);
      const std::string total = server.asked.at(0).statement;
      all("SQL ordered by " + name + " EXEC", version);
      EXPECT_NE(server.asked.at(0).statement, total) << name;
    }
  for (const std::string name : {"Gets", "Reads"}) {
    all("SQL ordered by " + name + " TOTAL", "9");
    const std::string total = server.asked.at(0).statement;
    all("SQL ordered by " + name + " EXEC", "9");
    EXPECT_NE(server.asked.at(0).statement, total) << name;
  }
}

TEST(SqlRankings, theButtonsOfTextAndPlanAreOnForThemAlone) {
  for (const Section& each : sectionList())
    EXPECT_EQ(each.sqlButtons, each.text.starts_with("SQL ordered by")) << each.text;
}

TEST(SqlRankings, thereAre26StatementsForOracle11And10And14ForOracle9) {
  const clsSQLorderedby object;
  std::map<Versions, int> count;
  for (const Statement& statement : object.statements()) ++count[statement.versions];
  EXPECT_EQ(count, (std::map<Versions, int>{{V9, 14}, {V10, 26}, {V11, 26}}));
}

TEST(SqlRankings, aMemberThatVersion9LacksDoesNothingAndSucceeds) {
  FakeServer server;  // fails for any statement
  Failures failures;
  FakeDatabase database(server);
  clsSnapId pairs;
  clsSQLorderedby object;
  object.Initialize(database, pairs, failures, "9");
  EXPECT_TRUE(object.get("getSQL_ORDERED_BY_CPU_TOTAL", 0));
  EXPECT_EQ(object.rownum(), 0);
  EXPECT_TRUE(server.asked.empty());
}

}  // namespace
}  // namespace kestrelix
