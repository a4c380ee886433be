// ANY, SOME and ALL, with all three truth values.
#include <gmock/gmock.h>

#include "embedded/employees.h"

namespace kestrelix::embedded {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Quantified : public Employees {};

TEST_F(Quantified, anyIsTrueForOneRow) {
  EXPECT_THAT(
      rows("select ename from emp where sal > any (select sal from emp where deptno = 10) and sal < 2500 "
           "order by ename"),
      ElementsAre("ALLEN", "CLARK", "TURNER"));
  EXPECT_THAT(rows("select ename from emp where sal > some (2900, 4000) order by ename"),
              ElementsAre("FORD", "JONES", "KING", "SCOTT"));
}

TEST_F(Quantified, allIsTrueForEveryRow) {
  EXPECT_THAT(rows("select ename from emp where sal >= all (select sal from emp)"), ElementsAre("KING"));
  EXPECT_THAT(
      rows("select ename from emp e where sal >= all (select sal from emp x where x.deptno = e.deptno) "
           "order by ename"),
      ElementsAre("BLAKE", "FORD", "KING", "SCOTT"));
}

TEST_F(Quantified, emptyListIsTrueForAllAndFalseForAny) {
  EXPECT_THAT(rows("select count(*) from emp where sal > all (select sal from emp where deptno = 40)"),
              ElementsAre("14"));
  EXPECT_THAT(rows("select count(*) from emp where sal > any (select sal from emp where deptno = 40)"),
              ElementsAre("0"));
  EXPECT_THAT(rows("select count(*) from emp where not sal > any (select sal from emp where deptno = 40)"),
              ElementsAre("14"));
}

TEST_F(Quantified, nullLeavesItUnknownUnlessARowDecides) {
  // The commissions are 0, 300, 500, 1400 and NULL.
  EXPECT_THAT(rows("select count(*) from emp where sal > all (select comm from emp)"), ElementsAre("0"));
  EXPECT_THAT(rows("select count(*) from emp where not sal > all (select comm from emp)"), ElementsAre("6"));
  EXPECT_THAT(rows("select count(*) from emp where comm > any (select comm from emp)"), ElementsAre("3"));
  EXPECT_THAT(rows("select count(*) from emp where not comm > any (select comm from emp)"), ElementsAre("0"));
  EXPECT_THAT(rows("select count(*) from emp where not sal < any (null, 100)"), ElementsAre("0"));
}

TEST_F(Quantified, aggregatesCompareWithThoseOfAllGroups) {
  EXPECT_THAT(rows("select deptno from emp group by deptno having sum(sal) >= all (select sum(sal) from emp "
                   "group by deptno)"),
              ElementsAre("20"));
  EXPECT_THAT(
      rows("select job, case when avg(sal) > any (select sal from emp where job = 'MANAGER') then 'x' end "
           "from emp where deptno < 30 group by job order by job"),
      ElementsAre("ANALYST|x", "CLERK|-", "MANAGER|x", "PRESIDENT|x"));
  EXPECT_THAT(failure("select 1 from emp having max(sal) > all (select sal from emp)"),
              HasSubstr("not supported: an aggregate of all rows against ANY or ALL"));
  EXPECT_THAT(failure("select case when max(sal) over () > all (select sal from emp) then 1 end from emp"),
              HasSubstr("not supported: a window against ANY or ALL"));
}

TEST_F(Quantified, rowsAreEqualToAny) {
  EXPECT_THAT(rows("select ename from emp where (deptno, sal) = any (select deptno, max(sal) from emp "
                   "group by deptno) order by ename"),
              ElementsAre("BLAKE", "FORD", "KING", "SCOTT"));
  EXPECT_THAT(rows("select distinct deptno from emp where deptno <> all (select deptno from emp where job = "
                   "'ANALYST') order by 1"),
              ElementsAre("10", "30"));
}

TEST_F(Quantified, numbersAndTextConvertAsInAnyComparison) {
  EXPECT_THAT(rows("select id from readings where v > any (select '9' from dual) order by id"),
              ElementsAre("2"));
  EXPECT_THAT(rows("select id from readings where v <= all (select v from readings where v is not null)"),
              ElementsAre("4"));
  EXPECT_THAT(rows("select id from readings where g > all (select g from readings) "), IsEmpty());
}

}  // namespace
}  // namespace kestrelix::embedded
