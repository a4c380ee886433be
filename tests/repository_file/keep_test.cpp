// KEEP (DENSE_RANK FIRST|LAST ...), worked out by hand.
#include <gmock/gmock.h>

#include "repository_file/employees.h"

namespace kestrelix::repository_file {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Keep : public Employees {};

TEST_F(Keep, errorsAreThoseOfTheServer) {
  EXPECT_THAT(failure("select max(sal) keep (rank first order by comm) from emp"), HasSubstr("ORA-00905"));
  EXPECT_THAT(failure("select max(sal) keep (dense_rank first) from emp"), HasSubstr("ORA-00905"));
  EXPECT_THAT(failure("select median(sal) keep (dense_rank first order by comm) from emp"),
              HasSubstr("ORA-00923"));
  EXPECT_THAT(failure("select max(sal) keep (dense_rank first order by comm) over (order by sal) from emp"),
              HasSubstr("ORA-30487"));
  EXPECT_THAT(failure("select max(sal) keep (dense_rank first order by max(comm)) from emp"),
              HasSubstr("ORA-00978"));
  EXPECT_THAT(failure("select ename, max(sal) keep (dense_rank first order by comm) from emp"),
              HasSubstr("ORA-00937"));
}

TEST_F(Keep, takesTheRowsOfTheFirstOrLastPlace) {
  EXPECT_THAT(
      rows("select deptno, min(sal) keep (dense_rank first order by hiredate), "
           "max(sal) keep (dense_rank last order by hiredate), "
           "max(ename) keep (dense_rank first order by sal desc) from emp group by deptno order by 1"),
      ElementsAre("10|2450|1300|KING", "20|800|1100|SCOTT", "30|1600|950|BLAKE"));
}

TEST_F(Keep, everyPeerOfThePlaceCounts) {
  // The highest salary of department 20 is 3000 twice, the second of two jobs has four rows.
  EXPECT_THAT(rows("select count(*) keep (dense_rank last order by sal), "
                   "sum(sal) keep (dense_rank last order by sal), "
                   "avg(empno) keep (dense_rank last order by sal), "
                   "variance(empno) keep (dense_rank last order by sal), "
                   "stddev(sal) keep (dense_rank last order by sal) from emp where deptno = 20"),
              ElementsAre("2|6000|7845|6498|0"));
}

TEST_F(Keep, nullTakesItsPlaceInTheOrder) {
  // NULL is the greatest: last of an ascending order, first of a descending one.
  EXPECT_THAT(rows("select count(*) keep (dense_rank last order by comm), "
                   "count(*) keep (dense_rank first order by comm desc), "
                   "max(comm) keep (dense_rank last order by comm nulls first), "
                   "max(comm) keep (dense_rank first order by comm desc nulls last), "
                   "count(*) keep (dense_rank first order by comm nulls first), "
                   "max(ename) keep (dense_rank first order by comm) from emp"),
              ElementsAre("10|10|1400|1400|10|TURNER"));
}

TEST_F(Keep, furtherKeysDecideAmongPeers) {
  EXPECT_THAT(rows("select max(ename) keep (dense_rank first order by deptno desc, sal, hiredate), "
                   "max(ename) keep (dense_rank last order by job, sal desc nulls last, empno), "
                   "max(ename) keep (dense_rank first order by comm desc, sal desc) from emp"),
              ElementsAre("JAMES|MARTIN|KING"));
}

TEST_F(Keep, valueMayBeNullInTheRowsThatAreKept) {
  EXPECT_THAT(rows("select max(comm) keep (dense_rank last order by sal), "
                   "count(comm) keep (dense_rank last order by sal), "
                   "sum(comm) keep (dense_rank last order by sal) from emp"),
              ElementsAre("-|0|-"));
}

TEST_F(Keep, brokenNumbersAreValuesAndKeys) {
  EXPECT_THAT(rows("select g, max(id) keep (dense_rank first order by v), "
                   "max(v) keep (dense_rank last order by v nulls first), "
                   "sum(v) keep (dense_rank first order by g), "
                   "min(v) keep (dense_rank first order by 1), "
                   "avg(v) keep (dense_rank last order by g) from readings group by g order by g"),
              ElementsAre("a|1|10|10.5|0.5|5.25", "b|4|0.5|-1.75|-2.25|-0.875"));
}

TEST_F(Keep, sameValueCountsOnceWithDistinct) {
  // Salesmen are the last job: 1600, 1250, 1250, 1500.
  EXPECT_THAT(rows("select count(distinct sal) keep (dense_rank last order by job), "
                   "sum(distinct sal) keep (dense_rank last order by job), "
                   "count(sal) keep (dense_rank last order by job) from emp"),
              ElementsAre("3|4350|4"));
}

TEST_F(Keep, emptyGroupIsThatOfTheAggregate) {
  EXPECT_THAT(rows("select count(*) keep (dense_rank first order by sal), "
                   "sum(sal) keep (dense_rank first order by sal), "
                   "max(ename) keep (dense_rank last order by sal) from emp where deptno = 40"),
              ElementsAre("0|-|-"));
  EXPECT_THAT(rows("select max(ename) keep (dense_rank last order by sal) from emp where deptno = 40 "
                   "group by deptno"),
              IsEmpty());
}

TEST_F(Keep, partitionHasItsOwnFirstRows) {
  EXPECT_THAT(rows("select ename, max(ename) keep (dense_rank first order by sal desc) over (partition by "
                   "deptno), min(sal) keep (dense_rank last order by hiredate) over () from emp "
                   "where job = 'CLERK' order by ename"),
              ElementsAre("ADAMS|ADAMS|1100", "JAMES|JAMES|1100", "MILLER|MILLER|1100", "SMITH|ADAMS|1100"));
}

TEST_F(Keep, groupsAreKeptByTheirAggregates) {
  EXPECT_THAT(rows("select max(deptno) keep (dense_rank first order by count(*) desc) over () from emp "
                   "group by deptno"),
              ElementsAre("30", "30", "30"));
}

TEST_F(Keep, pivotedRowsAloneCompeteForThePlace) {
  EXPECT_THAT(rows("select * from (select deptno, job, ename, sal from emp) pivot (max(ename) keep "
                   "(dense_rank first order by sal) for job in ('CLERK' c, 'MANAGER' m)) order by deptno"),
              ElementsAre("10|MILLER|CLARK", "20|SMITH|JONES", "30|JAMES|BLAKE"));
}

}  // namespace
}  // namespace kestrelix::repository_file
