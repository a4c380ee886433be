// The stored text and the plans of the statement in the main grid's current row.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sections/sql/ModuleDispSQLShaping.h"
#include "sections/sql/sqlPanels.h"
#include "support/report_fixture.h"
#include "support/sql_repository.h"

namespace kestrelix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using namespace testing_support;

class SqlPanels : public testing::Test {
 protected:
  /// Statement 101 of plan 11 is captured by both ends, snapshots 1 and 3.
  void with(const std::string& version) {
    version_ = version;
    repository = std::make_unique<SqlRepository>(version);
    repository->usualTotals();
    repository->add({.snap = 1, .hash = 101, .executions = 1, .gets = 100});
    repository->add({.snap = 3, .hash = 101, .executions = 2, .gets = 1100});
  }
  std::string hashColumn() const { return version_ == "9" ? "hash_value" : "old_hash_value"; }

  void piece(const std::string& number, const std::string& text, const std::string& hash = "101") {
    repository->fixture.row(
        "stats$sqltext",
        {{hashColumn(), hash}, {"text_subset", "select"}, {"piece", number}, {"sql_text", text}});
  }
  void used(const std::string& plan, const std::string& snap = "3", const std::string& hash = "101") {
    repository->fixture.row(
        "stats$sql_plan_usage",
        {{"snap_id", snap}, {hashColumn(), hash}, {"text_subset", "select"}, {"plan_hash_value", plan}});
  }
  struct Step {
    std::string plan, id, depth, operation, options, object, rows, bytes, cost;
  };
  void step(const Step& s) {
    repository->fixture.row("stats$sql_plan", {{"plan_hash_value", s.plan},
                                               {"id", s.id},
                                               {"depth", s.depth},
                                               {"operation", s.operation},
                                               {"options", s.options},
                                               {"object_name", s.object},
                                               {"cardinality", s.rows},
                                               {"bytes", s.bytes},
                                               {"cost", s.cost}});
  }

  /// The ranking by gets, its first row current.
  void open(int pair = 0) {
    report = std::make_unique<ReportFixture>(repository->write());
    report->open(0);
    pair_ = pair;
    report->all("SQL ordered by Gets TOTAL", pair);
    if (report->grid().Rows() > 1) report->grid().Row(1);
  }
  std::string text() {
    show(sqlGrid, readSqlText(report->source(), pair_, hash()));
    return printed(sqlGrid);
  }
  std::string plan() {
    show(planGrid, readSqlPlan(report->source(), pair_, hash()));
    return printed(planGrid);
  }
  /// One column of the plan grid.
  std::vector<std::string> planCells(int column) {
    plan();
    std::vector<std::string> cells;
    for (int r = 1; r < planGrid.Rows(); ++r) cells.push_back(planGrid.TextMatrix(r, column));
    return cells;
  }

  /// The hash in the ranking's current row.
  std::string hash() const { return report->grid().TextMatrix(report->grid().Row(), 1); }
  void show(Grid& grid, const ReportTable& table) {
    showFailures(report->messageBoxes(), table.failures);
    if (table.read) showTable(grid, table);
  }

  std::unique_ptr<SqlRepository> repository;
  std::unique_ptr<ReportFixture> report;
  Grid sqlGrid{"MSFlexGridSql"};
  Grid planGrid{"MSFlexGridPlan"};
  int pair_ = 0;
  std::string version_;
};

constexpr const char* kTextHeadings = "NO|OLD_HASH_VALUE|START_ID|END_ID|SQL_TEXT\n";
constexpr const char* kPlanHeadings =
    "NO|OLD_HASH_VALUE|START_ID|END_ID|OPERATION|PHV_OBJECTNAME|ROWS|BYTES|COST\n";

TEST_F(SqlPanels, withoutTheTableOfTextsTheBoxOfTheGetterShowsAndTheGridStays) {
  with("11");
  repository->fixture.without("stats$sqltext").without("stats$sql_plan");
  open();
  sqlGrid.TextMatrix(1, 1, "kept");
  text();
  plan();
  EXPECT_EQ(sqlGrid.TextMatrix(1, 1), "kept");
  EXPECT_THAT(report->boxes(), ElementsAre("[Critical] (clsSQLText){getSQL_TEXT} Error",
                                           "[Critical] (clsSQLPlan){getSQL_PLAN} Error"));
}

