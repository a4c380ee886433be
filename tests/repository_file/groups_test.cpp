// Groups that are rows themselves: ROLLUP, and aggregates over aggregates.
#include <gmock/gmock.h>

#include "repository_file/employees.h"

namespace kestrelix::repository_file {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Groups : public Employees {};

// An "Aggregating over zero rows" is told by R. van Wijk, 2010: a GROUP BY of no row has no group, not even
// that of the empty set.
TEST_F(Groups, noRowIsNoGroupOfAnyGrouping) {
  EXPECT_THAT(rows("select count(*) from emp where deptno = 40 group by ()"), IsEmpty());
  EXPECT_THAT(rows("select deptno, count(*) from emp where deptno = 40 group by rollup(deptno)"), IsEmpty());
  EXPECT_THAT(rows("select count(*) from emp group by ()"), ElementsAre("14"));
}

TEST_F(Groups, rollupTotalsFromTheRight) {
  EXPECT_THAT(rows("select deptno, job, sum(sal), count(*) from emp where deptno < 30 "
                   "group by rollup(deptno, job) order by deptno, job"),
              ElementsAre("10|CLERK|1300|1", "10|MANAGER|2450|1", "10|PRESIDENT|5000|1", "10|-|8750|3",
                          "20|ANALYST|6000|2", "20|CLERK|1900|2", "20|MANAGER|2975|1", "20|-|10875|5",
                          "-|-|19625|8"));
}

TEST_F(Groups, compositeKeysRollUpTogether) {
  EXPECT_THAT(rows("select deptno, job, count(*) from emp where deptno = 10 group by rollup((deptno, job)) "
                   "order by job"),
              ElementsAre("10|CLERK|1", "10|MANAGER|1", "10|PRESIDENT|1", "-|-|3"));
}

TEST_F(Groups, plainKeysStandInEveryGrouping) {
  EXPECT_THAT(rows("select deptno, job, count(*) from emp where job in ('CLERK', 'MANAGER') and deptno < 30 "
                   "group by deptno, rollup(job) order by 1, 2"),
              ElementsAre("10|CLERK|1", "10|MANAGER|1", "10|-|2", "20|CLERK|2", "20|MANAGER|1", "20|-|3"));
}

TEST_F(Groups, groupingTellsATotalFromAKeyThatIsNull) {
  // KING has no manager.
  EXPECT_THAT(rows("select mgr, grouping(mgr), count(*) from emp where deptno = 10 group by rollup(mgr) "
                   "order by 2, 1"),
              ElementsAre("7782|0|1", "7839|0|1", "-|0|1", "-|1|3"));
  EXPECT_THAT(rows("select decode(grouping(deptno), 1, 'all', deptno) d, sum(sal) from emp "
                   "group by rollup(deptno) having grouping(deptno) = 1 or sum(sal) > 9000 order by 2"),
              ElementsAre("30|9400", "20|10875", "all|29025"));
}

TEST_F(Groups, groupingInOrderByTakesANameOfTheSelectList) {
  EXPECT_THAT(
      rows("select deptno, count(*) from emp group by rollup(deptno) order by grouping(deptno) desc, deptno"),
      ElementsAre("-|14", "10|3", "20|5", "30|6"));
  // As told at sqlsnippets.com, topic 13138.
  EXPECT_THAT(
      failure("select decode(grouping(deptno), 1, 'all', deptno) deptno from emp group by rollup(deptno) "
              "order by grouping(deptno)"),
      HasSubstr("ORA-00979"));
}

TEST_F(Groups, equalGroupingsComeTwice) {
  EXPECT_THAT(
      rows("select deptno, count(*) from emp where deptno < 30 group by deptno, rollup(deptno) order by 1"),
      ElementsAre("10|3", "10|3", "20|5", "20|5"));
}

TEST_F(Groups, cubesAndSetsAreRefusedByName) {
  EXPECT_THAT(failure("select deptno, count(*) from emp group by cube(deptno, job)"),
              HasSubstr("not supported: CUBE"));
  EXPECT_THAT(failure("select deptno, count(*) from emp group by grouping sets (deptno, ())"),
              HasSubstr("not supported: GROUPING SETS"));
  EXPECT_THAT(failure("select deptno, grouping_id(deptno) from emp group by rollup(deptno)"),
              HasSubstr("not supported: function GROUPING_ID"));
}

// As told at sqlsnippets.com, topic 13126: a constant of the list that a grouping leaves out is NULL there.
TEST_F(Groups, constantThatGroupsIsNullWhereItIsLeftOut) {
  EXPECT_THAT(rows("select deptno, nvl2(0, 'there', 'gone'), count(*) from emp where deptno = 10 "
                   "group by rollup(deptno, 0) order by 1, 2"),
              ElementsAre("10|gone|3", "10|there|3", "-|gone|3"));
}

TEST_F(Groups, expressionThatGroupsIsNullInItsTotal) {
  EXPECT_THAT(rows("select to_char(trunc(hiredate, 'YYYY'), 'YYYY') y, count(*) from emp "
                   "group by rollup(trunc(hiredate, 'YYYY')) order by 1"),
              ElementsAre("1980|1", "1981|10", "1982|1", "1987|2", "-|14"));
  // Inside an aggregate it keeps its value.
  EXPECT_THAT(rows("select deptno, max(deptno), count(deptno) from emp group by rollup(deptno) order by 1"),
              ElementsAre("10|10|3", "20|20|5", "30|30|6", "-|30|14"));
}

TEST_F(Groups, windowsSeeTheRowsOfAllGroupings) {
  EXPECT_THAT(rows("select deptno, sum(sal), rank() over (partition by grouping(deptno) order by sum(sal) "
                   "desc) r from emp group by rollup(deptno) order by deptno"),
              ElementsAre("10|8750|3", "20|10875|1", "30|9400|2", "-|29025|1"));
}

TEST_F(Groups, subqueriesReadTheColumnsThatGroup) {
  EXPECT_THAT(rows("select deptno, (select count(*) from emp x where x.deptno > e.deptno) n from emp e "
                   "group by rollup(deptno) order by 1"),
              ElementsAre("10|11", "20|6", "30|0", "-|0"));
  EXPECT_THAT(rows("select x.deptno, (select max(sum(sal)) from emp e where e.deptno <> x.deptno "
                   "group by rollup(e.deptno, e.job)) m from emp x where x.job = 'MANAGER' order by 1"),
              ElementsAre("10|20275", "20|18150", "30|19625"));
}

TEST_F(Groups, rownumCountsBeforeTheGrouping) {
  EXPECT_THAT(rows("select deptno, count(*) from (select * from emp order by empno) where rownum <= 5 "
                   "group by rollup(deptno) order by 1"),
              ElementsAre("20|2", "30|3", "-|5"));
}

TEST_F(Groups, viewOfARollupIsFilteredBehindIt) {
  EXPECT_THAT(rows("select * from (select deptno, job, sum(sal) s from emp group by rollup(deptno, job)) "
                   "where deptno = 10 order by job"),
              ElementsAre("10|CLERK|1300", "10|MANAGER|2450", "10|PRESIDENT|5000", "10|-|8750"));
}

TEST_F(Groups, aggregatesFoldTheGroups) {
  // 3, 5 and 6 rows in the departments 10, 20 and 30.
  EXPECT_THAT(rows("select max(deptno * count(*)), sum(count(*)), count(count(*)) from emp group by deptno "
                   "having count(*) > 3 order by 1"),
              ElementsAre("180|11|2"));
  EXPECT_THAT(rows("select max(deptno) keep (dense_rank first order by count(*)) from emp group by deptno"),
              ElementsAre("10"));
  EXPECT_THAT(rows("select listagg(deptno, ',') within group (order by sum(sal)) from emp group by deptno"),
              ElementsAre("10,30,20"));
  EXPECT_THAT(rows("select sum(sum(sal)) from emp group by rollup(deptno)"), ElementsAre("58050"));
  EXPECT_THAT(rows("select sum(count(*)), max(sum(sal)) from emp where deptno = 40 group by deptno"),
              ElementsAre("-|-"));
}

TEST_F(Groups, rownumAmongWhatGroupsSeveralTimesIsRefusedByName) {
  EXPECT_THAT(failure("select count(*) from emp group by rollup(rownum)"),
              HasSubstr("not supported: ROWNUM in this place"));
}

}  // namespace
}  // namespace kestrelix::repository_file
