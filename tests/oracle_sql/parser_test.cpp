#include <gtest/gtest.h>

#include "oracle_sql/syntax/parser.h"
#include "support/statement_text/printer.h"

namespace oracle_sql {
namespace {

// Statement and the ORA code it is refused with; 0 for a construct that is not supported.
struct Refusal {
  const char* statement;
  int oraCode;
};

class Refused : public testing::TestWithParam<Refusal> {};

TEST_P(Refused, withOraclesNumber) {
  try {
    parse(GetParam().statement);
    FAIL() << GetParam().statement;
  } catch (const SqlError& e) {
    EXPECT_EQ(e.oraCode(), GetParam().oraCode) << e.render(GetParam().statement);
    EXPECT_EQ(e.kind(), GetParam().oraCode == 0 ? ErrorKind::Unsupported : ErrorKind::Wrong);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Statements, Refused,
    testing::Values(
        Refusal{"", 900}, Refusal{"selec 1 from dual", 900}, Refusal{"select 1", 923},
        Refusal{"select from dual", 936}, Refusal{"select 1, from dual", 936},
        Refusal{"select a b c from dual", 923}, Refusal{"select *, a from t", 923},
        Refusal{"select a, * from t", 936}, Refusal{"select a = b from t", 923},
        Refusal{"select (a = b) from t", 907}, Refusal{"select 1 as from dual", 923},
        Refusal{"select 1 date from dual", 923}, Refusal{"select 1 from", 903},
        Refusal{"select 1 from t as x", 933}, Refusal{"select 1 from t where", 936},
        Refusal{"select 1 from t where a", 920}, Refusal{"select 1 from t where a and b = 1", 920},
        Refusal{"select 1 from t where (a) order by 1", 920}, Refusal{"select 1 from t where a = b = c", 933},
        Refusal{"select 1 from t where a in 1", 906}, Refusal{"select 1 from t where (a, b) in (1, 2)", 920},
        Refusal{"select 1 from t where (a, b) < (1, 2)", 1796},
        Refusal{"select 1 from t where a not = 1", 920}, Refusal{"select 1 from t where a is 1", 908},
        Refusal{"select 1 from t group a", 924}, Refusal{"select 1 from t order by a nulls", 905},
        Refusal{"select 1 from t limit 5", 933}, Refusal{"select 1 from t fetch first 5 rows only", 933},
        Refusal{"select case a then 1 end from t", 905}, Refusal{"select case when a = 1 then 2 from t", 905},
        Refusal{"select nvl(a, 1 from t", 907}, Refusal{"select 1 from t left join u", 905},
        Refusal{"select 1 from a union select 2 from b order by 1 union select 3 from c", 933},
        Refusal{"select level from dual", 1788}, Refusal{"with a as select 1 from dual select * from a", 906},
        Refusal{"select sum(x) over (rows 1 preceding) from t", 30485},
        Refusal{"select 1 from t group by rollup ()", 936},
        Refusal{"select 1 from t group by rollup (a", 907},
        Refusal{"select * from t pivot (sum(a) for (b, c) in ((1, 2), 3))", 56901},
        Refusal{"select t.date from t", 1747},
        // What Oracle knows and this program does not, each by its name.
        Refusal{"insert into t values (1)", 0}, Refusal{"update t set a = 1", 0}, Refusal{"delete from t", 0},
        Refusal{"create table t (a number)", 0}, Refusal{"begin null; end", 911}, Refusal{"drop table t", 0},
        Refusal{"select 1 from t for update", 0}, Refusal{"select 1 from t connect by level < 5", 0},
        Refusal{"select 1 from t start with a = 1 connect by prior a = b", 0},
        Refusal{"select 1 from t@remote", 0}, Refusal{"select interval '1' day from dual", 0},
        Refusal{"select * from t unpivot (a for b in (c, d))", 0}, Refusal{"select rowid from t", 0},
        Refusal{"select t.rowid from t", 0}, Refusal{"select * from table(f(1))", 0},
        Refusal{"select f(a => 1) from t", 0}, Refusal{"select 1 from t sample (5)", 0},
        Refusal{"select 1 from t as of timestamp sysdate", 0},
        Refusal{"select cast(a as timestamp) from t", 0},
        Refusal{"select * from t pivot xml (sum(a) for b in (any))", 0},
        Refusal{"select 1 from t group by grouping sets (a)", 0},
        Refusal{"select 1 from t where a < all (1)", 0}, Refusal{"select (a - b) day(9) to second from t", 0},
        Refusal{"select 1 from t where regexp_like(a, 'b')", 0}));

class ReadAs : public testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(ReadAs, theTextThatTellsItsStructure) {
  const auto [statement, printed] = GetParam();
  const Tree tree = parse(statement);
  EXPECT_EQ(print(*tree.query()), printed);
  const Tree again = parse(printed);
  EXPECT_TRUE(equal(*tree.query(), *again.query())) << dump(*tree.query()) << dump(*again.query());
}

INSTANTIATE_TEST_SUITE_P(
    Statements, ReadAs,
    testing::Values(
        std::pair{"select 1-2-3, 1-(2-3), 1+2*3, (1+2)*3, -a*b, -(a*b), - -a from t",
                  "SELECT 1 - 2 - 3, 1 - (2 - 3), 1 + 2 * 3, (1 + 2) * 3, -A * B, -(A * B), - -A FROM T"},
        std::pair{"select 2*3||'x'||1+2 from dual", "SELECT 2 * 3 || 'x' || 1 + 2 FROM DUAL"},
        std::pair{"select 'a'||(1+2) from dual", "SELECT 'a' || (1 + 2) FROM DUAL"},
        std::pair{"select 1 from t where a=1 or b=2 and not c=3 and (d=4 or e=5)",
                  "SELECT 1 FROM T WHERE A = 1 OR B = 2 AND NOT C = 3 AND (D = 4 OR E = 5)"},
        std::pair{"select 1 from t where ((a + 1) * 2) > (select max(x) from u)",
                  "SELECT 1 FROM T WHERE (A + 1) * 2 > (SELECT MAX(X) FROM U)"},
        std::pair{"select 1 from t where ((select 1 from dual) + 1) = 2",
                  "SELECT 1 FROM T WHERE (SELECT 1 FROM DUAL) + 1 = 2"},
        std::pair{"select 1 x, 2 \"Y z\", 3 as over, name, value from t",
                  "SELECT 1 AS X, 2 AS \"Y z\", 3 AS \"OVER\", NAME, VALUE FROM T"},
        std::pair{"select sum(case when 1 < a then b else 0 end) over, c idle from t group by c",
                  "SELECT SUM(CASE WHEN 1 < A THEN B ELSE 0 END) AS \"OVER\", C AS IDLE FROM T GROUP BY C"},
        std::pair{"select a.x, b.y from stats$t a, u b where a.id(+)=b.id and b.n ( + ) = :b1",
                  "SELECT A.X, B.Y FROM STATS$T A, U B WHERE A.ID(+) = B.ID AND B.N(+) = :B1"},
        std::pair{"select * from a left outer join b on a.x=b.x full join c using (x, y) "
                  "cross join e",
                  "SELECT * FROM A LEFT JOIN B ON A.X = B.X FULL JOIN C USING (X, Y) "
                  "CROSS JOIN E"},
        std::pair{"select * from a join b join c on b.x=c.x on a.x=b.x",
                  "SELECT * FROM A INNER JOIN (B INNER JOIN C ON B.X = C.X) ON A.X = B.X"},
        std::pair{"select * from ((select 1 x from dual) q join r on q.x=r.x)",
                  "SELECT * FROM (SELECT 1 AS X FROM DUAL) Q INNER JOIN R ON Q.X = R.X"},
        std::pair{
            "select * from ((select 1 x from dual) minus (select 2 from dual)) order by 1 desc nulls last",
            "SELECT * FROM ((SELECT 1 AS X FROM DUAL) MINUS (SELECT 2 FROM DUAL)) ORDER BY 1 DESC NULLS "
            "LAST"},
        std::pair{
            "select 1 from a union all select 2 from b minus select 3 from c intersect select 4 from d",
            "SELECT 1 FROM A UNION ALL SELECT 2 FROM B MINUS SELECT 3 FROM C INTERSECT SELECT 4 FROM D"},
        std::pair{"with a(x) as (select 1 from dual), b as (select x from a) select * from a, b",
                  "WITH A (X) AS (SELECT 1 FROM DUAL), B AS (SELECT X FROM A) SELECT * FROM A, B"},
        std::pair{"select /*+ ordered */ distinct t.* from t where (a,b) in (select 1,2 from dual) and c not "
                  "in (1,2)",
                  "SELECT /*+ ordered */ DISTINCT T.* FROM T WHERE (A, B) IN (SELECT 1, 2 FROM DUAL) AND C "
                  "NOT IN (1, 2)"},
        std::pair{"select 1 from t where a like 'x\\_%' escape '\\' and b between 1 and 2 and c is not null "
                  "and exists (select 1 from u)",
                  "SELECT 1 FROM T WHERE A LIKE 'x\\_%' ESCAPE '\\' AND B BETWEEN 1 AND 2 AND C IS NOT NULL "
                  "AND EXISTS (SELECT 1 FROM U)"},
        std::pair{"select case x when 1 then 'a' else 'b' end, case when x=1 or y=2 then 3 end from t",
                  "SELECT CASE X WHEN 1 THEN 'a' ELSE 'b' END, CASE WHEN X = 1 OR Y = 2 THEN 3 END FROM T"},
        std::pair{"select lag(v ignore nulls) over (partition by a,b order by c desc), last_value(v) ignore "
                  "nulls over (order by c rows between unbounded preceding and 1 following) from t",
                  "SELECT LAG(V) IGNORE NULLS OVER (PARTITION BY A, B ORDER BY C DESC), LAST_VALUE(V) IGNORE "
                  "NULLS OVER (ORDER BY C ROWS BETWEEN UNBOUNDED PRECEDING AND 1 FOLLOWING) FROM T"},
        std::pair{"select 1 from t group by a,(b,c),rollup(a,(b,c)),()",
                  "SELECT 1 FROM T GROUP BY (A), (B, C), ROLLUP((A), (B, C)), ()"},
        std::pair{"select max(a) keep (dense_rank first order by b desc), listagg(c, ',') within group "
                  "(order by c), count(distinct d), count(*) from t",
                  "SELECT MAX(A) KEEP (DENSE_RANK FIRST ORDER BY B DESC), LISTAGG(C, ',') WITHIN GROUP "
                  "(ORDER BY C), COUNT(DISTINCT D), COUNT(*) FROM T"},
        std::pair{"select trim(leading 'x' from a), trim(a), trim(0 from a), trim(both from a), extract(year "
                  "from d), cast(a as number(10,2)), statspack.v1024(a,'M') from t",
                  "SELECT TRIM(LEADING 'x' FROM A), TRIM(A), TRIM(BOTH 0 FROM A), TRIM(BOTH FROM A), "
                  "EXTRACT(YEAR FROM D), CAST(A AS NUMBER(10,2)), STATSPACK.V1024(A, 'M') FROM T"},
        std::pair{"select * from (select a, b from t) pivot (sum(a) s, count(*) for b in ('x', 2 as two)) p "
                  "where p.two > 1",
                  "SELECT * FROM (SELECT A, B FROM T) PIVOT (SUM(A) AS S, COUNT(*) FOR (B) IN ('x', 2 AS "
                  "TWO)) P WHERE P.TWO > 1"},
        std::pair{"select sysdate - date '2020-01-01', rownum, user, perfstat.t.a from perfstat.t t",
                  "SELECT SYSDATE - DATE '2020-01-01', ROWNUM, USER, PERFSTAT.T.A FROM PERFSTAT.T T"},
        std::pair{"select 'it''s', q'[it's]', n'x', '' from dual",
                  "SELECT 'it''s', 'it''s', 'x', '' FROM DUAL"},
        std::pair{"select 1 from t where lnnvl(a = 1 or b = 2)",
                  "SELECT 1 FROM T WHERE LNNVL(A = 1 OR B = 2)"},
        std::pair{"select \"TRIM\"(a, b), \"nvl\"(a), \"a\", \"DATE\" from t",
                  "SELECT \"TRIM\"(A, B), \"nvl\"(A), \"a\", \"DATE\" FROM T"}));

TEST(Bounds, deepNestingIsRefusedAndNotACrash) {
  const auto nested = [](const std::string& open, const std::string& inside, const std::string& close,
                         int n) {
    std::string text;
    for (int i = 0; i < n; ++i) text += open;
    text += inside;
    for (int i = 0; i < n; ++i) text += close;
    return text;
  };
  EXPECT_NO_THROW(parse("select " + nested("(", "1", ")", 150) + " from dual"));
  for (const int n : {300, 20'000}) {
    EXPECT_THROW(parse("select " + nested("(", "1", ")", n) + " from dual"), SqlError);
    EXPECT_THROW(parse("select " + nested("- ", "1", "", n) + " from dual"), SqlError);
    EXPECT_THROW(parse("select " + nested("nvl(", "1", ",0)", n) + " from dual"), SqlError);
    EXPECT_THROW(parse("select 1 from dual where " + nested("not ", "1=1", "", n)), SqlError);
    EXPECT_THROW(parse(nested("select * from (", "select 1 from dual", ")", n)), SqlError);
    EXPECT_THROW(parse("select 1 from " + nested("a join ", "b", " on 1=1", n)), SqlError);
  }
  EXPECT_THROW(parse("select 1" + nested("+1", "", "", kMaxHeight) + " from dual"), SqlError);
  EXPECT_THROW(parse("select 1 from a" + nested(" cross join b", "", "", kMaxHeight)), SqlError);
}

TEST(Bounds, wideStatementsAreNotDeepOnes) {
  std::string list = "1";
  std::string conditions = "a = 1";
  std::string branches = "select 1 from dual";
  for (int i = 0; i < 5'000; ++i) {
    list += ", (select 1 from dual)";
    conditions += " or a = (select 1 from dual)";
    branches += " union all select 1 from dual";
  }
  EXPECT_NO_THROW(parse("select " + list + " from dual"));
  EXPECT_NO_THROW(parse("select 1 from t where " + conditions));
  EXPECT_NO_THROW(parse(branches));
}

}  // namespace
}  // namespace oracle_sql
