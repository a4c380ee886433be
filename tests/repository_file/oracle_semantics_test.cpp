// Where Oracle and SQLite differ: what a statement gives through the local back end, worked out by hand.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "repository_file/functions.h"
#include "repository_file/local_database.h"
#include "repository_file/queried_repository.h"
#include "repository_file/repository_file.h"

namespace kestrelix::repository_file {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class OracleSemantics : public QueriedRepository {
 protected:
  OracleSemantics() {
    writeRepository(folder_ / "file.sqlite",
                    {{"stats$n",
                      {{"ID", "NUMBER"},
                       {"V", "NUMBER"},
                       {"W", "NUMBER"},
                       {"T", "VARCHAR2"},
                       {"C", "CHAR"},
                       {"D", "DATE"}},
                      {{"1", "10", "1", "10", "ab ", "2020-01-01 00:00:00"},
                       {"2", "2.5", "2", "9", "ab", "2020-01-01 01:00:00"},
                       {"3", "-0.25", "3", std::nullopt, "AB", "2020-01-02 00:00:00"},
                       {"4", std::nullopt, "4", "x", "b", std::nullopt},
                       {"5", "9", std::nullopt, "2.50", std::nullopt, "2019-12-31 00:00:00"}}},
                     {"stats$large",
                      {{"ID", "NUMBER"}, {"V", "NUMBER"}},
                      {{"1", "9223372036854775807"},
                       {"2", "-9223372036854775808"},
                       {"3", "1"},
                       {"4", "4611686018427387904"}}},
                     {"stats$keyed",
                      {{"DBID", "NUMBER"},
                       {"INSTANCE_NUMBER", "NUMBER"},
                       {"SNAP_ID", "NUMBER"},
                       {"NAME", "VARCHAR2"},
                       {"VALUE", "NUMBER"}},
                      {{"1", "1", "1", "a", "5"}, {"1", "1", "2", "a", "7"}, {"1", "1", "2", "b", "0"}}}});
    database_ = std::make_unique<LocalDatabase>(folder_ / "file.sqlite");
  }
};

// ---- numbers ----

TEST_F(OracleSemantics, brokenAndWholeNumbersSortTogether) {
  EXPECT_THAT(rows("select v from stats$n order by v"), ElementsAre("-0.25", "2.5", "9", "10", "-"));
  EXPECT_THAT(rows("select v from stats$n order by v desc"), ElementsAre("-", "10", "9", "2.5", "-0.25"));
  EXPECT_THAT(rows("select v from stats$n order by v nulls first"),
              ElementsAre("-", "-0.25", "2.5", "9", "10"));
}

TEST_F(OracleSemantics, brokenAndWholeNumbersCompare) {
  EXPECT_THAT(rows("select id from stats$n where v > 2 order by id"), ElementsAre("1", "2", "5"));
  EXPECT_THAT(rows("select id from stats$n where v < 9.5 order by id"), ElementsAre("2", "3", "5"));
  EXPECT_THAT(rows("select id from stats$n where id < 2.5 order by id"), ElementsAre("1", "2"));
  EXPECT_THAT(rows("select id from stats$n where id >= 2.5 order by id"), ElementsAre("3", "4", "5"));
  EXPECT_THAT(rows("select id from stats$n where 2.5 < id order by id"), ElementsAre("3", "4", "5"));
  EXPECT_THAT(rows("select id from stats$n where v between w and 9 order by id"), ElementsAre("2"));
  EXPECT_THAT(rows("select id from stats$n where v = 2.5 or v = 10.0 order by id"), ElementsAre("1", "2"));
  EXPECT_THAT(rows("select id from stats$n where id > 1e40 or id < -1e40"), IsEmpty());
}

TEST_F(OracleSemantics, extremesOfBrokenNumbersAreNumeric) {
  EXPECT_THAT(rows("select min(v), max(v), min(w), max(w) from stats$n"), ElementsAre("-0.25|10|1|4"));
  EXPECT_THAT(rows("select max(t), min(t) from stats$n"), ElementsAre("x|10"));
  EXPECT_THAT(rows("select id, max(v) over (order by id), min(v) over (order by id rows 1 preceding) "
                   "from stats$n order by id"),
              ElementsAre("1|10|10", "2|10|2.5", "3|10|-0.25", "4|10|-0.25", "5|10|9"));
}

TEST_F(OracleSemantics, arithmeticLeaves64BitsWithoutLoss) {
  EXPECT_THAT(rows("select v + 1, v * 2, v - id from stats$large where id = 1"),
              ElementsAre("9223372036854775808|18446744073709551614|9223372036854775806"));
  EXPECT_THAT(rows("select -v, v - 1 from stats$large where id = 2"),
              ElementsAre("9223372036854775808|-9223372036854775809"));
  EXPECT_THAT(rows("select sum(v), avg(v) from stats$large where id in (1, 3)"),
              ElementsAre("9223372036854775808|4611686018427387904"));
  EXPECT_THAT(rows("select id from stats$large where v + v > 9223372036854775807 order by id"),
              ElementsAre("1", "4"));
}

TEST_F(OracleSemantics, sumBeyond64BitsIsExact) {
  // 1024 * 1024 times 9,000,000,000,000 is 9,437,184 * 10^12, above 2^63 - 1 = 9,223,372 * 10^12.
  conformance::TestTable table{"stats$million", {{"V", "NUMBER"}}, {}};
  for (int i = 0; i < 1024; ++i) table.rows.push_back({"9000000000000"});
  writeRepository(folder_ / "sums.sqlite", {table});
  LocalDatabase database(folder_ / "sums.sqlite");
  const auto rows = database.run(
      "select sum(a.v) s, count(*) n from stats$million a, stats$million b "
      "where rownum <= 1048576");
  EXPECT_EQ(rows->Fields("n").value(), "1048576");
  EXPECT_EQ(rows->Fields("s").value(), "9437184000000000000");
}

TEST_F(OracleSemantics, divisionIsDecimal) {
  EXPECT_THAT(rows("select id / 2, round(id / 3, 2) from stats$n where id = 1"), ElementsAre("0.5|0.33"));
  EXPECT_THAT(rows("select round(-id / 8, 2), trunc(7 / 4) from stats$n where id = 1"),
              ElementsAre("-0.13|1"));
}

TEST_F(OracleSemantics, divisionByZeroTellsItsPlace) {
  const std::string text = failure("select id,\n       1 / (id - 1) from stats$n where id = 1");
  EXPECT_THAT(text, HasSubstr("ORA-01476: divisor is equal to zero"));
  EXPECT_THAT(text, HasSubstr("line 2, column 10"));
  EXPECT_THAT(text, HasSubstr("\n           ^"));
}

TEST_F(OracleSemantics, badNumberTellsItsPlace) {
  const std::string text = failure("select t + 1 from stats$n order by id");
  EXPECT_THAT(text, HasSubstr("ORA-01722: invalid number"));
  EXPECT_THAT(text, HasSubstr("line 1, column 8"));
}

TEST_F(OracleSemantics, textComparesWithANumberAsANumber) {
  EXPECT_THAT(rows("select id from stats$n where id < 3 and t > 9.5"), ElementsAre("1"));
  EXPECT_THAT(rows("select id from stats$n where id != 4 and t = v order by id"), ElementsAre("1"));
  EXPECT_THAT(rows("select id from stats$n where id < 3 and t in (9, 10) order by id"),
              ElementsAre("1", "2"));
}

TEST_F(OracleSemantics, aggregatesOfNothing) {
  EXPECT_THAT(rows("select sum(v), avg(v), min(v), count(v), count(*) from stats$n where id > 9"),
              ElementsAre("-|-|-|0|0"));
  EXPECT_THAT(rows("select id, sum(v) from stats$n where id > 9 group by id"), IsEmpty());
}

// ---- evaluation ----

TEST_F(OracleSemantics, rowThatTheKeyDropsIsNotEvaluated) {
  EXPECT_THAT(rows("select * from (select name, 10 / value as x from stats$keyed where snap_id = 2) z "
                   "where z.name = 'a'"),
              ElementsAre("a|1.42857142857142857142857142857142857143"));
  EXPECT_THAT(rows("select * from (select name, 10 / sum(value) as x from stats$keyed group by name) z "
                   "where z.name = 'a'"),
              ElementsAre("a|0.8333333333333333333333333333333333333333"));
}

TEST_F(OracleSemantics, whatNoBlockReadsIsLeftOut) {
  EXPECT_THAT(rows("select count(*) from (select sum(v), max(id / 0) from stats$n)"), ElementsAre("1"));
  EXPECT_THAT(rows("select count(*) from (select id, 1 / 0 from stats$n)"), ElementsAre("5"));
  EXPECT_THAT(rows("select x from (select 1 as x, sum(v) as y from stats$n where id > 9)"), ElementsAre("1"));
  EXPECT_THAT(rows("select count(*) from (select distinct dbid, instance_number from stats$keyed)"),
              ElementsAre("1"));
  EXPECT_THAT(rows("select count(*) from (select name from stats$keyed union select 'a' from dual)"),
              ElementsAre("2"));
  EXPECT_THAT(
      rows("select id from (select id, w as hidden from stats$n order by hidden desc) where rownum <= 2"),
      ElementsAre("5", "4"));
  EXPECT_THAT(rows("select a.id from (select id, w from stats$n) a where exists "
                   "(select 1 from dual where a.w = 2)"),
              ElementsAre("2"));
}

TEST_F(OracleSemantics, everyRowThatIsReturnedIsEvaluated) {
  EXPECT_THAT(failure("select name, 10 / value from stats$keyed order by name"), HasSubstr("ORA-01476"));
}

TEST_F(OracleSemantics, whatDecodeAndCaseDoNotChooseIsNotEvaluated) {
  EXPECT_THAT(rows("select decode(value, 0, ' ', 10 / value) from stats$keyed where name = 'b'"),
              ElementsAre(" "));
  EXPECT_THAT(
      rows("select case when value = 0 then -1 else 10 / value end from stats$keyed where name = 'b'"),
      ElementsAre("-1"));
  EXPECT_THAT(rows("select coalesce(1, 1 / 0) from dual"), ElementsAre("1"));
}

TEST_F(OracleSemantics, decodeOfNullGivesTheValueOrTheBlank) {
  EXPECT_THAT(rows("select decode(v, null, ' ', v), decode(v, null, ' ', round(v)), decode(v, null, ' ', "
                   "trunc(v, 1)), "
                   "decode(v, null, ' ', w) from stats$n order by id"),
              ElementsAre("10|10|10|1", "2.5|3|2.5|2", "-.25|0|-.2|3", " | | | ", "9|9|9|-"));
  EXPECT_THAT(rows("select decode(v, null, 0, v) from stats$n where id > 3 order by id"),
              ElementsAre("0", "9"));
  EXPECT_THAT(rows("select decode(t, null, 'none', t) from stats$n where id in (3, 4) order by id"),
              ElementsAre("none", "x"));
}

TEST_F(OracleSemantics, decodeTakesANullSearchForEqualToANullValue) {
  // V is 10, 2.5, -0.25, null and 9: the search is null beside 10 and beside the null.
  EXPECT_THAT(rows("select decode(v, nullif(v, 10), 'same', 'other') from stats$n order by id"),
              ElementsAre("other", "same", "same", "same", "same"));
  EXPECT_THAT(rows("select decode(v, 9, 'nine', nullif(v, 10), 'same', 'other') from stats$n order by id"),
              ElementsAre("other", "same", "same", "same", "nine"));
}

TEST_F(OracleSemantics, scalarSubqueryOfTwoRowsFails) {
  EXPECT_THAT(rows("select (select t from stats$n where id = 1) from dual"), ElementsAre("10"));
  EXPECT_THAT(rows("select (select t from stats$n where id = 99) from dual"), ElementsAre("-"));
  EXPECT_THAT(failure("select (select t from stats$n where id < 3) from dual"),
              HasSubstr("ORA-01427: single-row subquery returns more than one row"));
  EXPECT_THAT(
      rows("select id, (select max(x.id) from stats$n x where x.id < n.id) from stats$n n order by id"),
      ElementsAre("1|-", "2|1", "3|2", "4|3", "5|4"));
}

TEST_F(OracleSemantics, valuesWrittenTwiceInsideEachOtherAreRefusedByTheirSize) {
  std::string value = "v";
  for (int i = 0; i < 60; ++i) value = "decode(" + value + ", null, 1, 2, 3, 4)";
  EXPECT_THAT(failure("select " + value + " from stats$n"),
              HasSubstr("not supported: an expression of this size"));
  std::string condition = "id between 1 and 2";
  for (int i = 0; i < 60; ++i) condition = "case when " + condition + " then 1 else 2 end between 1 and 2";
  EXPECT_THAT(failure("select 1 from stats$n where " + condition), HasSubstr("not supported"));
  std::string nested = "v";
  for (int i = 0; i < 30; ++i) nested = "abs(" + nested + ")";
  EXPECT_THAT(rows("select " + nested + " from stats$n where id = 3"), ElementsAre("0.25"));
}

// ---- ROWNUM ----

TEST_F(OracleSemantics, rownumCountsBeforeTheSort) {
  EXPECT_THAT(rows("select id from (select id from stats$n order by id) where rownum <= 2 order by id desc"),
              ElementsAre("2", "1"));
  EXPECT_THAT(rows("select id, rownum from (select id from stats$n order by id desc) where rownum < 3"),
              ElementsAre("5|1", "4|2"));
}

TEST_F(OracleSemantics, rownumAboveOneIsNeverReached) {
  EXPECT_THAT(rows("select id from stats$n where rownum > 1"), IsEmpty());
  EXPECT_THAT(rows("select id from stats$n where rownum = 2"), IsEmpty());
  EXPECT_THAT(rows("select id from stats$n where rownum between 2 and 4"), IsEmpty());
  EXPECT_THAT(rows("select count(*) from stats$n where rownum >= 1"), ElementsAre("5"));
}

TEST_F(OracleSemantics, rownumBehindAnOrCountsTheRowsThatPass) {
  EXPECT_THAT(rows("select id from (select id from stats$n order by id) where rownum <= 2 or id = 5"),
              ElementsAre("1", "2", "5"));
  EXPECT_THAT(rows("select id, rownum from (select id from stats$n order by id) where id = 2 or id = 5"),
              ElementsAre("2|1", "5|2"));
}

TEST_F(OracleSemantics, rownumLimitsWhatIsGrouped) {
  EXPECT_THAT(rows("select count(*), max(id) from (select id from stats$n order by id) where rownum <= 3"),
              ElementsAre("3|3"));
  EXPECT_THAT(rows("select distinct instance_number from stats$keyed where rownum <= 2"), ElementsAre("1"));
}

TEST_F(OracleSemantics, rownumBoundIsAnyNumber) {
  EXPECT_THAT(rows("select count(*) from stats$n where rownum <= 2.5"), ElementsAre("2"));
  EXPECT_THAT(rows("select count(*) from stats$n where rownum < 2.5"), ElementsAre("2"));
  EXPECT_THAT(rows("select id from stats$n where rownum <= -1"), IsEmpty());
  EXPECT_THAT(rows("select id from stats$n where rownum <= null"), IsEmpty());
}

// ---- set operators ----

TEST_F(OracleSemantics, branchesSortTogetherByTheirNumbers) {
  const std::string both =
      "select id, v / 10 as q from stats$n union all select 6, to_number(null) from dual "
      "union all select 7, id / 1000 from stats$n where id = 5 order by q";
  EXPECT_THAT(rows(both), ElementsAre("3|-0.025", "7|0.005", "2|0.25", "5|0.9", "1|1", "4|-", "6|-"));
  EXPECT_THAT(
      rows("select id, w / 100 as q from stats$n union all select 6, id / 10 from stats$n where id = 1 "
           "union all select 7, 0 from dual order by q desc, 1"),
      ElementsAre("5|-", "6|0.1", "4|0.04", "3|0.03", "2|0.02", "1|0.01", "7|0"));
  EXPECT_THAT(rows("select w / 10 as q from stats$n union select id / 10 from stats$n order by 1 desc"),
              ElementsAre("-", "0.5", "0.4", "0.3", "0.2", "0.1"));
  EXPECT_THAT(rows("select v from stats$n minus select 2.5 from dual order by v desc"),
              ElementsAre("-", "10", "9", "-0.25"));
}

TEST_F(OracleSemantics, setOperatorsGoFromLeftToRight) {
  EXPECT_THAT(rows("select 1 x from dual union all select 2 from dual union all select 2 from dual "
                   "minus select 1 from dual order by 1"),
              ElementsAre("2"));
  EXPECT_THAT(rows("select id from stats$n minus (select 1 from dual union all select 2 from dual) "
                   "order by id desc"),
              ElementsAre("5", "4", "3"));
  EXPECT_THAT(
      rows("select q from (select id / 100 q from stats$n union all select 1.5 from dual order by q desc) "
           "where rownum <= 2"),
      ElementsAre("1.5", "0.05"));
}

// ---- joins ----

TEST_F(OracleSemantics, outerMarkKeepsTheRowsWithoutPartner) {
  const char* const both =
      "from stats$keyed b, stats$keyed e where b.snap_id(+) = 1 and e.snap_id = 2 "
      "and b.name(+) = e.name and b.dbid(+) = e.dbid";
  EXPECT_THAT(rows(std::string("select e.name, e.value - nvl(b.value, 0) ") + both + " order by 1"),
              ElementsAre("a|2", "b|0"));
  EXPECT_THAT(rows(std::string("select e.name ") + both + " and b.name is null"), ElementsAre("b"));
}

TEST_F(OracleSemantics, missingMarkMakesAnInnerJoin) {
  EXPECT_THAT(rows("select e.name from stats$keyed b, stats$keyed e where b.snap_id = 1 and e.snap_id = 2 "
                   "and b.name(+) = e.name"),
              ElementsAre("a"));
}

TEST_F(OracleSemantics, fullJoinKeepsBothSides) {
  EXPECT_THAT(rows("select a.id, b.id from (select id from stats$n where id < 3) a "
                   "full outer join (select id from stats$n where id in (2, 3)) b on a.id = b.id "
                   "order by a.id, b.id"),
              ElementsAre("1|-", "2|2", "-|3"));
}

// ---- text and NULL ----

TEST_F(OracleSemantics, charColumnsComparePaddedAndVarcharColumnsDoNot) {
  EXPECT_THAT(rows("select id from stats$n where c = 'ab' order by id"), ElementsAre("1", "2"));
  EXPECT_THAT(rows("select id from stats$n where c in ('ab   ', 'b') order by id"),
              ElementsAre("1", "2", "4"));
  EXPECT_THAT(rows("select id from stats$n where t = 'x '"), IsEmpty());
}

TEST_F(OracleSemantics, textSortsByItsBytes) {
  EXPECT_THAT(rows("select c from stats$n where id in (2, 3, 4) order by c"), ElementsAre("AB", "ab", "b"));
}

TEST_F(OracleSemantics, emptyTextIsNull) {
  EXPECT_THAT(rows("select count(*) from stats$n where t = '' or t <> ''"), ElementsAre("0"));
  EXPECT_THAT(rows("select trim('  '), '' || '', replace('a', 'a'), 'a' || null from dual"),
              ElementsAre("-|-|-|a"));
}

TEST_F(OracleSemantics, nullsTakeTheEndInWindowsToo) {
  EXPECT_THAT(rows("select id, row_number() over (order by v) from stats$n order by id"),
              ElementsAre("1|4", "2|2", "3|1", "4|5", "5|3"));
  EXPECT_THAT(rows("select id, first_value(id) over (order by v desc) from stats$n where id > 3 order by id"),
              ElementsAre("4|4", "5|4"));
}

TEST_F(OracleSemantics, ignoreNullsPassesOverThem) {
  EXPECT_THAT(
      rows("select id, last_value(v ignore nulls) over (order by id), "
           "first_value(w ignore nulls) over (order by id desc), lag(v ignore nulls) over (order by id), "
           "lead(v ignore nulls) over (order by id) from stats$n order by id"),
      ElementsAre("1|10|4|-|2.5", "2|2.5|4|10|-0.25", "3|-0.25|4|2.5|9", "4|-0.25|4|-0.25|9",
                  "5|9|-|-0.25|-"));
  EXPECT_THAT(rows("select id, first_value(v ignore nulls) over (order by id rows between 1 preceding and "
                   "current row) "
                   "from stats$n order by id"),
              ElementsAre("1|10", "2|10", "3|2.5", "4|-0.25", "5|9"));
}

TEST_F(OracleSemantics, distinctCountsInAWindow) {
  EXPECT_THAT(
      rows("select snap_id, count(distinct name) over (partition by snap_id) from stats$keyed order by 1"),
      ElementsAre("1|1", "2|2", "2|2"));
}

TEST_F(OracleSemantics, medianAndListOfAGroup) {
  EXPECT_THAT(rows("select median(v), median(w) from stats$n"), ElementsAre("5.75|2.5"));
  EXPECT_THAT(rows("select listagg(id, ',') within group (order by v desc, id) from stats$n"),
              ElementsAre("4,1,5,2,3"));
  EXPECT_THAT(rows("select listagg(t) within group (order by id) from stats$n"), ElementsAre("109x2.50"));
}

// ---- dates ----

TEST_F(OracleSemantics, datesDifferInDays) {
  EXPECT_THAT(
      rows("select e.d - b.d, (e.d - b.d) * 24 from stats$n b, stats$n e where b.id = 1 and e.id = 3"),
      ElementsAre("1|24"));
  EXPECT_THAT(rows("select e.d - b.d from stats$n b, stats$n e where b.id = 1 and e.id = 2"),
              ElementsAre("0.0416666666666666666666666666666666666667"));
  EXPECT_THAT(rows("select to_char(d + 1 / 24, 'HH24:MI:SS') from stats$n where id = 2"),
              ElementsAre("02:00:00"));
  EXPECT_THAT(rows("select max(d), min(d) from stats$n"), ElementsAre("02-JAN-20|31-DEC-19"));
}

// ---- the plan ----

TEST_F(OracleSemantics, lookUpByKeyUsesTheIndex) {
  // A table that is small fits one page, and reading that page is the best plan.
  conformance::TestTable table{"stats$keyed",
                               {{"DBID", "NUMBER"},
                                {"INSTANCE_NUMBER", "NUMBER"},
                                {"SNAP_ID", "NUMBER"},
                                {"NAME", "VARCHAR2"},
                                {"VALUE", "NUMBER"}},
                               {}};
  for (int i = 0; i < 3000; ++i)
    table.rows.push_back(
        {"1", "1", std::to_string(i / 30), "name " + std::to_string(i % 30), std::to_string(i)});
  writeRepository(folder_ / "large.sqlite", {table});
  LocalDatabase database(folder_ / "large.sqlite");
  for (const char* name : {"B1", "B2", "B3", "B4"}) database.parameters().Add(name, 0, 1);
  const auto connection = openRepositoryFile(folder_ / "large.sqlite");
  Evaluation evaluation;
  registerFunctions(connection.get(), evaluation);
  for (const char* sql :
       {"select value from stats$keyed where dbid = :B1 and instance_number = :B2 and snap_id = :B3",
        "select e.value - nvl(b.value, 0) from stats$keyed b, stats$keyed e where b.snap_id(+) = :B3 and "
        "e.snap_id = :B4 and b.dbid(+) = :B1 and e.dbid = :B1 and b.instance_number(+) = :B2 and "
        "e.instance_number = :B2 and b.name(+) = e.name",
        "select value from stats$keyed where dbid = :B1 and instance_number = :B2 and snap_id >= :B3 / 2"}) {
    const auto plan = prepare(connection.get(), "EXPLAIN QUERY PLAN " + database.loweredText(sql));
    std::string text;
    while (step(plan.get())) text += columnText(plan.get(), 3) + "\n";
    EXPECT_THAT(text, HasSubstr("SEARCH")) << sql;
    EXPECT_THAT(text, Not(HasSubstr("SCAN"))) << sql << "\n" << text;
  }
}

TEST_F(OracleSemantics, dateLiteralMayBearASign) {
  EXPECT_THAT(rows("select to_char(date '+2020-03-29', 'YYYY-MM-DD') from dual"),
              testing::ElementsAre("2020-03-29"));
}

TEST_F(OracleSemantics, dateLiteralOfADayThatIsNotIsRefusedWithItsPlace) {
  try {
    rows("select date '2013-02-29' from dual");
    FAIL() << "a day that is not was taken";
  } catch (const DatabaseError& error) {
    EXPECT_EQ(error.nativeCode(), 1839);
    EXPECT_THAT(error.what(), testing::HasSubstr("line 1, column 8"));
  }
}

TEST_F(OracleSemantics, whatAFunctionLacksIsRefusedByItsName) {
  try {
    rows("select to_char(1234.5, 'L9999D9') from dual");
    FAIL() << "a session's currency was taken";
  } catch (const DatabaseError& error) {
    EXPECT_EQ(error.sqlState(), "0A000");
    EXPECT_THAT(error.what(), testing::HasSubstr("not supported: the number format element L"));
  }
}

TEST_F(OracleSemantics, emptyEscapeOfLikeIsRefused) {
  try {
    rows("select 1 from dual where 'a' like 'a' escape ''");
    FAIL() << "no character was taken as one";
  } catch (const DatabaseError& error) {
    EXPECT_EQ(error.nativeCode(), 1425);
  }
}

}  // namespace
}  // namespace kestrelix::repository_file
