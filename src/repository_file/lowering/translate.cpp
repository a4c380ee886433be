#include "repository_file/lowering/rules.h"

namespace kestrelix::repository_file {
namespace {

bool isOneByte(const sql::Expr& expr) {
  const auto* text = sql::as<sql::StringLiteral>(&expr);
  return text && text->value.size() == 1;
}

}  // namespace

Lowered lowerTranslate(Lowerer& to, const sql::Call& call) {
  if (call.args.size() != 3 || !isOneByte(*call.args[1]) || !isOneByte(*call.args[2])) return {};
  const auto text = [&](int i) {
    return to.converted(to.lower(*call.args[i]), sql::TypeKind::Varchar2, call.place).node;
  };
  return Value{to.call("replace", {text(0), text(1), text(2)}), call.type.kind};
}

}  // namespace kestrelix::repository_file
