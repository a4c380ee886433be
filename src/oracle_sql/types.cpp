#include "oracle_sql/types.h"

namespace oracle_sql {

Comparison comparisonOf(Type left, Type right) {
  TypeKind a = left.kind;
  TypeKind b = right.kind;
  if (a == TypeKind::Null) a = b;
  if (b == TypeKind::Null) b = a;
  if (a == TypeKind::Null) return Comparison::Text;
  if (a == b) {
    switch (a) {
      case TypeKind::Number:
        return Comparison::Number;
      case TypeKind::Char:
        return Comparison::PaddedText;
      case TypeKind::Varchar2:
        return Comparison::Text;
      case TypeKind::Date:
        return Comparison::Date;
      case TypeKind::Raw:
        return Comparison::Raw;
      default:
        return Comparison::Invalid;
    }
  }
  const bool aText = a == TypeKind::Char || a == TypeKind::Varchar2;
  const bool bText = b == TypeKind::Char || b == TypeKind::Varchar2;
  if (aText && bText) return Comparison::Text;
  if (!aText && !bText) return Comparison::Invalid;
  switch (aText ? b : a) {
    case TypeKind::Number:
      return Comparison::Number;
    case TypeKind::Date:
      return Comparison::Date;
    case TypeKind::Raw:
      return Comparison::Raw;
    default:
      return Comparison::Invalid;
  }
}

Type commonType(Type a, Type b) {
  if (a.kind == TypeKind::Null) return b;
  if (b.kind == TypeKind::Null) return a;
  if (a.isText() && b.isText()) {
    const bool sameChar =
        a.kind == TypeKind::Char && b.kind == TypeKind::Char && a.length == b.length && a.length != 0;
    return sameChar ? a : Type{TypeKind::Varchar2};
  }
  if (a.kind != b.kind) return {};
  return {a.kind, a.integral && b.integral, 0};
}

const char* typeName(TypeKind kind) {
  switch (kind) {
    case TypeKind::Unresolved:
      return "UNRESOLVED";
    case TypeKind::Null:
      return "NULL";
    case TypeKind::Number:
      return "NUMBER";
    case TypeKind::Varchar2:
      return "VARCHAR2";
    case TypeKind::Char:
      return "CHAR";
    case TypeKind::Date:
      return "DATE";
    case TypeKind::Raw:
      return "RAW";
    case TypeKind::Condition:
      return "CONDITION";
  }
  return "";
}

}  // namespace oracle_sql
