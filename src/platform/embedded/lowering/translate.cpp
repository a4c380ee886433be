#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {
namespace {

bool isOneByte(const sql::Expr& expr) {
  const auto* text = sql::as<sql::StringLiteral>(&expr);
  return text && text->value.size() == 1;
}

}  // namespace

Piece lowerTranslate(Emitter& emitter, const sql::Call& call) {
  if (call.args.size() != 3 || !isOneByte(*call.args[1]) || !isOneByte(*call.args[2]))
    return lowerCall(emitter, call);
  const auto text = [&](int i) {
    return emitter.converted(emitter.expression(*call.args[i]), sql::TypeKind::Varchar2, call.place).text;
  };
  Piece piece;
  piece.text = "replace(" + text(0) + ", " + text(1) + ", " + text(2) + ")";
  piece.kind = call.type.kind;
  piece.atom = true;
  return piece;
}

}  // namespace kestrelix::embedded
