#include <cmath>
#include <cstdlib>

#include "oracle_sql/date.h"
#include "oracle_sql/function_error.h"
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

int digits(std::string_view text, std::size_t from, std::size_t count) {
  int value = 0;
  for (const char c : text.substr(from, count)) value = value * 10 + (c - '0');
  return value;
}

Piece datePiece(const sql::DateLiteral& literal) {
  // The resolver has checked the form YYYY-MM-DD.
  const auto month = literal.value.find('-', 1) + 1;
  const auto day = literal.value.find('-', month) + 1;
  values::DateFields fields;
  const std::size_t sign = literal.value.front() == '-' || literal.value.front() == '+' ? 1 : 0;
  fields.year = digits(literal.value, sign, month - 1 - sign);
  if (literal.value.front() == '-') fields.year = -fields.year;
  fields.month = digits(literal.value, month, day - 1 - month);
  fields.day = digits(literal.value, day, literal.value.size() - day);
  Piece piece;
  piece.kind = sql::TypeKind::Date;
  try {
    piece.text = std::to_string(values::Date::fromFields(fields).seconds);
  } catch (const values::FunctionError& error) {
    // Days that the calendar lacks, such as the leap days of years before Christ.
    throw sql::SqlError::wrong(error.code(), error.what(), literal.place);
  }
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
