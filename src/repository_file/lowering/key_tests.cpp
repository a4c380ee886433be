// A test of a key on an inline view is made on the rows that the view reads, too. SQLite hands such a test
// down by itself, but not past a window or a group, and would compute those for all keys to keep one.
#include <algorithm>

#include "repository_file/lowering/block.h"
#include "repository_file/lowering/builders.h"
#include "repository_file/lowering/walk.h"

namespace kestrelix::repository_file {
namespace {

/// A column of a FROM item of the block itself.
const sql::ColumnRef* ownColumn(const sql::Expr* expr) {
  const auto* column = sql::as<sql::ColumnRef>(expr);
  return column && column->source && column->levelsOut == 0 ? column : nullptr;
}

bool same(const sql::ColumnRef& a, const sql::ColumnRef& b) {
  return a.source == b.source && a.column == b.column;
}

bool isFixed(const sql::Expr* expr) {
  return expr && (expr->kind == sql::ExprKind::Bind || expr->kind == sql::ExprKind::Number ||
                  expr->kind == sql::ExprKind::String);
}

/// The two sides of `a = b`, where neither needs a conversion: one could fail on rows that are dropped
/// otherwise.
const sql::Compare* plainEquality(const sql::Expr& term) {
  const auto* compare = sql::as<sql::Compare>(&term);
  if (!compare || compare->op != sql::CompareOp::Equal) return nullptr;
  return compare->left->type.kind == compare->right->type.kind ? compare : nullptr;
}

std::vector<KeyTest> testsOf(const std::vector<const sql::Expr*>& conjuncts) {
  std::vector<KeyTest> tests;
  for (const sql::Expr* term : conjuncts) {
    const sql::Compare* compare = plainEquality(*term);
    if (!compare) continue;
    for (const auto& [side, value] :
         {std::pair{compare->left, compare->right}, std::pair{compare->right, compare->left}}) {
      const auto* column = ownColumn(side);
      if (column && !column->outerMark && isFixed(value)) tests.push_back({column, value, compare->place});
    }
  }
  return tests;
}

/// Columns that equal a tested one have its value, or, on the optional side of a join, could not match
/// otherwise.
void followEqualities(std::vector<KeyTest>& tests, const std::vector<const sql::Expr*>& conjuncts) {
  for (std::size_t i = 0; i < tests.size(); ++i)
    for (const sql::Expr* term : conjuncts) {
      const sql::Compare* compare = plainEquality(*term);
      if (!compare) continue;
      const auto* left = ownColumn(compare->left);
      const auto* right = ownColumn(compare->right);
      if (!left || !right) continue;
      for (const auto& sides : {std::pair{left, right}, std::pair{right, left}}) {
        if (!same(*sides.first, *tests[i].column)) continue;
        const auto* to = sides.second;
        const bool known = std::any_of(tests.begin(), tests.end(), [&](const KeyTest& test) {
          return same(*to, *test.column) && test.value == tests[i].value;
        });
        if (!known) tests.push_back({to, tests[i].value, tests[i].place});
      }
    }
}

bool contains(const sql::ExprList& keys, const sql::ColumnRef& column) {
  return std::any_of(keys.begin(), keys.end(), [&](const sql::Expr* key) {
    const auto* other = ownColumn(key);
    return other && same(*other, column);
  });
}

/// Whether dropping all other keys' rows of the block leaves the rows of this key as they are.
bool standsAlone(const sql::SelectBlock& block, const sql::List<sql::OrderItem>& order,
                 const sql::ColumnRef& column) {
  if (block.usesRownum || block.nestedAggregates || !block.grouping.empty()) return false;
  if (block.grouped && !contains(block.groupBy, column)) return false;
  bool alone = true;
  const auto look = [&](const sql::Expr& expr) {
    const auto* call = sql::as<sql::Call>(&expr);
    if (call && call->over && !contains(call->over->partitionBy, column)) alone = false;
  };
  for (const auto& item : block.columns) walkExpressions(*item.expr, look);
  for (const auto& item : order)
    if (item.expr) walkExpressions(*item.expr, look);
  return alone;
}

/// Hands a test on a view's column to the block that the view is, if it is one.
void handDown(Lowerer& to, const sql::SelectBlock& block, const KeyTest& test) {
  const auto* view = sql::as<sql::DerivedItem>(test.column->source);
  if (!view || std::find(block.from.begin(), block.from.end(), view) == block.from.end()) return;
  const sql::SelectBlock* inner = view->query->single();
  if (!inner) return;
  const auto* column = ownColumn(inner->columns[static_cast<std::size_t>(test.column->column)].expr);
  if (column && !column->outerMark && standsAlone(*inner, view->query->orderBy, *column))
    to.keyTests[inner].push_back({column, test.value, test.place});
}

}  // namespace

void passKeyTests(Lowerer& to, const sql::SelectBlock& block,
                  const std::vector<const sql::Expr*>& conjuncts) {
  std::vector<KeyTest> tests = testsOf(conjuncts);
  const auto given = to.keyTests.find(&block);
  if (given != to.keyTests.end()) tests.insert(tests.end(), given->second.begin(), given->second.end());
  followEqualities(tests, conjuncts);
  for (const KeyTest& test : tests) handDown(to, block, test);
}

void addGivenKeyTests(Lowerer& to, BlockParts& parts) {
  const auto given = to.keyTests.find(&parts.block);
  if (given == to.keyTests.end()) return;
  for (const KeyTest& test : given->second)
    parts.where.push_back(
        compared(to, sql::CompareOp::Equal, to.lower(*test.column), to.lower(*test.value), test.place));
}

}  // namespace kestrelix::repository_file
