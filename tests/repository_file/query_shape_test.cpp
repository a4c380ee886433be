// The shape of queries: blocks inside each other, what belongs to which, and how large they may be. Worked
// out by hand.
#include <gmock/gmock.h>

#include "repository_file/employees.h"

namespace kestrelix::repository_file {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class QueryShape : public Employees {
 protected:
  /// `text` so many times with `between` between.
  static std::string repeated(int times, const std::string& text, const std::string& between) {
    std::string all;
    for (int i = 0; i < times; ++i) all += (i ? between : "") + text;
    return all;
  }
};

// ---- blocks and what belongs to them ----

TEST_F(QueryShape, aggregateBelongsToTheBlockThatItStandsIn) {
  EXPECT_THAT(rows("select id, (select max(r.g) from dual) from readings r order by id"),
              ElementsAre("1|a", "2|a", "3|a", "4|b", "5|b"));
  EXPECT_THAT(rows("select id, (select count(r.v) from emp) from readings r order by id"),
              ElementsAre("1|14", "2|14", "3|0", "4|14", "5|14"));
  EXPECT_THAT(
      rows("select id from readings r where 14 * id = (select sum(r.id) from emp having max(r.id) > 3) "
           "order by id"),
      ElementsAre("4", "5"));
  EXPECT_THAT(rows("select id, (select sum(max(r.id)) from emp group by deptno) from readings r order by id"),
              ElementsAre("1|3", "2|6", "3|9", "4|12", "5|15"));
  EXPECT_THAT(
      rows("select id, (select max(r.id) from emp where rownum < 3 or ename = 'KING') from readings r "
           "where id < 3 order by id"),
      ElementsAre("1|1", "2|2"));
}

TEST_F(QueryShape, rownumStartsAnewForEachRowAround) {
  EXPECT_THAT(
      rows("select id, (select count(*) from emp where rownum <= 2 or ename = 'nobody') from readings "
           "order by id"),
      ElementsAre("1|2", "2|2", "3|2", "4|2", "5|2"));
  // In the order of the names ADAMS and ALLEN come first; the others pass by their salaries.
  EXPECT_THAT(rows("select id, (select count(*) from (select * from emp order by ename) e "
                   "where rownum <= 2 or e.sal = 1000 * r.id) from readings r order by id"),
              ElementsAre("1|2", "2|2", "3|4", "4|2", "5|3"));
  EXPECT_THAT(
      rows("select id from readings r where exists (select 1 from emp where rownum >= r.id and rownum < 2) "
           "order by id"),
      ElementsAre("1"));
}

TEST_F(QueryShape, namedQueryHidesATableOnlyWhereItIsNamed) {
  EXPECT_THAT(
      rows("with emp as (select ename, sal from emp where sal >= 3000) select ename from emp order by 1"),
      ElementsAre("FORD", "KING", "SCOTT"));
  EXPECT_THAT(
      rows("select e.n, count(*) from (with emp as (select 7 as n from dual) select n from emp) e, emp "
           "group by e.n"),
      ElementsAre("7|14"));
  EXPECT_THAT(
      rows("with emp as (select 1 as n from dual) select n, count(*) from emp, perfstat.emp e group by n"),
      ElementsAre("1|14"));
}

TEST_F(QueryShape, orderOfNestedAggregatesChangesNothing) {
  EXPECT_THAT(
      rows("select max(sum(sal)), min(count(*)) from emp group by deptno order by 1, max(sum(sal)) desc"),
      ElementsAre("10875|3"));
}

TEST_F(QueryShape, constantsGroupAndSortNothing) {
  for (const char* key : {"1", "-1", "+1", "- - 7", "-(2), 3", "1 + 0", "'x'", "null"})
    EXPECT_THAT(rows(std::string("select count(*) from emp group by ") + key), ElementsAre("14")) << key;
  EXPECT_THAT(rows("select g, count(*) from readings group by rollup(g), -1 order by g"),
              ElementsAre("a|3", "b|2", "-|5"));
  EXPECT_THAT(rows("select id from (select id from readings order by id) order by -1"),
              ElementsAre("1", "2", "3", "4", "5"));
}

// ORA-01791 in Oracle's error help: the items of ORDER BY beside DISTINCT are constants, expressions of the
// select list, or expressions whose operands are such.
TEST_F(QueryShape, distinctRowsSortByWhatIsComputedFromThem) {
  EXPECT_THAT(rows("select distinct deptno from emp order by -deptno"), ElementsAre("30", "20", "10"));
  EXPECT_THAT(rows("select distinct deptno / 10 as d, job from emp where job <> 'CLERK' order by 5 - d, "
                   "length(job), 'x', job"),
              ElementsAre("3|MANAGER", "3|SALESMAN", "2|ANALYST", "2|MANAGER", "1|MANAGER", "1|PRESIDENT"));
  EXPECT_THAT(rows("select distinct count(*) from emp group by deptno order by 10 / count(*)"),
              ElementsAre("6", "5", "3"));
  for (const char* order : {"sal", "deptno + sal", "count(*) over ()", "rownum", "(select 1 from dual)"})
    EXPECT_THAT(failure(std::string("select distinct deptno from emp order by ") + order),
                HasSubstr("ORA-01791"));
}

TEST_F(QueryShape, rowEqualsTheOnlyRowOfAQuery) {
  EXPECT_THAT(rows("select ename from emp where (deptno, sal) = (select 10, max(sal) from emp)"),
              ElementsAre("KING"));
  EXPECT_THAT(
      rows("select id from readings r where (v, g) = (select max(x.v), r.g from readings x where x.g = r.g) "
           "order by id"),
      ElementsAre("2", "5"));
  EXPECT_THAT(rows("select id from readings where (id, v) <> (select 2, 10 from dual) order by id"),
              ElementsAre("1", "3", "4", "5"));
  EXPECT_THAT(rows("select id from readings where (id, v) <> (select 3, 10 from dual) order by id"),
              ElementsAre("1", "2", "4", "5"));
  EXPECT_THAT(rows("select id from readings where (id, v) <> (select 3, 10 from dual where 1 = 0)"),
              IsEmpty());
  EXPECT_THAT(failure("select id from readings where (id, v) = (select id, v from readings)"),
              HasSubstr("ORA-01427"));
  EXPECT_THAT(failure("select id from readings where (id, v) = (select 1, 2, 3 from dual)"),
              HasSubstr("ORA-00913"));
}

TEST_F(QueryShape, comparisonsWithAnyAndAllAreRefusedByName) {
  for (const char* word : {"any", "some", "all"})
    EXPECT_THAT(failure(std::string("select id from readings where id > ") + word + " (select 1 from dual)"),
                HasSubstr("not supported: a comparison with ANY, SOME or ALL"));
}

TEST_F(QueryShape, mergedColumnHasNoQualifier) {
  EXPECT_THAT(failure("select e.deptno from emp e join emp f using (deptno)"),
              HasSubstr("ORA-25154: column part of USING clause cannot have qualifier"));
  EXPECT_THAT(failure("select id from readings natural join (select id from readings) x"),
              HasSubstr("not supported: NATURAL JOIN"));
}

// ---- sizes ----

TEST_F(QueryShape, longChainsOfOneOperatorRun) {
  const auto value = [&](const std::string& expression) {
    return rows("select " + expression + " from readings where id = 1");
  };
  EXPECT_THAT(value(repeated(1000, "v", " + ")), ElementsAre("500"));
  EXPECT_THAT(value(repeated(1000, "nvl(v * 2, 7)", "-")), ElementsAre("-998"));
  EXPECT_THAT(value("1" + repeated(500, "", " * v * 2")), ElementsAre("1"));
  EXPECT_THAT(value("length(" + repeated(1000, "g", "||") + ")"), ElementsAre("1000"));
  EXPECT_THAT(value("length(" + repeated(1000, "null", "||") + ")"), ElementsAre("-"));
  const auto count = [&](const std::string& condition) {
    return rows("select count(*) from readings where " + condition);
  };
  EXPECT_THAT(count(repeated(2000, "id > 1", " and ")), ElementsAre("4"));
  EXPECT_THAT(count(repeated(2000, "v = 10", " or ")), ElementsAre("1"));
  EXPECT_THAT(count("(id, g) in (" + repeated(2000, "(2, 'a')", ", ") + ")"), ElementsAre("1"));
}

TEST_F(QueryShape, longChainGoesFromLeftToRight) {
  // 1 + 1 - 2 * 3 / 2 - 4 + 5 * 2 - 6 + 7 + 8 - 9 = 5
  EXPECT_THAT(rows("select id + 1 - 2 * 3 / 2 - 4 + 5 * 2 - 6 + 7 + 8 - 9 from readings where id = 1"),
              ElementsAre("5"));
  EXPECT_THAT(rows("select 1 - 1 - 1 - 1 - 1 - 1 - 1 - 1 - 1 - 1 - v from readings order by id"),
              ElementsAre("-8.5", "-18", "-", "-5.75", "-8.5"));
  EXPECT_THAT(
      failure("select 1 + 1 + 1 + 1 + 1 + 1 + 1 + 1 +\n1 / (v - v) + null from readings where id = 1"),
      HasSubstr("line 2, column 3"));
  EXPECT_THAT(rows("select null + 1 + 1 + 1 + 1 + 1 + 1 + 1 + 1 + 1 / 1 from dual"), ElementsAre("-"));
}

TEST_F(QueryShape, choicesInsideEachOtherRun) {
  std::string decode = "'none'";
  std::string searched = "'none'";
  std::string nvl = "'none'";
  for (int i = 150; i > 0; --i) {
    const std::string n = std::to_string(i);
    decode = "decode(id, " + n + ", '" + n + "', " + decode + ")";
    searched = "case when id * 50 = " + n + " then '" + n + "' else " + searched + " end";
    nvl = "nvl(null, " + nvl + ")";
  }
  EXPECT_THAT(rows("select " + decode + ", " + searched + ", " + nvl + " from readings order by id"),
              ElementsAre("1|50|none", "2|100|none", "3|150|none", "4|none|none", "5|none|none"));
  EXPECT_THAT(rows("select coalesce(null, " + repeated(500, "v", ", ") + ", 3), greatest(" +
                   repeated(500, "id", ", ") + ", 4), least(" + repeated(500, "4", ", ") +
                   ", v) from readings "
                   "order by id"),
              ElementsAre("0.5|4|0.5", "10|4|4", "3|4|-", "-2.25|4|-2.25", "0.5|5|0.5"));
}

TEST_F(QueryShape, queriesInsideEachOtherRun) {
  std::string view = "select id, v from readings";
  for (int i = 0; i < 60; ++i)
    view = "select id, v from (" + view + " order by id desc) where rownum <= 3 or id = 1";
  EXPECT_THAT(rows(view), ElementsAre("5|0.5", "4|-2.25", "3|-", "1|0.5"));
  std::string scalar = "select max(id) from readings";
  for (int i = 0; i < 60; ++i) scalar = "select (" + scalar + ") from dual";
  EXPECT_THAT(rows(scalar), ElementsAre("5"));
  std::string member = "select 3 from dual";
  for (int i = 0; i < 60; ++i) member = "select id from readings where id in (" + member + ")";
  EXPECT_THAT(rows(member), ElementsAre("3"));
}

TEST_F(QueryShape, manyBranchesRun) {
  std::string all;
  for (int i = 0; i < 1200; ++i)
    all += (i ? " union all " : "") + ("select " + std::to_string(i) + " n from dual");
  EXPECT_THAT(rows("select count(*), max(n) from (" + all + ")"), ElementsAre("1200|1199"));
  EXPECT_EQ(rows(all + " order by n desc").front(), "1199");
  EXPECT_THAT(rows(all + " minus select n from (" + all + ") where n <> 7"), ElementsAre("7"));
}

TEST_F(QueryShape, whatIsTooMuchForSqliteIsNotSupported) {
  const auto failing = HasSubstr("not supported: a statement of this size");
  std::string deep = "v";
  for (int i = 0; i < 60; ++i) deep = "abs(" + deep + ")";
  EXPECT_THAT(failure("select " + deep + " from readings"), failing);
  EXPECT_THAT(failure("select " + repeated(2001, "id", ", ") + " from readings"), failing);
  EXPECT_THAT(failure("select count(*) from " + repeated(65, "readings", ", ")), failing);
}

// https://docs.oracle.com/en/error-help/db/ora-01795
TEST_F(QueryShape, listOfMoreThanAThousandValuesIsRefused) {
  EXPECT_THAT(rows("select count(*) from emp where deptno in (" + repeated(1000, "10", ", ") + ")"),
              ElementsAre("3"));
  EXPECT_THAT(failure("select count(*) from emp where deptno in (" + repeated(1001, "10", ", ") + ")"),
              HasSubstr("ORA-01795: maximum number of expressions in a list is 1000"));
}

}  // namespace
}  // namespace kestrelix::repository_file
