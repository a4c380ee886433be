// A test of a key on an inline view must reach the rows that the view reads where, and only where, the other
// keys' rows don't matter to it.
#include <gtest/gtest.h>

#include "repository_file/local_database.h"
#include "support/fixture_repository.h"

namespace kestrelix::repository_file {
namespace {

class KeyTests : public testing::Test {
 protected:
  KeyTests() {
    fixture.common({{"dbid", "1"}, {"instance_number", "1"}});
    fixture.rows("stats$sysstat", {"snap_id", "name", "statistic#", "value"},
                 {{"1", "a", "10", "100"},
                  {"2", "a", "10", "150"},
                  {"1", "b", "20", "7"},
                  {"2", "b", "20", "9"},
                  {"2", "c", "30", "1"}});
    database = std::make_unique<LocalDatabase>(fixture.write());
    database->parameters().Add("KEY", 0, 1);
    database->parameters()("KEY").value("20");
  }

  /// The rows, cells with "|" and rows with ";" between them.
  std::string rows(const std::string& sql) {
    std::string text;
    const auto result = database->DbCreateDynaset(sql, kDynasetOptions);
    for (; !result->Eof(); result->MoveNext()) {
      std::string line;
      for (const std::string& column : result->columns()) {
        const Field field = result->Fields(column);
        line += (line.empty() ? "" : "|") + (field.isNull() ? "-" : field.value());
      }
      text += (text.empty() ? "" : ";") + line;
    }
    return text;
  }
  /// How often the value is asked for in what SQLite runs.
  int tests(const std::string& sql) {
    const std::string text = database->loweredText(sql);
    int count = 0;
    for (std::size_t at = text.find(":KEY"); at != std::string::npos; at = text.find(":KEY", at + 1)) ++count;
    return count;
  }

