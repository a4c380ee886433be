#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {

Piece lowerCase(Emitter& emitter, const sql::CaseExpr& expr) {
  Piece result;
  result.kind = expr.type.kind;
  CommonFacts facts;
  const auto branch = [&](const sql::Expr& value) {
    Piece piece = emitter.converted(emitter.expression(value), result.kind, value.place);
    facts.add(piece);
    return piece;
  };
  result.text = "CASE";
  for (const auto& arm : expr.whens) {
    const std::string when = expr.operand
                                 ? compared(emitter, sql::CompareOp::Equal, emitter.expression(*expr.operand),
                                            emitter.expression(*arm.when), arm.when->place)
                                 : emitter.condition(*arm.when);
    result.text += " WHEN " + when + " THEN " + branch(*arm.then).text;
  }
  if (expr.otherwise) result.text += elseOf(branch(*expr.otherwise));
  result.text += " END";
  result.atom = true;
  result.searched = true;
  result.number = facts.facts();
  return result;
}

}  // namespace kestrelix::embedded
