// Windows: frames by distance, other rows with IGNORE NULLS, DISTINCT, shares. Worked out by hand.
#include <gmock/gmock.h>

#include "repository_file/employees.h"

namespace kestrelix::repository_file {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class Windows : public Employees {};

TEST_F(Windows, offsetThatIsNoneIsRefused) {
  for (const char* call :
       {"sum(sal) over (order by sal rows -1 preceding)", "sum(sal) over (order by sal range -0.5 preceding)",
        "sum(sal) over (order by sal rows :minus preceding)", "lag(sal, -1) over (order by sal)",
        "lead(sal, :minus) over (order by sal)", "ntile(0) over (order by sal)",
        "nth_value(sal, 0) over (order by sal)", "lag(sal, 0) ignore nulls over (order by sal)"}) {
    if (!database_->parameters().find("MINUS")) database_->parameters().Add("MINUS", -1, 1);
    EXPECT_THAT(failure("select " + std::string(call) + " from emp"), HasSubstr("ORA-01428")) << call;
  }
  EXPECT_THAT(failure("select sum(sal) over (order by sal range 1/0 preceding) from emp"),
              HasSubstr("ORA-01476"));
}

TEST_F(Windows, offsetThatCannotBeServedIsRefusedByName) {
  for (const char* call :
       {"sum(sal) over (order by sal range comm preceding)",
        "sum(sal) over (order by sal rows comm preceding)", "sum(sal) over (order by sal rows 1.5 preceding)",
        "sum(sal) over (order by 1 range 1 preceding)", "sum(sal) over (order by ename range 1 preceding)",
        "nth_value(sal, empno) over (order by sal)", "lag(sal, empno) ignore nulls over (order by sal)",
        "ntile(deptno) over (partition by deptno order by sal)"})
    EXPECT_THAT(failure("select " + std::string(call) + " from emp"), HasSubstr("not supported: ")) << call;
  EXPECT_THAT(failure("select sum(v) over (order by v range 1 preceding) from readings"),
              HasSubstr("not supported: RANGE with an offset over a key"));
}

TEST_F(Windows, rangeTakesInWhatIsNoFurtherThanItsOffset) {
  // 800 950 1100 1250 1250 1300 1500 1600 2450 2850 2975 3000 3000 5000.
  EXPECT_THAT(rows("select sal, count(*) over (order by sal range between 50 preceding and 50 following) n, "
                   "sum(sal) over (order by sal range 150 preceding) s, "
                   "count(*) over (order by sal desc range between 25 following and 150 following) f, "
                   "count(*) over (order by sal range between unbounded preceding and 150 preceding) u "
                   "from emp where job <> 'SALESMAN' order by sal, empno"),
              ElementsAre("800|1|800|0|0", "950|1|1750|1|1", "1100|1|2050|1|2", "1300|1|1300|0|3",
                          "2450|1|2450|0|4", "2850|1|2850|0|5", "2975|3|5825|1|5", "3000|3|11825|2|6",
                          "3000|3|11825|2|6", "5000|1|5000|0|9"));
}

TEST_F(Windows, brokenDistanceBetweenWholeKeysIsExact) {
  EXPECT_THAT(
      rows("select sal, count(*) over (order by sal range between 24.5 preceding and 25.5 following), "
           "count(*) over (order by sal range between 24.5 following and 25.5 following) "
           "from emp where sal between 2900 and 3000 order by sal"),
      ElementsAre("2975|3|2", "3000|2|0", "3000|2|0"));
}

TEST_F(Windows, rangeOverDatesCountsDays) {
  EXPECT_THAT(rows("select ename, count(*) over (order by hiredate range between 21 preceding and 14 + 7 "
                   "following) n from emp where deptno = 30 order by hiredate"),
              ElementsAre("ALLEN|2", "WARD|2", "BLAKE|1", "TURNER|2", "MARTIN|2", "JAMES|1"));
  // An hour is a broken number of days, and yet 3600 seconds.
  EXPECT_THAT(
      rows("select to_char(d, 'HH24:MI:SS'), count(*) over (order by d range 1 / 24 preceding) n from "
           "(select hiredate + 1 / 24 d from emp where empno = 7369 union all "
           "select hiredate from emp where empno = 7369 union all "
           "select hiredate + 3601 / 86400 from emp where empno = 7369) order by 1"),
      ElementsAre("00:00:00|1", "01:00:00|2", "01:00:01|2"));
}

TEST_F(Windows, nullKeysAreARangeOfTheirOwn) {
  // 0 300 500 1400 and ten NULLs.
  EXPECT_THAT(
      rows("select distinct comm, count(*) over (order by comm range between 300 preceding and 300 "
           "following) a, "
           "count(*) over (order by comm desc range 300 preceding) b, "
           "count(*) over (order by comm nulls first range between unbounded preceding and 300 preceding) c, "
           "count(*) over (order by comm range between 1 preceding and unbounded following) d "
           "from emp order by comm"),
      ElementsAre("0|2|2|10|14", "300|3|2|11|13", "500|2|1|11|12", "1400|1|1|13|11", "-|10|10|10|10"));
}

TEST_F(Windows, offsetOfAFrameMayBeABind) {
  database_->parameters().Add("N", 2, 1);
  EXPECT_THAT(
      rows("select ename, count(*) over (order by hiredate range :n preceding) a, "
           "sum(sal) over (order by empno rows between :n preceding and :n preceding) b "
           "from emp where deptno = 30 order by empno"),
      ElementsAre("ALLEN|1|-", "WARD|2|-", "MARTIN|1|1600", "BLAKE|1|1250", "TURNER|1|1250", "JAMES|1|2850"));
}

TEST_F(Windows, shiftsPassOverSeveralNulls) {
  EXPECT_THAT(rows("select ename, lag(comm, 2) ignore nulls over (order by empno) a, "
                   "lead(comm ignore nulls, 2, -1) over (order by empno) b, "
                   "lag(comm, 1, 7) ignore nulls over (order by empno) c from emp where empno < 7850 "
                   "order by empno"),
              ElementsAre("SMITH|-|500|7", "ALLEN|-|1400|7", "WARD|-|0|300", "JONES|300|0|500",
                          "MARTIN|300|-1|500", "BLAKE|500|-1|1400", "CLARK|500|-1|1400", "SCOTT|500|-1|1400",
                          "KING|500|-1|1400", "TURNER|500|-1|1400"));
}

TEST_F(Windows, shiftMayDifferFromRowToRow) {
  EXPECT_THAT(rows("select sal, lag(sal, rownum - 1, -1) over (order by sal) from (select sal from emp "
                   "where deptno = 10 order by sal) order by sal"),
              ElementsAre("1300|1300", "2450|1300", "5000|1300"));
}

TEST_F(Windows, nthValueOfAFrame) {
  EXPECT_THAT(
      rows("select ename, nth_value(comm, 2) ignore nulls over (order by empno rows between unbounded "
           "preceding and unbounded following) a, nth_value(ename, 2) over (order by empno) b, "
           "nth_value(comm, 2) ignore nulls over (order by empno) c from emp where deptno = 30 "
           "order by empno"),
      ElementsAre("ALLEN|500|-|-", "WARD|500|WARD|500", "MARTIN|500|WARD|500", "BLAKE|500|WARD|500",
                  "TURNER|500|WARD|500", "JAMES|500|WARD|500"));
}

TEST_F(Windows, distinctValuesOfAPartition) {
  EXPECT_THAT(rows("select distinct deptno, sum(distinct sal) over (partition by deptno) s, "
                   "avg(distinct deptno) over () a, max(distinct sal) over (partition by deptno) m, "
                   "count(distinct job) over (partition by deptno) c from emp order by 1"),
              ElementsAre("10|8750|20|5000|3", "20|7875|20|3000|3", "30|8150|20|2850|3"));
  EXPECT_THAT(rows("select g, sum(distinct v) over () s, count(distinct v) over (partition by g) c "
                   "from readings order by id"),
              ElementsAre("a|8.25|2", "a|8.25|2", "a|8.25|2", "b|8.25|2", "b|8.25|2"));
}

TEST_F(Windows, listAndMedianOfAPartition) {
  EXPECT_THAT(rows("select distinct deptno, listagg(ename, ',') within group (order by sal desc, ename) over "
                   "(partition by deptno) l, median(sal) over (partition by deptno) m from emp order by 1"),
              ElementsAre("10|KING,CLARK,MILLER|2450", "20|FORD,SCOTT,JONES,ADAMS,SMITH|2975",
                          "30|BLAKE,ALLEN,TURNER,MARTIN,WARD,JAMES|1375"));
}

// The Oracle SQL reference: LISTAGG gives a VARCHAR2, of 4000 bytes at most.
TEST_F(Windows, listBeyond4000BytesFails) {
  EXPECT_THAT(rows("select length(listagg(rpad('x', 1000), '') within group (order by null)) from emp "
                   "where rownum <= 4"),
              ElementsAre("4000"));
  EXPECT_THAT(failure("select listagg(rpad('x', 1000), ',') within group (order by null) from emp "
                      "where rownum <= 4"),
              HasSubstr("ORA-01489: result of string concatenation is too long"));
}

TEST_F(Windows, medianOfDatesLiesHalfwayBetween) {
  // Of department 30: 20 and 22 FEB, 1 MAY, 8 and 28 SEP, 3 DEC; from 1 MAY to 8 SEP are 130 days.
  EXPECT_THAT(
      rows("select deptno, to_char(median(hiredate), 'YYYY-MM-DD') from emp group by deptno order by 1"),
      ElementsAre("10|1981-11-17", "20|1981-12-03", "30|1981-07-05"));
}

TEST_F(Windows, deviationsAreThoseOfASample) {
  // 1, 2, 3, 4: the squares about 2.5 are 5; 1 and 2: half a square.
  EXPECT_THAT(rows("select variance(id), round(stddev(id), 9) from readings where id < 5"),
              ElementsAre("1.66666666666666666666666666666666666667|1.290994449"));
  EXPECT_THAT(rows("select round(stddev(id) over (order by id), 6) from readings where id < 4 order by id"),
              ElementsAre("0", "0.707107", "1"));
}

TEST_F(Windows, sharesOfAPartition) {
  // The published example of CUME_DIST: five purchase clerks of 2500, 2600, 2800, 2900 and 3100 have .2 to 1.
  EXPECT_THAT(
      rows("select sal, cume_dist() over (order by sal) c, percent_rank() over (order by sal) p, "
           "ntile(2) over (order by sal desc) n from emp where deptno = 20 order by sal, empno"),
      ElementsAre("800|0.2|0|2", "1100|0.4|0.25|2", "2975|0.6|0.5|1", "3000|1|0.75|1", "3000|1|0.75|1"));
  EXPECT_THAT(rows("select percent_rank() over (order by sal) p, cume_dist() over (order by sal) from emp "
                   "where empno = 7839"),
              ElementsAre("0|1"));
}

TEST_F(Windows, valueThatMustBeOneForAllRowsIsCheckedWithTheServersErrors) {
  EXPECT_THAT(failure("select ntile(deptno) over (order by sal) from emp"), HasSubstr("ORA-30488"));
  EXPECT_THAT(failure("select listagg(ename, job) within group (order by sal) from emp"),
              HasSubstr("ORA-30497"));
  EXPECT_THAT(failure("select deptno, listagg(ename, job) within group (order by sal) over (partition by "
                      "deptno) from emp"),
              HasSubstr("ORA-30488"));
  EXPECT_THAT(rows("select listagg(ename, '-' || deptno || '-') within group (order by ename) from emp "
                   "group by deptno having deptno = 10"),
              ElementsAre("CLARK-10-KING-10-MILLER"));
}

// Measured on a server: linq2db/linq2db issue 5897.
TEST_F(Windows, shareInATotalOfZeroIsNull) {
  EXPECT_THAT(
      rows("select n, ratio_to_report(n) over () from (select 10 n from dual union all select -10 from "
           "dual) order by n"),
      ElementsAre("-10|-", "10|-"));
  EXPECT_THAT(
      rows("select g, round(ratio_to_report(decode(g, 'b', 0, v)) over (partition by g), 4) from readings "
           "order by id"),
      ElementsAre("a|0.0476", "a|0.9524", "a|-", "b|-", "b|-"));
}

TEST_F(Windows, fractionOfBucketsIsCutOff) {
  EXPECT_THAT(rows("select ntile(4.7) over (order by sal) from emp where deptno = 30 order by 1"),
              ElementsAre("1", "1", "2", "2", "3", "4"));
}

}  // namespace
}  // namespace kestrelix::repository_file
