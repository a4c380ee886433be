// Trees of SQLite's SQL, built by hand, as text; and what SQLite makes of the long and the deep ones.
#include <gmock/gmock.h>
#include <sqlite3.h>

#include "oracle_sql/syntax/error.h"
#include "repository_file/lowering/sqlite_printer.h"
#include "repository_file/sqlite_handle.h"

namespace kestrelix::repository_file::lite {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class SqlitePrinter : public testing::Test, protected Builder {
 protected:
  const Expr* a() { return name({}, "a"); }
  const Expr* b() { return name("T", "b"); }
  const Expr* c() { return name({}, "c"); }
  const Expr* op(Operator op, Nodes operands) { return operation(op, operands); }
  std::vector<const Expr*> times(std::size_t count, const Expr* expr) { return {count, expr}; }

  /// The expression, as the only column of a query without FROM.
  std::string printed(const Expr* expr) {
    const std::string statement = print(*oneRow(expr, {})).text;
    EXPECT_THAT(statement, StartsWith("SELECT "));
    return statement.substr(7);
  }

  /// The number that SQLite gives for the statement.
  static std::int64_t answer(const std::string& statement) {
    sqlite3* raw = nullptr;
    sqlite3_open(":memory:", &raw);
    const ConnectionHandle connection(raw);
    const StatementHandle row = prepare(raw, statement);
    EXPECT_TRUE(step(row.get()));
    return sqlite3_column_int64(row.get(), 0);
  }
};

TEST_F(SqlitePrinter, operatorInsideAnotherStandsInBrackets) {
  const Expr* sum = op(Operator::Add, {a(), b()});
  EXPECT_EQ(printed(op(Operator::Multiply, {sum, c()})), R"(("a" + "T"."b") * "c")");
  EXPECT_EQ(printed(op(Operator::Subtract, {c(), sum})), R"("c" - ("a" + "T"."b"))");
  EXPECT_EQ(printed(op(Operator::Minus, {sum})), R"(-("a" + "T"."b"))");
  EXPECT_EQ(printed(op(Operator::Less, {sum, call("abs", {sum})})),
            R"(("a" + "T"."b") < abs("a" + "T"."b"))");
  EXPECT_EQ(printed(op(Operator::Or, {op(Operator::And, {a(), c()}), op(Operator::Not, {a()})})),
            R"(("a" AND "c") OR (NOT "a"))");
  EXPECT_EQ(printed(op(Operator::Not, {in(a(), true, {integer(1), text("x")})})),
            R"(NOT ("a" NOT IN (1, 'x')))");
}

TEST_F(SqlitePrinter, testBehindItsOperandIsClearBetweenConditionsAlone) {
  const Expr* test = op(Operator::IsNull, {a()});
  EXPECT_EQ(printed(op(Operator::And, {test, c()})), R"("a" IS NULL AND "c")");
  EXPECT_EQ(printed(op(Operator::Equal, {c(), test})), R"("c" = ("a" IS NULL))");
  EXPECT_EQ(printed(op(Operator::IsNotTrue, {op(Operator::Equal, {a(), c()})})),
            R"(("a" = "c") IS NOT TRUE)");
}

TEST_F(SqlitePrinter, signOfANumberIsNoOperatorOfItsOwn) {
  EXPECT_EQ(printed(op(Operator::Minus, {integer(-5)})), "-(-5)");
  EXPECT_EQ(printed(call("abs", {integer(-5)})), "abs(-5)");
  EXPECT_EQ(answer(print(*oneRow(integer(INT64_MIN), {})).text), INT64_MIN);
}

TEST_F(SqlitePrinter, literalsAreQuoted) {
  EXPECT_EQ(printed(text("it's")), "'it''s'");
  EXPECT_EQ(printed(text({"a\0b", 3})), "CAST(x'610062' AS TEXT)");
  EXPECT_EQ(printed(blob("\xC1\x0A")), "x'C10A'");
  EXPECT_EQ(printed(parameter("A#B")), ":A$$B");
  EXPECT_EQ(bindOf(":A$$B"), "A#B");
  EXPECT_EQ(printed(name("T", "say \"x\"")), R"("T"."say ""x""")");
}

TEST_F(SqlitePrinter, elseThatIsASearchedCaseGoesOnWithItsArms) {
  Case* inner = choice();
  inner->arms.push_back({c(), integer(2)});
  close(*inner, integer(3));
  Case* outer = choice();
  outer->arms.push_back({a(), integer(1)});
  close(*outer, inner);
  EXPECT_EQ(printed(outer), R"(CASE WHEN "a" THEN 1 WHEN "c" THEN 2 ELSE 3 END)");
  Case* simple = choice(b());
  simple->arms.push_back({integer(7), integer(1)});
  close(*simple, inner);
  EXPECT_EQ(printed(simple), R"(CASE "T"."b" WHEN 7 THEN 1 ELSE CASE WHEN "c" THEN 2 ELSE 3 END END)");
}

TEST_F(SqlitePrinter, coalesceHasAsManyArgumentsAsSqliteTakes) {
  EXPECT_EQ(printed(coalesce({})), "coalesce(NULL, NULL)");
  EXPECT_EQ(printed(coalesce({a()})), R"(coalesce("a", NULL))");
  std::vector<const Expr*> values = times(300, null());
  values.push_back(integer(7));
  EXPECT_EQ(answer("SELECT " + printed(coalesce(values))), 7);
}

TEST_F(SqlitePrinter, chainOfManyTermsIsNotDeep) {
  std::vector<const Expr*> terms = times(2000, op(Operator::Equal, {integer(1), integer(1)}));
  terms.push_back(op(Operator::Equal, {integer(1), integer(2)}));
  EXPECT_EQ(answer("SELECT " + printed(op(Operator::And, terms))), 0);
  EXPECT_EQ(answer("SELECT " + printed(op(Operator::Or, terms))), 1);
  EXPECT_EQ(answer("SELECT length(" + printed(op(Operator::Concat, times(20'000, text("x")))) + ")"), 20'000);
}

TEST_F(SqlitePrinter, manyBranchesAreSeveralQueries) {
  Query* all = query();
  for (int i = 0; i < 1200; ++i)
    all->branches.push_back({i == 0 ? "" : "UNION ALL", oneRow(integer(i), "n")->branches.front().select});
  Select* count = select();
  count->items.push_back({call("sum", {name({}, "n")}), {}});
  count->from.push_back(source({}, all));
  EXPECT_EQ(answer(print(*query(count)).text), 1199 * 1200 / 2);
}

TEST_F(SqlitePrinter, queriesTooDeepStandInFrontOfTheStatement) {
  const auto nested = [&](int levels, bool standAlone) {
    Query* inner = oneRow(integer(7), "n");
    for (int i = 1; i < levels; ++i) {
      inner->standsAlone = standAlone;
      Select* outer = select();
      outer->items.push_back({name({}, "n"), {}});
      outer->from.push_back(source({}, inner));
      inner = query(outer);
    }
    return print(*inner);
  };
  EXPECT_EQ(nested(6, true).text,
            R"(SELECT "n" FROM (SELECT "n" FROM (SELECT "n" FROM (SELECT "n" FROM (SELECT "n" FROM )"
            R"((SELECT 7 AS "n"))))))");
  EXPECT_THAT(nested(7, true).text, StartsWith(R"(WITH "view 1" AS (SELECT "n" FROM)"));
  EXPECT_EQ(answer(nested(50, true).text), 7);
  EXPECT_FALSE(nested(50, true).nearBounds);
  // What names columns of the queries around it has to stay.
  EXPECT_THAT(nested(7, false).text, Not(HasSubstr("WITH")));
  EXPECT_TRUE(nested(20, false).nearBounds);
}

TEST_F(SqlitePrinter, expressionThatGrowsWithoutBoundsIsRefused) {
  const Expr* twice = a();
  for (int i = 0; i < 60; ++i) twice = call("f", {twice, twice});
  try {
    print(*oneRow(twice, {}));
    FAIL() << "2^60 names were written";
  } catch (const oracle_sql::SqlError& error) {
    EXPECT_EQ(error.kind(), oracle_sql::ErrorKind::Unsupported);
  }
}

TEST_F(SqlitePrinter, partsOfAQueryStandInTheirOrder) {
  Select* rows = select();
  rows->distinct = true;
  Window* over = window();
  over->orderBy.push_back({a(), true, false});
  over->unit = "ROWS";
  over->start = {integer(2), "PRECEDING"};
  Call* total = call("sum", {a()});
  total->filter = b();
  total->over = over;
  rows->items.push_back({total, "total"});
  Source table = source("T", nullptr);
  table.table = "EMP";
  rows->from.push_back(std::move(table));
  From joined(memory());
  joined.push_back(source("A", oneRow(integer(1), "x")));
  joined.push_back(source("B", oneRow(integer(2), "x")));
  joined.back().joinedBy = "FULL JOIN";
  joined.back().on.push_back(b());
  rows->from.push_back(bracketed(std::move(joined)));
  rows->where.push_back(op(Operator::Less, {a(), c()}));
  rows->groupBy.push_back(a());
  rows->having = op(Operator::Less, {c(), a()});
  Query* whole = query(rows);
  whole->orderBy.push_back({a(), false, true});
  whole->limit = integer(-1);
  EXPECT_EQ(print(*whole).text,
            R"(SELECT DISTINCT sum("a") FILTER (WHERE "T"."b") OVER (ORDER BY "a" DESC NULLS LAST )"
            R"(ROWS 2 PRECEDING) AS "total" FROM "EMP" AS "T", ((SELECT 1 AS "x") AS "A" FULL JOIN )"
            R"((SELECT 2 AS "x") AS "B" ON "T"."b") WHERE ("a" < "c") GROUP BY "a" HAVING "c" < "a" )"
            R"(ORDER BY "a" NULLS FIRST LIMIT -1)");
}

}  // namespace
}  // namespace kestrelix::repository_file::lite
