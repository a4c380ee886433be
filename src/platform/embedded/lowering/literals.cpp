#include <cmath>
#include <cstdlib>

#include "oracle_sql/date_format.h"
#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {
namespace {

Piece numberPiece(const sql::NumberLiteral& literal) {
  const auto number = values::Number::parse(literal.text);
  if (!number) throw sql::SqlError::internal("a number literal that is none", literal.place);
  Piece piece;
  piece.kind = sql::TypeKind::Number;
  piece.text = numberLiteral(*number);
  piece.atom = true;
  piece.cheap = true;
  piece.present = true;
  if (const auto whole = number->toInt64()) piece.number = {true, std::fabs(static_cast<double>(*whole))};
  return piece;
}

Piece datePiece(const sql::DateLiteral& literal) {
  Piece piece;
  piece.kind = sql::TypeKind::Date;
  const values::Date date =
      literal.timestamp ? values::timestampOfLiteral(literal.value) : values::dateOfLiteral(literal.value);
  piece.text = std::to_string(date.seconds);
  piece.atom = true;
  piece.cheap = true;
  piece.present = true;
  return piece;
}

}  // namespace

Piece lowerLiteral(Emitter& emitter, const sql::Expr& expr) {
  Piece piece;
  piece.atom = true;
  piece.cheap = true;
  switch (expr.kind) {
    case sql::ExprKind::Number:
      return numberPiece(*sql::as<sql::NumberLiteral>(&expr));
    case sql::ExprKind::DateLiteral:
      return datePiece(*sql::as<sql::DateLiteral>(&expr));
    case sql::ExprKind::String: {
      const auto value = sql::as<sql::StringLiteral>(&expr)->value;
      piece.text = value.empty() ? "NULL" : textLiteral(value);
      piece.kind = value.empty() ? sql::TypeKind::Null : sql::TypeKind::Char;
      piece.present = !value.empty();
      return piece;
    }
    case sql::ExprKind::Bind: {
      const auto name = sql::as<sql::BindExpr>(&expr)->name;
      piece.text = bindMarker(name);
      piece.kind = expr.type.kind;
      if (piece.kind == sql::TypeKind::Number) piece.number = emitter.facts().bind(name);
      return piece;
    }
    default:
      piece.text = "NULL";
      return piece;
  }
}

}  // namespace kestrelix::embedded
