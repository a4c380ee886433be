// NVL and its like give the first value that is there, and evaluate none behind it.
#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {
namespace {

Piece argument(Emitter& emitter, const sql::Expr& expr, sql::TypeKind kind) {
  return emitter.converted(emitter.expression(expr), kind, expr.place);
}

}  // namespace

Piece lowerCoalesce(Emitter& emitter, const sql::Call& call) {
  Piece result;
  result.kind = call.type.kind;
  result.atom = true;
  CommonFacts facts;
  std::string list;
  int count = 0;
  for (const sql::Expr* expr : call.args) {
    const Piece piece = argument(emitter, *expr, result.kind);
    if (piece.kind == sql::TypeKind::Null) continue;
    facts.add(piece);
    list += (list.empty() ? "" : ", ") + piece.text;
    result.present = result.present || piece.present;
    ++count;
  }
  // SQLite's coalesce wants two arguments at least.
  for (; count < 2; ++count) list += list.empty() ? "NULL" : ", NULL";
  result.text = "coalesce(" + list + ")";
  result.number = facts.facts();
  return result;
}

Piece lowerEither(Emitter& emitter, const sql::Call& call, const sql::Expr& first, const sql::Expr& second) {
  Piece result;
  result.kind = call.type.kind;
  result.atom = true;
  const Piece value = argument(emitter, first, result.kind);
  const Piece otherwise = argument(emitter, second, result.kind);
  CommonFacts facts;
  facts.add(value);
  facts.add(otherwise);
  result.text = "coalesce(" + value.text + ", " + otherwise.text + ")";
  result.number = facts.facts();
  result.present = value.present || otherwise.present;
  return result;
}

Piece lowerNvl(Emitter& emitter, const sql::Call& call) {
  return lowerEither(emitter, call, *call.args[0], *call.args[1]);
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
  result.text = "CASE WHEN " + bracketed(emitter.expression(*call.args[0])) + " IS NOT NULL THEN " +
                there.text + " ELSE " + missing.text + " END";
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
