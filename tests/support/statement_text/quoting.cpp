#include "support/statement_text/quoting.h"

#include <algorithm>

#include "oracle_sql/syntax/keywords.h"

namespace oracle_sql {

std::string castSpelling(const CastExpr& cast) {
  const std::string length = std::to_string(cast.precision) + (cast.inChars ? " CHAR)" : ")");
  switch (cast.target) {
    case TypeKind::Number:
      if (cast.integer) return "INTEGER";
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
