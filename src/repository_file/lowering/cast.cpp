#include "repository_file/lowering/rules.h"

namespace kestrelix::repository_file {
namespace {

const lite::Expr* castNumber(Lowerer& to, const sql::CastExpr& cast, const lite::Expr* operand) {
  if (cast.precision < 0 && !cast.integer) return operand;
  return to.call("cast_number", {operand, to.integer(cast.integer ? 38 : cast.precision),
                                 to.integer(cast.scale), to.place(cast.place)});
}

const lite::Expr* castText(Lowerer& to, const sql::CastExpr& cast, const lite::Expr* operand, bool fromText) {
  const bool isChar = cast.target == sql::TypeKind::Char;
  if (cast.precision < 0 && !isChar) return operand;
  return to.call(isChar ? "cast_char" : "cast_varchar",
                 {operand, to.integer(cast.precision < 0 ? 1 : cast.precision),
                  to.integer(cast.inChars ? 1 : 0), to.integer(fromText ? 1 : 0), to.place(cast.place)});
}

}  // namespace

Lowered lowerCast(Lowerer& to, const sql::CastExpr& cast) {
  const Value operand = to.lower(*cast.operand);
  Value value = to.converted(operand, cast.target, cast.place);
  const lite::Expr* node = value.node;
  if (cast.target == sql::TypeKind::Number) node = castNumber(to, cast, node);
  if (sql::Type{cast.target}.isText()) node = castText(to, cast, node, sql::Type{operand.kind}.isText());
  if (node != value.node) return Value{node, cast.type.kind};
  value.kind = cast.type.kind;
  return value;
}

}  // namespace kestrelix::repository_file
