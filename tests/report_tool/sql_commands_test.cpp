// kestrelix-report sql and plan, run as a program of its own.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/run_program.h"
#include "support/sql_repository.h"

namespace kestrelix::testing_support {
namespace {

using testing::HasSubstr;

class SqlCommands : public testing::Test {
 protected:
  SqlCommands() {
    repository.usualTotals();
    repository.addStatementWithPlan();
    repository.write();
  }
  Outcome run(const std::string& arguments) {
    const auto& file = repository.fixture.path();
    return runProgram("kestrelix-report", "--format csv --repository " + file.string() + " " + arguments,
                      file);
  }

  SqlRepository repository{"11"};
};

const std::string kRow = " 'SQL ordered by Gets TOTAL' --instance 0 --pair 0 --row 1";

TEST_F(SqlCommands, anUnknownRowOrASectionWithoutStatementsIsWrongUsage) {
  EXPECT_EQ(run("sql 'SQL ordered by Gets TOTAL' --instance 0 --pair 0").status, 2);
  const Outcome row = run("plan 'SQL ordered by Gets TOTAL' --instance 0 --pair 0 --row 2");
  EXPECT_EQ(row.status, 2);
  EXPECT_THAT(row.errors, HasSubstr("no row 2"));
  const Outcome section = run("sql 'init.ora Parameters' --instance 0 --pair 0 --row 1");
  EXPECT_EQ(section.status, 2);
  EXPECT_THAT(section.errors, HasSubstr("lists no SQL statements"));
  EXPECT_EQ(section.output, "");
}

TEST_F(SqlCommands, sqlPrintsThePieces) {
  const Outcome outcome = run("sql" + kRow);
  EXPECT_EQ(outcome.status, 0) << outcome.errors;
  EXPECT_EQ(outcome.output,
            "NO,OLD_HASH_VALUE,START_ID,END_ID,SQL_TEXT\r\n1,101,1,3,select a\r\n2,,,,from t\r\n");
}

TEST_F(SqlCommands, sqlShapedPrintsTheStatementsOwnLines) {
  const Outcome outcome = run("sql" + kRow + " --shaped");
  EXPECT_EQ(outcome.status, 0) << outcome.errors;
  EXPECT_EQ(outcome.output, "NO,OLD_HASH_VALUE,START_ID,END_ID,SQL_TEXT\r\n1,101,1,3,select a from t\r\n");
}

TEST_F(SqlCommands, planPrintsTheSteps) {
  const Outcome outcome = run("plan" + kRow);
  EXPECT_EQ(outcome.status, 0) << outcome.errors;
  EXPECT_EQ(outcome.output,
            "NO,OLD_HASH_VALUE,START_ID,END_ID,OPERATION,PHV_OBJECTNAME,ROWS,BYTES,COST\r\n"
            "1,101,1,3,SELECT STATEMENT ,----- 11 -----,  , ,2 \r\n");
}

TEST_F(SqlCommands, statementsNeedNoRepositoryAndGoByVersion) {
  const auto& scratch = repository.fixture.path();
  const Outcome nine = runProgram("kestrelix-report", "--format csv statements --version 9", scratch);
  EXPECT_EQ(nine.status, 0) << nine.errors;
  EXPECT_THAT(
      nine.output,
      testing::StartsWith("CLASS,MEMBER,VIEW,VERSIONS,TEXT\r\nclsDbInstance,getDB_INSTANCE,list,9 10 11,"));
  EXPECT_THAT(nine.output, HasSubstr("\r\nclsSnapId,getSNAP_ID,list,9 10 11,"));
  EXPECT_THAT(nine.output, HasSubstr("\r\nclsLatchActivity,getLATCH_ACTIVITY_ALL,All,"));
  EXPECT_THAT(nine.output, testing::Not(HasSubstr("clsInterconnectPingStats")));
  const Outcome eleven = runProgram("kestrelix-report", "--format csv statements --version 11", scratch);
  EXPECT_THAT(eleven.output,
              HasSubstr("\r\nclsInterconnectPingStats,getINTERCONNECT_PING_STATS_COL,Col,11,"));
}

}  // namespace
}  // namespace kestrelix::testing_support
