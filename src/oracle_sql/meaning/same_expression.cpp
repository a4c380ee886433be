#include "oracle_sql/meaning/same_expression.h"

#include <algorithm>
#include <vector>

#include "oracle_sql/syntax/tree.h"
#include "oracle_sql/syntax/walk.h"

namespace oracle_sql {

bool sameExpression(const Expr& a, const Expr& b, int level) {
  // Long chains lean to the left, and are gone down without a call for each operator.
  const Expr* x = &a;
  const Expr* y = &b;
  while (true) {
    const auto* sum = as<Arithmetic>(x);
    const auto* otherSum = as<Arithmetic>(y);
    const auto* text = as<Concat>(x);
    const auto* otherText = as<Concat>(y);
    if (sum && otherSum) {
      if (sum->op != otherSum->op || !sameExpression(*sum->right, *otherSum->right, level)) return false;
      x = sum->left;
      y = otherSum->left;
    } else if (text && otherText) {
      if (!sameExpression(*text->right, *otherText->right, level)) return false;
      x = text->left;
      y = otherText->left;
    } else {
      break;
    }
  }
  if (x != &a) return sameExpression(*x, *y, level);
  if (a.kind != b.kind) return false;
  switch (a.kind) {
    case ExprKind::Number:
      return as<NumberLiteral>(&a)->text == as<NumberLiteral>(&b)->text;
    case ExprKind::String:
      return as<StringLiteral>(&a)->value == as<StringLiteral>(&b)->value;
    case ExprKind::DateLiteral:
      return as<DateLiteral>(&a)->value == as<DateLiteral>(&b)->value;
    case ExprKind::Bind:
      return as<BindExpr>(&a)->name == as<BindExpr>(&b)->name;
    case ExprKind::Column: {
      const auto& c = *as<ColumnRef>(&a);
      const auto& d = *as<ColumnRef>(&b);
      return c.source == d.source && c.column == d.column && c.output == d.output &&
             c.levelsOut + level == d.levelsOut;
    }
    case ExprKind::Negate:
      if (as<Negate>(&a)->plus != as<Negate>(&b)->plus) return false;
      break;
    case ExprKind::Arithmetic:
      if (as<Arithmetic>(&a)->op != as<Arithmetic>(&b)->op) return false;
      break;
    case ExprKind::Compare:
      if (as<Compare>(&a)->op != as<Compare>(&b)->op) return false;
      break;
    case ExprKind::Case: {
      const auto& c = *as<CaseExpr>(&a);
      const auto& d = *as<CaseExpr>(&b);
      if (!c.operand != !d.operand || c.whens.size() != d.whens.size()) return false;
      break;
    }
    case ExprKind::Call: {
      const auto& c = *as<Call>(&a);
      const auto& d = *as<Call>(&b);
      if (c.name != d.name || c.package != d.package || c.option != d.option || c.star != d.star ||
          c.distinct != d.distinct || c.nulls != d.nulls || c.args.size() != d.args.size())
        return false;
      // Two windows or sort lists are never taken for one.
      if (c.over || d.over || c.keep || d.keep || !c.withinGroup.empty() || !d.withinGroup.empty())
        return &a == &b;
      break;
    }
    case ExprKind::Cast: {
      const auto& c = *as<CastExpr>(&a);
      const auto& d = *as<CastExpr>(&b);
      if (c.target != d.target || c.precision != d.precision || c.scale != d.scale || c.integer != d.integer)
        return false;
      break;
    }
    case ExprKind::Between:
      if (as<Between>(&a)->negated != as<Between>(&b)->negated) return false;
      break;
    case ExprKind::In:
      if (as<InExpr>(&a)->negated != as<InExpr>(&b)->negated) return false;
      break;
    case ExprKind::Like:
      if (as<LikeExpr>(&a)->negated != as<LikeExpr>(&b)->negated) return false;
      break;
    case ExprKind::IsNull:
      if (as<IsNull>(&a)->negated != as<IsNull>(&b)->negated) return false;
      break;
    default:
      break;
  }
  if (queryOf(a) || queryOf(b)) return &a == &b;
  std::vector<const Expr*> left;
  std::vector<const Expr*> right;
  forEachOperand(a, [&](const Expr& o) { left.push_back(&o); });
  forEachOperand(b, [&](const Expr& o) { right.push_back(&o); });
  return left.size() == right.size() &&
         std::equal(left.begin(), left.end(), right.begin(),
                    [&](const Expr* one, const Expr* other) { return sameExpression(*one, *other, level); });
}

}  // namespace oracle_sql
