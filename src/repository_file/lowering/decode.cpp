// DECODE(value, search, result, ..., default) compares in the type of its first search, takes null as equal
// to null, never pads with blanks, and evaluates no result but the one that it gives.
#include <algorithm>

#include "oracle_sql/meaning/same_expression.h"
#include "repository_file/lowering/builders.h"
#include "repository_file/lowering/rules.h"

namespace kestrelix::repository_file {
namespace {

using sql::TypeKind;

struct Arm {
  Value search;
  const lite::Expr* result;
};

/// The type that DECODE compares in. A null as first search leaves it to the others: text, unless all are
/// numbers or all are dates, where the comparison as text gives nothing else.
TypeKind comparisonKind(const Value& value, const std::vector<Arm>& arms) {
  const TypeKind first = arms.front().search.kind;
  if (first == TypeKind::Char) return TypeKind::Varchar2;
  if (first != TypeKind::Null) return first;
  if (value.kind != TypeKind::Number && value.kind != TypeKind::Date && value.kind != TypeKind::Raw)
    return TypeKind::Varchar2;
  for (const Arm& arm : arms)
    if (arm.search.kind != TypeKind::Null && arm.search.kind != value.kind) return TypeKind::Varchar2;
  return value.kind;
}

const lite::Expr* test(Lowerer& to, const Value& value, const Value& search) {
  if (search.kind == TypeKind::Null) return to.operation(lite::Operator::IsNull, {value.node});
  return to.operation(search.present ? lite::Operator::Equal : lite::Operator::Is, {value.node, search.node});
}

bool isNullLiteral(const sql::Expr& expr) {
  const auto* text = sql::as<sql::StringLiteral>(&expr);
  return expr.kind == sql::ExprKind::Null || (text && text->value.empty());
}

/// Whether `expr` is `value`, or ROUND or TRUNC of it: null for a null value and for no other.
bool isThereWith(const sql::Expr& expr, const sql::Expr& value) {
  const auto* call = sql::as<sql::Call>(&expr);
  if (!call || call->args.empty() || (call->name != "ROUND" && call->name != "TRUNC") ||
      !call->package.empty())
    return sql::sameExpression(expr, value);
  for (std::size_t i = 1; i < call->args.size(); ++i)
    if (call->args[i]->kind != sql::ExprKind::Number) return false;
  return sql::sameExpression(*call->args.front(), value);
}

}  // namespace

/// DECODE(x, null, ' ', ROUND(x, 2)) is COALESCE(ROUND(x, 2), ' '), which computes x once.
Lowered lowerDecodeOfNull(Lowerer& to, const sql::Call& call) {
  if (call.args.size() != 4 || !isNullLiteral(*call.args[1]) || !isThereWith(*call.args[3], *call.args[0]))
    return {};
  return either(to, call, *call.args[3], *call.args[2]);
}

Lowered lowerDecode(Lowerer& to, const sql::Call& call) {
  const TypeKind resultKind = call.type.kind;
  CommonFacts facts;
  const auto resultOf = [&](const sql::Expr& expr) {
    const Value lowered = to.lowerAs(expr, resultKind);
    facts.add(lowered);
    return lowered.node;
  };
  std::vector<Arm> arms;
  std::size_t next = 1;
  for (; next + 1 < call.args.size(); next += 2)
    arms.push_back({to.lower(*call.args[next]), resultOf(*call.args[next + 1])});
  const lite::Expr* otherwise = next < call.args.size() ? resultOf(*call.args[next]) : nullptr;

  Value value = to.lower(*call.args.front());
  const TypeKind kind = comparisonKind(value, arms);
  value = to.converted(value, kind, call.args.front()->place);
  for (Arm& arm : arms) arm.search = to.converted(arm.search, kind, call.place);
  // The value is computed once only in the simple form, which takes no null as equal to null.
  const bool simple =
      arms.size() > 1 && !value.cheap &&
      std::all_of(arms.begin(), arms.end(), [](const Arm& arm) { return arm.search.present; });
  lite::Case& choice = *to.choice(simple ? value.node : nullptr);
  for (const Arm& arm : arms)
    choice.arms.push_back({simple ? arm.search.node : test(to, value, arm.search), arm.result});
  if (otherwise) to.close(choice, otherwise);
  return Value{&choice, resultKind, facts.facts()};
}

}  // namespace kestrelix::repository_file
