#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {

Piece lowerCast(Emitter& emitter, const sql::CastExpr& cast) {
  Piece piece = emitter.expression(*cast.operand);
  const bool fromText = sql::Type{piece.kind}.isText();
  piece = emitter.converted(std::move(piece), cast.target, cast.place);
  const std::string place = std::to_string(cast.place.offset);
  const std::string length = std::to_string(cast.precision);
  Piece result;
  result.kind = cast.type.kind;
  result.atom = true;
  switch (cast.target) {
    case sql::TypeKind::Number:
      if (cast.binaryDigits > 0) {
        result.text =
            "cast_float(" + piece.text + ", " + std::to_string(cast.binaryDigits) + ", " + place + ")";
        return result;
      }
      if (cast.precision < 0 && !cast.integer) {
        piece.kind = result.kind;
        return piece;
      }
      result.text = "cast_number(" + piece.text + ", " + (cast.integer ? "38" : length) + ", " +
                    std::to_string(cast.scale) + ", " + place + ")";
      return result;
    case sql::TypeKind::Varchar2:
    case sql::TypeKind::Char:
      if (cast.precision < 0 && cast.target == sql::TypeKind::Varchar2) {
        piece.kind = result.kind;
        return piece;
      }
      result.text = std::string(cast.target == sql::TypeKind::Char ? "cast_char(" : "cast_varchar(") +
                    piece.text + ", " + (cast.precision < 0 ? "1" : length) + ", " +
                    (cast.inChars ? "1" : "0") + ", " + (fromText ? "1" : "0") + ", " + place + ")";
      return result;
    default:
      piece.kind = result.kind;
      return piece;
  }
}

}  // namespace kestrelix::embedded
