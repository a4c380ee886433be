// The first value that is there. COALESCE computes none behind it; NVL and NVL2 compute all that they are
// given, so that a division by zero or a text that is no number fails although nobody asks for its value.
#include <algorithm>

#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {
namespace {

Piece argument(Emitter& emitter, const sql::Expr& expr, sql::TypeKind kind) {
  return emitter.converted(emitter.expression(expr), kind, expr.place);
}

/// Whether computing `expr` as a value of `kind` cannot fail: a literal, a bind or a column that needs no
/// conversion, or none but to text, and the first one that is there of several such.
bool cannotFail(const sql::Expr& expr, sql::TypeKind kind) {
  const auto* negated = sql::as<sql::Negate>(&expr);
  const sql::Expr& value =
      negated && negated->operand->kind == sql::ExprKind::Number ? *negated->operand : expr;
  switch (value.kind) {
    case sql::ExprKind::Null:
      return true;
    case sql::ExprKind::Number:
    case sql::ExprKind::String:
    case sql::ExprKind::DateLiteral:
    case sql::ExprKind::Bind:
    case sql::ExprKind::Column:
      return value.type.kind == kind || sql::Type{kind}.isText();
    case sql::ExprKind::Call: {
      const auto& call = *sql::as<sql::Call>(&value);
      return call.package.empty() && (call.name == "NVL" || call.name == "COALESCE") &&
             std::all_of(call.args.begin(), call.args.end(),
                         [&](const sql::Expr* argument) { return cannotFail(*argument, kind); });
    }
    default:
      return false;
  }
}

}  // namespace

Piece lowerCoalesce(Emitter& emitter, const sql::Call& call) {
  Piece result;
  result.kind = call.type.kind;
  result.atom = true;
  CommonFacts facts;
  std::vector<std::string> values;
  for (const sql::Expr* expr : call.args) {
    const Piece piece = argument(emitter, *expr, result.kind);
    if (piece.kind == sql::TypeKind::Null) continue;
    facts.add(piece);
    for (auto& value : alternativesOf(piece)) values.push_back(std::move(value));
    result.present = result.present || piece.present;
  }
  setAlternatives(result, std::move(values));
  result.number = facts.facts();
  return result;
}

Piece lowerEither(Emitter& emitter, const sql::Call& call, const sql::Expr& first, const sql::Expr& second,
                  bool computesBoth) {
  Piece result;
  result.kind = call.type.kind;
  result.atom = true;
  const Piece value = argument(emitter, first, result.kind);
  const Piece otherwise = argument(emitter, second, result.kind);
  CommonFacts facts;
  facts.add(value);
  facts.add(otherwise);
  if (computesBoth) {
    result.text = "nvl_of_both(" + value.text + ", " + otherwise.text + ")";
  } else {
    std::vector<std::string> values = alternativesOf(value);
    for (auto& other : alternativesOf(otherwise)) values.push_back(std::move(other));
    setAlternatives(result, std::move(values));
  }
  result.number = facts.facts();
  result.present = value.present || otherwise.present;
  return result;
}

Piece lowerNvl(Emitter& emitter, const sql::Call& call) {
  return lowerEither(emitter, call, *call.args[0], *call.args[1], !cannotFail(*call.args[1], call.type.kind));
}

Piece lowerNvl2(Emitter& emitter, const sql::Call& call) {
  Piece result;
  result.kind = call.type.kind;
  result.atom = true;
  const Piece there = argument(emitter, *call.args[1], result.kind);
  const Piece missing = argument(emitter, *call.args[2], result.kind);
  CommonFacts facts;
  facts.add(there);
  facts.add(missing);
  result.searched = true;
  const std::string isThere = bracketed(emitter.expression(*call.args[0])) + " IS NOT NULL";
  if (cannotFail(*call.args[1], result.kind) && cannotFail(*call.args[2], result.kind))
    result.text = "CASE WHEN " + isThere + " THEN " + there.text + elseOf(missing) + " END";
  else
    result.text = "nvl2_of_all(" + isThere + ", " + there.text + ", " + missing.text + ")";
  result.number = facts.facts();
  return result;
}

Piece lowerNullif(Emitter& emitter, const sql::Call& call) {
  Piece result = emitter.expression(*call.args[0]);
  const std::string equal =
      compared(emitter, sql::CompareOp::Equal, result, emitter.expression(*call.args[1]), call.place);
  result.text = "CASE WHEN " + equal + " THEN NULL ELSE " + result.text + " END";
  result.atom = true;
  result.cheap = false;
  result.present = false;
  result.quotient = {};
  return result;
}

}  // namespace kestrelix::embedded
