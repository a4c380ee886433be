#include "sections/nature.h"

#include <gtest/gtest.h>

#include <string>

#include "oracle_sql/meaning/resolver.h"
#include "oracle_sql/syntax/parser.h"
#include "statspack/release_catalogue.h"

namespace kestrelix::testing_support {
namespace {

const std::string kEnds = " from stats$sysstat b, stats$sysstat e, stats$snapshot s, stats$snapshot t ";

/// Of the first column. :ELA is a duration, all other binds are arguments.
std::string natureOfStatement(const std::string& statement) {
  const statspack::ReleaseCatalogue catalogue("11");
  oracle_sql::Tree tree = oracle_sql::parse(statement);
  oracle_sql::resolve(tree, catalogue, oracle_sql::allNumbers);
  return nameOf(natureOf(*tree.query(), 0, [](std::string_view name) {
    return name == "ELA" ? Nature::Duration : Nature::Constant;
  }));
}

std::string natureOfExpression(const std::string& expression) {
  return natureOfStatement("select " + expression + kEnds);
}

TEST(Nature, ofAColumnIsThatOfItsType) {
  EXPECT_EQ(natureOfExpression("e.value"), "a state");
  EXPECT_EQ(natureOfExpression("e.name"), "a text");
  EXPECT_EQ(natureOfExpression("s.snap_time"), "a moment");
  EXPECT_EQ(natureOfExpression("to_char(s.snap_time, 'DD')"), "a moment");
  EXPECT_EQ(natureOfExpression("'B'"), "a text");
  EXPECT_EQ(natureOfExpression("' '"), "a constant");
}

TEST(Nature, ofADifferenceIsAGrowthIfItsSidesAreTheSameColumns) {
  EXPECT_EQ(natureOfExpression("round((e.value - nvl(b.value, 0)) / 1000)"), "a growth");
  EXPECT_EQ(natureOfExpression("sum(e.value - b.value)"), "a growth");
  EXPECT_EQ(natureOfExpression("(e.value + e.statistic#) - b.value - b.statistic#"), "a growth");
  EXPECT_EQ(natureOfExpression("e.value - lag(e.value, 1, 0) over (order by e.snap_id)"), "a growth");
  EXPECT_EQ(natureOfExpression("e.value - e.statistic#"), "a state");
  EXPECT_EQ(natureOfExpression("b.value + (e.value - b.value)"), "a state");
  EXPECT_EQ(natureOfExpression("(t.snap_time - s.snap_time) * 1440"), "a duration");
}

TEST(Nature, ofAQuotientFollowsWhatItIsDividedBy) {
  EXPECT_EQ(natureOfExpression("decode(:ELA, 0, ' ', (e.value - b.value) / :ELA)"), "divided by a duration");
  EXPECT_EQ(natureOfExpression("(e.value - b.value) / ((t.snap_time - s.snap_time) * 86400)"),
            "divided by a duration");
  EXPECT_EQ(natureOfExpression("(e.value - b.value) / (e.value - b.value)"), "a quotient of growths");
  EXPECT_EQ(natureOfExpression("10 * (e.value - b.value) / (e.value - b.value)"), "a quotient of growths");
  EXPECT_EQ(natureOfExpression("(e.value - b.value) / e.value"), "a quotient with a state");
  EXPECT_EQ(natureOfExpression("100 * (e.value - b.value) / (e.value - b.value)"), "a percentage");
  EXPECT_EQ(natureOfExpression("(1 - (e.value - b.value) / (e.value - b.value)) * 100"), "a percentage");
}

TEST(Nature, ofAChoiceIsThatOfItsValues) {
  EXPECT_EQ(natureOfExpression("decode(e.name, 'x', 'X', 'y', 'Y')"), "a text");
  EXPECT_EQ(natureOfExpression("case when e.value < b.value then e.value else e.value - b.value end"),
            "a growth");
  EXPECT_EQ(natureOfExpression("decode(e.name, 'x', to_char(s.snap_time), to_char(e.value))"),
            "of several natures");
}

TEST(Nature, isFollowedThroughInlineViews) {
  EXPECT_EQ(natureOfStatement("select * from (select e.value - b.value AS x" + kEnds + ") z"), "a growth");
  EXPECT_EQ(
      natureOfStatement("with w as (select snap_id, sum(value) AS x from stats$sysstat group by snap_id) "
                        "select e.x - b.x from w e, w b"),
      "a growth");
  EXPECT_EQ(natureOfStatement("select * from (select e.value - b.value AS x" + kEnds +
                              "union all select e.value" + kEnds + ")"),
            "a growth");
  EXPECT_EQ(natureOfStatement("select b from (select snap_id, name, value from stats$sysstat) "
                              "pivot (sum(value) for name in ('x' AS a, 'y' AS b))"),
            "a state");
}

}  // namespace
}  // namespace kestrelix::testing_support
