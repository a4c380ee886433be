// MEDIAN and the percentiles.
#include <gmock/gmock.h>

#include "repository_file/employees.h"

namespace kestrelix::repository_file {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class Percentiles : public Employees {
 protected:
  /// Departments 30 and 60 of the tables that Oracle's SQL reference shows its examples on.
  static constexpr const char* kStaff =
      "(select 30 d, 11000 s from dual union all select 30, 3100 from dual union all select 30, 2900 from "
      "dual "
      "union all select 30, 2800 from dual union all select 30, 2600 from dual union all select 30, 2500 "
      "from "
      "dual union all select 60, 9000 from dual union all select 60, 6000 from dual union all select 60, "
      "4800 "
      "from dual union all select 60, 4800 from dual union all select 60, 4200 from dual)";
};

TEST_F(Percentiles, errorsAreThoseOfTheServer) {
  EXPECT_THAT(failure("select percentile_cont(1.5) within group (order by sal) from emp"),
              HasSubstr("ORA-01428"));
  EXPECT_THAT(failure("select percentile_disc(-0.1) within group (order by sal) from emp"),
              HasSubstr("ORA-01428"));
  EXPECT_THAT(failure("select percentile_cont(comm) within group (order by sal) from emp"),
              HasSubstr("ORA-30497"));
  EXPECT_THAT(failure("select percentile_cont(0.5) within group (order by sal) over (order by sal) from emp"),
              HasSubstr("ORA-30487"));
  EXPECT_THAT(failure("select percentile_cont(sysdate) within group (order by sal) from emp"),
              HasSubstr("ORA-00932"));
  EXPECT_THAT(failure("select percentile_cont(0.5) from emp"), HasSubstr("ORA-02000"));
  EXPECT_THAT(failure("select percentile_cont(0.5) within group (order by ename) from emp"),
              HasSubstr("ORA-01722"));
  EXPECT_THAT(failure("select percentile_cont(0.5) within group (order by sal, comm) from emp"),
              HasSubstr("not supported: PERCENTILE_CONT by several keys"));
  EXPECT_THAT(failure("select stats_mode(sal) from emp"), HasSubstr("not supported: function STATS_MODE"));
}

// Oracle's SQL reference, PERCENTILE_CONT and PERCENTILE_DISC: 2850 and 4800 in the middle, of the discrete
// ones 2900 and 4800.
TEST_F(Percentiles, publishedMiddles) {
  EXPECT_THAT(
      rows(
          std::string("select d, percentile_cont(0.5) within group (order by s desc) c, percentile_disc(0.5) "
                      "within group (order by s desc) e, median(s) m from ") +
          kStaff + " group by d order by d"),
      ElementsAre("30|2850|2900|2850", "60|4800|4800|4800"));
  EXPECT_THAT(rows(std::string("select distinct d, percentile_disc(0.5) within group (order by s desc) over "
                               "(partition by d) e from ") +
                   kStaff + " order by d"),
              ElementsAre("30|2900", "60|4800"));
}

TEST_F(Percentiles, continuousOneLiesBetweenTwoValues) {
  // 800 1100 2975 3000 3000: the place of a share is 4 times it, from 0.
  EXPECT_THAT(rows("select percentile_cont(0) within group (order by sal) a, "
                   "percentile_cont(0.1) within group (order by sal) b, "
                   "percentile_cont(0.25) within group (order by sal) c, "
                   "percentile_cont(0.9) within group (order by sal desc) d, "
                   "percentile_cont(1) within group (order by sal) e from emp where deptno = 20"),
              ElementsAre("800|920|1100|920|3000"));
}

TEST_F(Percentiles, discreteOneIsAValueOfTheGroup) {
  // Five values: a share of up to .2 is the first, of up to .4 the second.
  EXPECT_THAT(rows("select percentile_disc(0) within group (order by sal) a, "
                   "percentile_disc(0.2) within group (order by sal) b, "
                   "percentile_disc(0.21) within group (order by sal) c, "
                   "percentile_disc(0.4) within group (order by ename desc) d, "
                   "percentile_disc(1) within group (order by hiredate) e from emp where deptno = 20"),
              ElementsAre("800|800|1100|SCOTT|23-MAY-87"));
}

TEST_F(Percentiles, nullsArePassedOver) {
  EXPECT_THAT(
      rows("select percentile_cont(0.5) within group (order by comm) a, "
           "percentile_disc(0.5) within group (order by comm nulls first) b, median(comm) c from emp"),
      ElementsAre("400|300|400"));
  EXPECT_THAT(
      rows("select percentile_cont(0.5) within group (order by comm) a, "
           "percentile_disc(0.5) within group (order by comm) b, median(comm) c from emp where deptno = 10"),
      ElementsAre("-|-|-"));
}

TEST_F(Percentiles, brokenNumbersAndDates) {
  // -2.25 0.5 0.5 10.
  EXPECT_THAT(rows("select percentile_cont(0.95) within group (order by v) a, "
                   "percentile_disc(0.95) within group (order by v) b, "
                   "percentile_cont(1 / 3) within group (order by v desc) c from readings"),
              ElementsAre("8.575|10|0.5"));
  // 20 FEB, 22 FEB, 1 MAY, 8 SEP, 28 SEP, 3 DEC: a share of .3 is halfway from 22 FEB to 1 MAY, 68 days
  // later.
  EXPECT_THAT(rows("select to_char(percentile_cont(0.3) within group (order by hiredate), 'MM-DD') from emp "
                   "where deptno = 30"),
              ElementsAre("03-28"));
}

TEST_F(Percentiles, standInPivotsAndOverGroups) {
  EXPECT_THAT(
      rows("select * from (select deptno, sal from emp) pivot (percentile_disc(0.9) within group (order by "
           "sal) for deptno in (10 a, 20 b, 30 c))"),
      ElementsAre("5000|3000|2850"));
  EXPECT_THAT(rows("select percentile_cont(0.5) within group (order by sum(sal)) from emp group by deptno"),
              ElementsAre("9400"));
}

}  // namespace
}  // namespace kestrelix::repository_file
