// Values compare in the type that Oracle brings both sides to. A NUMBER that may be broken is no INTEGER of
// SQLite: equal numbers are equal bytes all the same, but their order needs a function; only the bare column
// of whole numbers stays bare, since an index may stand on it.
#include <algorithm>

#include "repository_file/lowering/builders.h"
#include "repository_file/lowering/rules.h"

namespace kestrelix::repository_file {
namespace {

using lite::Operator;
using sql::CompareOp;
using sql::TypeKind;

/// By CompareOp.
constexpr Operator kOperators[] = {Operator::Equal,     Operator::NotEqual, Operator::Less,
                                   Operator::LessEqual, Operator::Greater,  Operator::GreaterEqual};
constexpr CompareOp kMirrored[] = {CompareOp::Equal,        CompareOp::NotEqual, CompareOp::Greater,
                                   CompareOp::GreaterEqual, CompareOp::Less,     CompareOp::LessEqual};

Operator operatorOf(CompareOp op) { return kOperators[static_cast<std::size_t>(op)]; }

bool isEquality(CompareOp op) { return op == CompareOp::Equal || op == CompareOp::NotEqual; }

/// Whole numbers against any number: the nearest whole number does as well.
const lite::Expr* wholeAgainst(Lowerer& to, CompareOp op, const Value& whole, const Value& other) {
  const bool up = op == CompareOp::Less || op == CompareOp::GreaterEqual;
  return to.operation(operatorOf(op), {whole.node, to.call(up ? "whole_up" : "whole_down", {other.node})});
}

const lite::Expr* comparedByFunction(Lowerer& to, std::string_view function, CompareOp op, const Value& left,
                                     const Value& right) {
  return to.operation(operatorOf(op), {to.call(function, {left.node, right.node}), to.integer(0)});
}

TypeKind targetOf(sql::Comparison comparison) {
  switch (comparison) {
    case sql::Comparison::Number:
      return TypeKind::Number;
    case sql::Comparison::Date:
      return TypeKind::Date;
    case sql::Comparison::Raw:
      return TypeKind::Raw;
    default:
      return TypeKind::Varchar2;
  }
}

sql::Comparison comparisonOf(const Value& left, const Value& right) {
  return sql::comparisonOf(sql::Type{left.kind}, sql::Type{right.kind});
}

const lite::Expr* equalRows(Lowerer& to, const std::vector<Value>& left, const std::vector<Value>& right,
                            sql::Place place) {
  std::vector<const lite::Expr*> pairs;
  for (std::size_t i = 0; i < left.size(); ++i)
    pairs.push_back(compared(to, CompareOp::Equal, left[i], right[i], place));
  return to.allOf(pairs);
}

/// A value or a row against another one.
const lite::Expr* comparedRows(Lowerer& to, CompareOp op, const std::vector<Value>& left,
                               const std::vector<Value>& right, sql::Place place) {
  if (left.size() == 1) return compared(to, op, left.front(), right.front(), place);
  if (!isEquality(op)) throw sql::SqlError::unsupported("an order between rows", place);
  return to.negatedIf(op == CompareOp::NotEqual, equalRows(to, left, right, place));
}

}  // namespace

CompareOp mirrored(CompareOp op) { return kMirrored[static_cast<std::size_t>(op)]; }

std::vector<Value> lowerRow(Lowerer& to, const sql::Expr& expr) {
  const auto* row = sql::as<sql::RowExpr>(&expr);
  if (!row) return {to.lower(expr)};
  std::vector<Value> items;
  for (const sql::Expr* item : row->items) items.push_back(to.lower(*item));
  return items;
}

const lite::Expr* withoutBlanks(Lowerer& to, const Value& value) {
  if (value.node->kind == lite::Kind::Text &&
      !static_cast<const lite::Literal*>(value.node)->value.ends_with(' '))
    return value.node;
  return to.call("rtrim", {value.node, to.text(" ")});
}

Sides comparable(Lowerer& to, const Value& left, const Value& right, sql::Place place) {
  const TypeKind target = targetOf(comparisonOf(left, right));
  return {to.converted(left, target, place), to.converted(right, target, place)};
}

const lite::Expr* compared(Lowerer& to, CompareOp op, const Value& left, const Value& right,
                           sql::Place place) {
  const auto comparison = comparisonOf(left, right);
  if (comparison == sql::Comparison::PaddedText) {
    if (!isEquality(op)) return comparedByFunction(to, "padded_cmp", op, left, right);
    return to.operation(operatorOf(op), {withoutBlanks(to, left), withoutBlanks(to, right)});
  }
  const Sides sides = comparable(to, left, right, place);
  if (comparison == sql::Comparison::Number && !isEquality(op)) {
    const bool leftWhole = sides.left.number.integral;
    const bool rightWhole = sides.right.number.integral;
    if (leftWhole && !rightWhole) return wholeAgainst(to, op, sides.left, sides.right);
    if (rightWhole && !leftWhole) return wholeAgainst(to, mirrored(op), sides.right, sides.left);
    if (!leftWhole) return comparedByFunction(to, "num_cmp", op, sides.left, sides.right);
  }
  return to.operation(operatorOf(op), {sides.left.node, sides.right.node});
}

Lowered lowerCompare(Lowerer& to, const sql::Compare& compare) {
  return Value{
      comparedRows(to, compare.op, lowerRow(to, *compare.left), lowerRow(to, *compare.right), compare.place)};
}

Lowered lowerBetween(Lowerer& to, const sql::Between& between) {
  const Value operand = to.lower(*between.operand);
  const auto* low = compared(to, CompareOp::GreaterEqual, operand, to.lower(*between.low), between.place);
  const auto* high = compared(to, CompareOp::LessEqual, operand, to.lower(*between.high), between.place);
  return Value{to.negatedIf(between.negated, to.allOf({low, high}))};
}

Lowered lowerIn(Lowerer& to, const sql::InExpr& in) {
  const auto operand = lowerRow(to, *in.operand);
  std::vector<std::vector<Value>> items;
  for (const sql::Expr* item : in.list) items.push_back(lowerRow(to, *item));

  const Value& left = operand.front();
  const auto comparison = comparisonOf(left, items.front().front());
  const bool native = operand.size() == 1 && std::all_of(items.begin(), items.end(), [&](const auto& item) {
                        return comparisonOf(left, item.front()) == comparison;
                      });
  std::vector<const lite::Expr*> terms;
  if (!native) {
    for (const auto& item : items) terms.push_back(equalRows(to, operand, item, in.place));
    return Value{to.negatedIf(in.negated, to.operation(Operator::Or, terms))};
  }
  const auto member = [&](const Value& value) {
    const Value same = to.converted(value, targetOf(comparison), in.place);
    return comparison == sql::Comparison::PaddedText ? withoutBlanks(to, same) : same.node;
  };
  for (const auto& item : items) terms.push_back(member(item.front()));
  return Value{to.in(member(left), in.negated, terms)};
}

}  // namespace kestrelix::repository_file
