// Random statements: each is understood or refused with an error that is not this program's own fault.
#include <gtest/gtest.h>

#include "oracle_sql/syntax/parser.h"
#include "support/random_statement.h"
#include "support/small_catalogue.h"
#include "support/statement_text/printer.h"

namespace oracle_sql {
namespace {

std::vector<testing_support::RandomTable> tables() {
  return {{"emp",
           {{"empno", TypeKind::Number},
            {"ename", TypeKind::Varchar2},
            {"hiredate", TypeKind::Date},
            {"sal", TypeKind::Number},
            {"deptno", TypeKind::Number}}},
          {"dept", {{"deptno", TypeKind::Number}, {"dname", TypeKind::Varchar2}}},
          {"dual", {{"dummy", TypeKind::Varchar2}}}};
}

// True if the statement was taken. A refusal must be of the statement, with a place inside it.
bool taken(const std::string& statement) {
  const testing_support::SmallCatalogue catalogue;
  try {
    Tree tree = parse(statement);
    const Tree again = parse(print(*tree.query()));
    EXPECT_TRUE(equal(*tree.query(), *again.query())) << statement;
    resolve(tree, catalogue, &testing_support::SmallCatalogue::bind);
    return true;
  } catch (const SqlError& e) {
    EXPECT_NE(e.kind(), ErrorKind::Internal) << e.render(statement);
    EXPECT_LE(e.place().offset, statement.size());
    EXPECT_FALSE(e.render(statement).empty());
    return false;
  }
}

TEST(RandomStatements, areAlmostAllTaken) {
  testing_support::RandomStatement random(1, tables());
  int count = 0;
  for (int i = 0; i < 3'000; ++i) count += taken(random.next()) ? 1 : 0;
  // Values of one CASE or UNION branch may differ in type: those are refused, and rightly.
  EXPECT_GT(count, 2'850);
}

TEST(RandomStatements, brokenOnesAreRefusedOrTakenWithoutAFault) {
  testing_support::RandomStatement random(2, tables());
  int count = 0;
  for (int i = 0; i < 5'000; ++i) count += taken(random.nextBroken()) ? 1 : 0;
  EXPECT_LT(count, 4'000);
}

TEST(RandomStatements, areTheSameForTheSameSeed) {
  testing_support::RandomStatement a(7, tables());
  testing_support::RandomStatement b(7, tables());
  testing_support::RandomStatement c(8, tables());
  const std::string first = a.next();
  EXPECT_EQ(first, b.next());
  EXPECT_NE(first, c.next());
}

}  // namespace
}  // namespace oracle_sql
