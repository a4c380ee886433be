#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {
namespace {

bool isWholeLiteral(const sql::Expr& expr) {
  const auto* number = sql::as<sql::NumberLiteral>(&expr);
  return number && number->text.find_first_not_of("0123456789") == std::string_view::npos;
}

}  // namespace

Piece lowerRound(Emitter& emitter, const sql::Call& call) {
  if (call.type.kind == sql::TypeKind::Date) return lowerCall(emitter, call);
  Piece value =
      emitter.converted(emitter.expression(*call.args[0]), sql::TypeKind::Number, call.args[0]->place);
  const bool noPlacesBefore = call.args.size() == 1 || isWholeLiteral(*call.args[1]);
  if (value.number.integral && noPlacesBefore) return value;
  const Piece places = call.args.size() == 1 ? Piece{"0"}
                                             : emitter.converted(emitter.expression(*call.args[1]),
                                                                 sql::TypeKind::Number, call.args[1]->place);
  Piece result;
  result.kind = sql::TypeKind::Number;
  result.atom = true;
  result.text = std::string(call.name == "ROUND" ? "num_round(" : "num_trunc(") + value.text + ", " +
                places.text + ", " + std::to_string(call.place.offset) + ")";
  return result;
}

}  // namespace kestrelix::embedded
