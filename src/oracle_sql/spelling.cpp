#include "oracle_sql/spelling.h"

#include <algorithm>

#include "oracle_sql/keywords.h"

namespace oracle_sql {

std::string_view spelling(ArithmeticOp op) {
  switch (op) {
    case ArithmeticOp::Add:
      return "+";
    case ArithmeticOp::Subtract:
      return "-";
    case ArithmeticOp::Multiply:
      return "*";
    case ArithmeticOp::Divide:
      return "/";
  }
  return {};
}

std::string_view spelling(CompareOp op) {
  switch (op) {
    case CompareOp::Equal:
      return "=";
    case CompareOp::NotEqual:
      return "<>";
    case CompareOp::Less:
      return "<";
    case CompareOp::LessEqual:
      return "<=";
    case CompareOp::Greater:
      return ">";
    case CompareOp::GreaterEqual:
      return ">=";
  }
  return {};
}

std::string_view spelling(SetOp op) {
  switch (op) {
    case SetOp::None:
      return {};
    case SetOp::Union:
      return "UNION";
    case SetOp::UnionAll:
      return "UNION ALL";
    case SetOp::Intersect:
      return "INTERSECT";
    case SetOp::Minus:
      return "MINUS";
  }
  return {};
}

std::string_view spelling(JoinKind kind) {
  switch (kind) {
    case JoinKind::Inner:
      return "INNER";
    case JoinKind::Left:
      return "LEFT";
    case JoinKind::Right:
      return "RIGHT";
    case JoinKind::Full:
      return "FULL";
    case JoinKind::Cross:
      return "CROSS";
  }
  return {};
}

std::string_view spelling(BoundKind kind) {
  switch (kind) {
    case BoundKind::UnboundedPreceding:
      return "UNBOUNDED PRECEDING";
    case BoundKind::Preceding:
      return "PRECEDING";
    case BoundKind::CurrentRow:
      return "CURRENT ROW";
    case BoundKind::Following:
      return "FOLLOWING";
    case BoundKind::UnboundedFollowing:
      return "UNBOUNDED FOLLOWING";
  }
  return {};
}

std::string_view spelling(GroupingKind kind) {
  switch (kind) {
    case GroupingKind::Keys:
      return "";
    case GroupingKind::Rollup:
      return "ROLLUP";
    case GroupingKind::Cube:
      return "CUBE";
    case GroupingKind::Sets:
      return "GROUPING SETS";
  }
  return {};
}

std::string spelling(const IntervalFields& fields) {
  static constexpr std::string_view kFields[] = {"YEAR", "MONTH", "DAY", "HOUR", "MINUTE", "SECOND"};
  std::string text(kFields[static_cast<std::size_t>(fields.first)]);
  if (fields.digits != 2) text += "(" + std::to_string(fields.digits) + ")";
  if (fields.last != fields.first) {
    text += " TO ";
    text += kFields[static_cast<std::size_t>(fields.last)];
  }
  return text;
}

std::string castSpelling(const CastExpr& cast) {
  const std::string length = std::to_string(cast.precision) + (cast.inChars ? " CHAR)" : ")");
  switch (cast.target) {
    case TypeKind::Number:
      if (cast.integer) return "INTEGER";
      if (cast.binaryDigits > 0) return "FLOAT(" + std::to_string(cast.binaryDigits) + ")";
      if (cast.precision < 0) return "NUMBER";
      return "NUMBER(" + std::to_string(cast.precision) +
             (cast.scale != 0 ? "," + std::to_string(cast.scale) + ")" : ")");
    case TypeKind::Varchar2:
      return "VARCHAR2(" + length;
    case TypeKind::Char:
      return "CHAR(" + length;
    case TypeKind::Raw:
      return "RAW(" + length;
    default:
      return "DATE";
  }
}

std::string quotedText(std::string_view value) {
  std::string text = "'";
  for (const char c : value) {
    text += c;
    if (c == '\'') text += c;
  }
  return text + '\'';
}

std::string quotedIfNeeded(std::string_view name) {
  const auto letter = [](char c) { return (c >= 'A' && c <= 'Z') || static_cast<unsigned char>(c) >= 0x80; };
  const auto part = [&](char c) {
    return letter(c) || (c >= '0' && c <= '9') || c == '_' || c == '$' || c == '#';
  };
  const bool plain = !name.empty() && letter(name.front()) && std::all_of(name.begin(), name.end(), part) &&
                     wordOf(name).keyword == Keyword::None;
  return plain ? std::string(name) : '"' + std::string(name) + '"';
}

}  // namespace oracle_sql
