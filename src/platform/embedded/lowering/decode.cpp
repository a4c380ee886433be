// DECODE(value, search, result, ..., default) compares in the type of its first search, takes null as equal
// to null, never pads with blanks, and evaluates no result but the one that it gives.
#include "oracle_sql/printer.h"
#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {
namespace {

using sql::TypeKind;

struct Arm {
  Piece search;
  std::string result;
};

/// The type that DECODE compares in. A null as first search leaves it to the others: text, unless all are
/// numbers or all are dates, where the comparison as text gives nothing else.
TypeKind comparisonKind(const Piece& value, const std::vector<Arm>& arms) {
  const TypeKind first = arms.front().search.kind;
  if (first == TypeKind::Char) return TypeKind::Varchar2;
  if (first != TypeKind::Null) return first;
  if (value.kind != TypeKind::Number && value.kind != TypeKind::Date && value.kind != TypeKind::Raw)
    return TypeKind::Varchar2;
  for (const Arm& arm : arms)
    if (arm.search.kind != TypeKind::Null && arm.search.kind != value.kind) return TypeKind::Varchar2;
  return value.kind;
}

std::string test(const Piece& value, const Piece& search) {
  if (search.kind == TypeKind::Null) return bracketed(value) + " IS NULL";
  return bracketed(value) + (search.present ? " = " : " IS ") + bracketed(search);
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
    return sql::equal(expr, value);
  for (std::size_t i = 1; i < call->args.size(); ++i)
    if (call->args[i]->kind != sql::ExprKind::Number) return false;
  return sql::equal(*call->args.front(), value);
}

/// DECODE(x, null, ' ', ROUND(x, 2)) is COALESCE(ROUND(x, 2), ' '), which computes x once.
bool isCoalesce(const sql::Call& call) {
  return call.args.size() == 4 && isNullLiteral(*call.args[1]) && isThereWith(*call.args[3], *call.args[0]);
}

}  // namespace

Piece lowerDecode(Emitter& emitter, const sql::Call& call) {
  if (isCoalesce(call)) return lowerEither(emitter, call, *call.args[3], *call.args[2]);
  Piece result;
  result.kind = call.type.kind;
  result.atom = true;
  CommonFacts facts;
  const auto resultOf = [&](const sql::Expr& expr) {
    Piece piece = emitter.converted(emitter.expression(expr), result.kind, expr.place);
    facts.add(piece);
    return piece;
  };
  std::vector<Arm> arms;
  std::size_t next = 1;
  for (; next + 1 < call.args.size(); next += 2)
    arms.push_back({emitter.expression(*call.args[next]), resultOf(*call.args[next + 1]).text});
  Piece otherwise;
  if (next < call.args.size()) otherwise = resultOf(*call.args[next]);

  Piece value = emitter.expression(*call.args.front());
  const TypeKind kind = comparisonKind(value, arms);
  value = emitter.converted(std::move(value), kind, call.args.front()->place);
  bool simple = arms.size() > 1 && !value.cheap;
  for (Arm& arm : arms) {
    arm.search = emitter.converted(std::move(arm.search), kind, call.place);
    simple = simple && arm.search.present;
  }
  if (simple) {
    // The value is computed once only in this form, which takes no null as equal to null.
    result.text = "CASE " + value.text;
    for (const Arm& arm : arms) result.text += " WHEN " + arm.search.text + " THEN " + arm.result;
  } else {
    result.text = "CASE";
    for (const Arm& arm : arms) result.text += " WHEN " + test(value, arm.search) + " THEN " + arm.result;
  }
  result.searched = !simple;
  if (!otherwise.text.empty()) result.text += simple ? " ELSE " + otherwise.text : elseOf(otherwise);
  result.text += " END";
  result.number = facts.facts();
  return result;
}

}  // namespace kestrelix::embedded