TEST_F(SqlPanels, onAGridOfHeadingsAloneTheHashIsNoNumber) {
  version_ = "11";
  repository = std::make_unique<SqlRepository>(version_);
  repository->usualTotals();
  open();
  text();
  plan();
  EXPECT_THAT(report->boxes(), ElementsAre("[Critical] (clsSQLText){setBAIND_VALUE} Error",
                                           "[Critical] (clsSQLPlan){setBAIND_VALUE} Error"));
}

TEST_F(SqlPanels, aPairAcrossARestartShowsHeadingsAlone) {
  with("11");
  piece("0", "select 1 from dual");
  repository->snapshot(5, "2026-01-05 13:00:00", "2026-01-05 12:30:00");
  open(1);
  EXPECT_EQ(text(), kTextHeadings);
  EXPECT_EQ(plan(), kPlanHeadings);
  EXPECT_THAT(report->boxes(), IsEmpty());
}

TEST_F(SqlPanels, thePiecesStandInTheirOrderAndTheKeysInTheFirstRow) {
  for (const std::string version : {"10", "11"}) {
    with(version);
    piece("2", "  where a = 1");
    piece("0", "select a from t");
    piece("10", " order by a");
    piece("0", "another", "102");
    open();
    EXPECT_EQ(text(), kTextHeadings + std::string("1|101|1|3|select a from t\n"
                                                  "2||||  where a = 1\n"
                                                  "3|||| order by a\n"))
        << version;
    EXPECT_THAT(report->boxes(), IsEmpty()) << testing::PrintToString(report->errors());
  }
}

TEST_F(SqlPanels, version9GoesByItsOwnHash) {
  with("9");
  piece("0", "select a from t");
  used("11");
  step({"11", "0", "0", "SELECT STATEMENT", "", "", "", "", "3"});
  open();
  EXPECT_EQ(text(), "NO|HASH_VALUE|START_ID|END_ID|SQL_TEXT\n1|101|1|3|select a from t\n");
  EXPECT_EQ(plan(),
            "NO|HASH_VALUE|START_ID|END_ID|OPERATION|PHV_OBJECTNAME|ROWS|BYTES|COST\n"
            "1|101|1|3|SELECT STATEMENT |----- 11 -----|  | |3 \n");
  EXPECT_THAT(report->boxes(), IsEmpty()) << testing::PrintToString(report->errors());
}

TEST_F(SqlPanels, aStatementThatTheEndDidNotCaptureHasNoText) {
  with("11");
  repository->add({.snap = 2, .hash = 105, .executions = 9, .gets = 9000});  // the first of the ranking
  piece("0", "select 105 from dual", "105");
  open();
  ASSERT_EQ(report->grid().TextMatrix(1, 1), "105");
  EXPECT_EQ(text(), kTextHeadings);
  EXPECT_THAT(report->boxes(), IsEmpty());
}

TEST_F(SqlPanels, aStatementWithoutAPlanHasOneRowOfKeysAndBlanks) {
  with("11");
  used("0");  // a plan of no hash is none
  step({"0", "0", "0", "INSERT STATEMENT", "", "", "", "", ""});
  open();
  EXPECT_EQ(plan(), kPlanHeadings + std::string("1|101|1|3|||||\n"));
  EXPECT_THAT(report->boxes(), IsEmpty());
}