  testing_support::FixtureRepository fixture{"11"};
  std::unique_ptr<LocalDatabase> database;
};

TEST_F(KeyTests, reachTheRowsBelowWindowsOfThatKey) {
  const std::string sql =
      "select * from (select statistic# as k, snap_id, value - lag(value, 1, 0) over (partition by "
      "statistic# "
      "order by snap_id) as grown from stats$sysstat) v where v.k = :KEY order by snap_id";
  EXPECT_EQ(tests(sql), 2);
  EXPECT_EQ(rows(sql), "20|1|7;20|2|2");
}

TEST_F(KeyTests, stayAboveAWindowOverAllKeys) {
  const std::string sql =
      "select * from (select statistic# as k, snap_id, row_number() over (order by statistic#, snap_id) as n "
      "from stats$sysstat) v where v.k = :KEY order by n";
  EXPECT_EQ(tests(sql), 1);
  EXPECT_EQ(rows(sql), "20|1|3;20|2|4");
}

TEST_F(KeyTests, stayAboveWhenOneOfSeveralWindowsIsOverAllKeys) {
  const std::string sql =
      "select * from (select statistic# as k, max(value) over (partition by statistic#) as own, max(value) "
      "over "
      "(partition by snap_id) as whole from stats$sysstat) v where v.k = :KEY order by own, whole";
  EXPECT_EQ(tests(sql), 1);
  EXPECT_EQ(rows(sql), "20|9|100;20|9|150");
}

TEST_F(KeyTests, reachTheRowsOfAGroupByThatKey) {
  const std::string sql =
      "select * from (select statistic# as k, name, sum(value) as total from stats$sysstat group by "
      "statistic#, "
      "name) v where :KEY = v.k";
  EXPECT_EQ(tests(sql), 2);
  EXPECT_EQ(rows(sql), "20|b|16");
}

TEST_F(KeyTests, stayAboveAnAggregate) {
  const std::string sql =
      "select * from (select max(statistic#) as k, sum(value) as total from stats$sysstat) v where v.k = "
      ":KEY";
  EXPECT_EQ(tests(sql), 1);
  EXPECT_EQ(rows(sql), "");  // the greatest key is 30
}

TEST_F(KeyTests, stayAboveRownum) {
  const std::string sql =
      "select * from (select statistic# as k, value from stats$sysstat where rownum <= 2) v where v.k = :KEY";
  EXPECT_EQ(tests(sql), 1);
}

TEST_F(KeyTests, stayAboveAnExpression) {
  const std::string sql =
      "select * from (select statistic# + 0 as k, count(*) as n from stats$sysstat group by statistic# + 0) "
      "v "
      "where v.k = :KEY";
  EXPECT_EQ(tests(sql), 1);
  EXPECT_EQ(rows(sql), "20|2");
}

TEST_F(KeyTests, stayAboveBranchesOfACompoundQuery) {
  const std::string sql =
      "select * from (select statistic# as k from stats$sysstat union select 20 from dual) v where v.k = "
      ":KEY";
  EXPECT_EQ(tests(sql), 1);
  EXPECT_EQ(rows(sql), "20");
}

TEST_F(KeyTests, areNotMadeWhereATextWouldHaveToBecomeANumber) {
  const std::string sql =
      "select v.k from (select name as k, value from stats$sysstat where snap_id = 3) v "
      "where v.k = :KEY";
  EXPECT_EQ(tests(sql), 1);
  EXPECT_EQ(rows(sql), "");
}

TEST_F(KeyTests, goDownThroughSeveralViewsAndAcrossEqualColumns) {
  const std::string sql =
      "select cc.k, cc.grown from (select b.k, b.value - nvl(a.value, 0) as grown from "
      "(select statistic# as k, value from stats$sysstat where snap_id = 1) a, "
      "(select statistic# as k, value from stats$sysstat where snap_id = 2) b where a.k(+) = b.k) cc "
      "where cc.k = :KEY";
  // On the result, on both sides of the join's views, and on the join itself.
  EXPECT_EQ(tests(sql), 4);
  EXPECT_EQ(rows(sql), "20|2");
  database->parameters()("KEY").value("30");  // not there at the start
  EXPECT_EQ(rows(sql), "30|1");
}

TEST_F(KeyTests, onTheOptionalSideLeaveNothingBesideTheMatches) {
  const std::string sql =
      "select b.k, a.value from (select statistic# as k, value from stats$sysstat where snap_id = 1) a, "
      "(select statistic# as k, value from stats$sysstat where snap_id = 2) b where a.k(+) = b.k and a.k = "
      ":KEY";
  EXPECT_EQ(rows(sql), "20|7");
}

TEST_F(KeyTests, withAMarkRestrictTheOptionalSideAlone) {
  const std::string sql =
      "select b.k, a.value from (select statistic# as k, value from stats$sysstat where snap_id = 1) a, "
      "(select statistic# as k, value from stats$sysstat where snap_id = 2) b where a.k(+) = b.k and a.k(+) "
      "= "
      ":KEY order by b.k";
  EXPECT_EQ(rows(sql), "10|-;20|7;30|-");
}

TEST_F(KeyTests, reachANamedGroupAtEachOfItsUses) {
  const std::string sql =
      "with g as (select snap_id, name, sum(value) as v from stats$sysstat group by snap_id, name) "
      "select e.name, e.v - nvl(b.v, 0) as grown from g b, g e "
      "where b.snap_id(+) = 1 and e.snap_id = 2 and b.name(+) = e.name order by e.name";
  EXPECT_EQ(rows(sql), "a|50;b|2;c|1");
  EXPECT_EQ(database->loweredText(sql).find("WITH "), std::string::npos);
}

TEST_F(KeyTests, leaveNamedRowsThatAreCountedToBeReadOnce) {
  const std::string sql =
      "with g as (select v.name, max(v.r) as m from (select name, rownum as r from stats$sysstat) v "
      "group by v.name) select a.name, b.m - a.m as apart from g a, g b where a.name = b.name order by "
      "a.name";
  EXPECT_EQ(rows(sql), "a|0;b|0;c|0");
  EXPECT_NE(database->loweredText(sql).find("WITH "), std::string::npos);
}

}  // namespace
}  // namespace kestrelix::repository_file
