#include <array>
#include <cmath>

#include "oracle_sql/date/date_format.h"
#include "repository_file/lowering/rules.h"

namespace kestrelix::repository_file {
namespace {

/// A whole number as SQLite's integer, any other one in the byte form that it is stored in.
Value numberOf(Lowerer& to, const sql::NumberLiteral& literal) {
  const auto number = values::Number::parse(literal.text);
  if (!number) throw sql::SqlError::internal("a number literal that is none", literal.place);
  if (const auto whole = number->toInt64())
    return {to.integer(*whole), sql::TypeKind::Number, {true, std::fabs(static_cast<double>(*whole))}};
  std::array<std::uint8_t, values::Number::kMaxBytes> bytes;
  const auto size = number->toBytes(bytes);
  return {to.blob(to.keep({reinterpret_cast<const char*>(bytes.data()), size})), sql::TypeKind::Number};
}

Value dateOf(Lowerer& to, const sql::DateLiteral& literal) {
  return {to.integer(values::dateOfLiteral(literal.value).seconds), sql::TypeKind::Date};
}

Value valueOf(Lowerer& to, const sql::Expr& expr) {
  switch (expr.kind) {
    case sql::ExprKind::Number:
      return numberOf(to, static_cast<const sql::NumberLiteral&>(expr));
    case sql::ExprKind::DateLiteral:
      return dateOf(to, static_cast<const sql::DateLiteral&>(expr));
    case sql::ExprKind::String: {
      const auto value = static_cast<const sql::StringLiteral&>(expr).value;
      if (!value.empty()) return {to.text(value), sql::TypeKind::Char};
      break;
    }
    case sql::ExprKind::Bind: {
      const auto name = static_cast<const sql::BindExpr&>(expr).name;
      const bool number = expr.type.kind == sql::TypeKind::Number;
      return {to.parameter(name), expr.type.kind, number ? to.facts.bind(name) : NumberFacts{}};
    }
    default:
      break;
  }
  return {to.null()};
}

}  // namespace

Lowered lowerLiteral(Lowerer& to, const sql::Expr& expr) {
  Value value = valueOf(to, expr);
  value.cheap = true;
  value.present = expr.kind != sql::ExprKind::Bind && value.kind != sql::TypeKind::Null;
  return value;
}

}  // namespace kestrelix::repository_file