TEST_F(SqlPanels, everyPlanOfThePairShowsUnderItsHashInTheOrderOfItsSteps) {
  with("11");
  used("22", "1");
  used("11", "3");
  used("33", "0");         // before the pair
  used("44", "3", "102");  // another statement's
  step({"22", "1", "1", "TABLE ACCESS", "FULL", "T2", "5", "10", "7"});
  step({"22", "0", "0", "SELECT STATEMENT", "", "", "", "", "7"});
  step({"11", "10", "3", "INDEX", "UNIQUE SCAN", "PK_T", "1", "8", "1"});
  step({"11", "0", "0", "SELECT STATEMENT", "", "", "", "", "2"});
  step({"11", "2", "2", "TABLE ACCESS", "BY INDEX ROWID", "T1", "1", "20", "2"});
  step({"33", "0", "0", "SELECT STATEMENT", "", "", "", "", ""});
  step({"44", "0", "0", "SELECT STATEMENT", "", "", "", "", ""});
  open();
  // One blank of indent for each depth below the first.
  EXPECT_EQ(plan(), kPlanHeadings + std::string("1|101|1|3|SELECT STATEMENT |----- 11 -----|  | |2 \n"
                                                "2|||| TABLE ACCESS BY INDEX ROWID|T1|1 |20 |2 \n"
                                                "3||||  INDEX UNIQUE SCAN|PK_T|1 |8 |1 \n"
                                                "4||||SELECT STATEMENT |----- 22 -----|  | |7 \n"
                                                "5||||TABLE ACCESS FULL|T2|5 |10 |7 \n"));
  EXPECT_THAT(report->boxes(), IsEmpty()) << testing::PrintToString(report->errors());
}

TEST_F(SqlPanels, namesThatTheSystemGaveShowABlank) {
  with("11");
  used("11");
  step({"11", "1", "1", "INDEX", "", "SYS_LE_1_0", "", "", ""});
  step({"11", "2", "1", "INDEX", "", "SYS_LEX", "", "", ""});
  step({"11", "3", "1", "INDEX", "", "SYS_LE_", "", "", ""});
  step({"11", "4", "1", "SORT", "AGGREGATE", "", "", "", ""});
  open();
  EXPECT_THAT(planCells(5), ElementsAre(" ", "SYS_LEX", " ", " "));
}

TEST_F(SqlPanels, rowsStepByThousands) {
  with("11");
  used("11");
  int id = 0;
  for (const char* rows : {"", "0", "999", "1000", "999999", "1000000", "999999999", "1000000000"})
    step({"11", std::to_string(++id), "1", "X", "", "", rows, "", ""});
  open();
  EXPECT_THAT(planCells(6), ElementsAre("  ", "0 ", "999 ", "1K", "999K", "1M", "999M", "1G"));
}

TEST_F(SqlPanels, bytesStepBy1024) {
  with("11");
  used("11");
  int id = 0;
  for (const char* bytes : {"", "1000", "1023", "1024", "1048575", "1048576", "1073741823", "1073741824"})
    step({"11", std::to_string(++id), "1", "X", "", "", "", bytes, ""});
  open();
  EXPECT_THAT(planCells(7), ElementsAre(" ", "1000 ", "1023 ", "1K", "1023K", "1M", "1023M", "1G"));
}

TEST_F(SqlPanels, costHasNoStepOfThousands) {
  with("11");
  used("11");
  int id = 0;
  for (const char* cost : {"", "1000", "9999999", "10000000", "999999999", "1000000000", "1999999999"})
    step({"11", std::to_string(++id), "1", "X", "", "", "", "", cost});
  open();
  EXPECT_THAT(planCells(8), ElementsAre(" ", "1000 ", "9999999 ", "10M", "999M", "1G", "1G"));
}

TEST_F(SqlPanels, theTextOfTheRepositoryIsShapedAndComesBack) {
  with("11");
  piece("0", "select 'a  b'\r\n,");
  piece("1", "c\r\nfrom   t");
  open();
  const std::string pieces = text();
  clsSQLShaping shaping;
  bool shaped = false;
  gDispSqlShapingToggle(shaped, shaping, sqlGrid);
  EXPECT_EQ(printed(sqlGrid), kTextHeadings + std::string("1|101|1|3|select 'a b', c\n2||||from t\n"));
  gDispSqlShapingToggle(shaped, shaping, sqlGrid);
  EXPECT_EQ(printed(sqlGrid), pieces);
}

TEST_F(SqlPanels, aFormerFailureDoesNotBlockTheNextPanel) {
  with("11");
  piece("0", "select 1");
  repository->fixture.without("stats$sql_plan");
  open();
  plan();
  EXPECT_EQ(text(), kTextHeadings + std::string("1|101|1|3|select 1\n"));
  EXPECT_EQ(report->boxes().size(), 1u);
}

}  // namespace
}  // namespace kestrelix
