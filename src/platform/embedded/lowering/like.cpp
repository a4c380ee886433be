#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {

std::string lowerLike(Emitter& emitter, const sql::LikeExpr& like) {
  const auto text = [&](const sql::Expr& expr) {
    return emitter.converted(emitter.expression(expr), sql::TypeKind::Varchar2, expr.place).text;
  };
  const std::string call = "ora_like(" + text(*like.operand) + ", " + text(*like.pattern) + ", " +
                           (like.escape ? text(*like.escape) : "''") + ", " +
                           std::to_string(like.place.offset) + ")";
  return like.negated ? "(NOT " + call + ")" : call;
}

}  // namespace kestrelix::embedded
