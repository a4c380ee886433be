#include "repository_file/lowering/rules.h"

namespace kestrelix::repository_file {
namespace {

bool isWholeLiteral(const sql::Expr& expr) {
  const auto* number = sql::as<sql::NumberLiteral>(&expr);
  return number && number->text.find_first_not_of("0123456789") == std::string_view::npos;
}

}  // namespace

Lowered lowerRound(Lowerer& to, const sql::Call& call) {
  if (call.type.kind == sql::TypeKind::Date) return {};
  const bool toWhole = call.args.size() == 1;
  const Value value = to.lowerAs(*call.args[0], sql::TypeKind::Number);
  if (value.number.integral && (toWhole || isWholeLiteral(*call.args[1]))) return value;
  const auto* places = toWhole ? to.integer(0) : to.lowerAs(*call.args[1], sql::TypeKind::Number).node;
  return Value{
      to.call(call.name == "ROUND" ? "num_round" : "num_trunc", {value.node, places, to.place(call.place)}),
      sql::TypeKind::Number};
}

}  // namespace kestrelix::repository_file
