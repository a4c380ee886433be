// Types of values and the rules that join them.
#pragma once

#include <cstdint>

namespace oracle_sql {

enum class TypeKind : std::uint8_t {
  Unresolved,  ///< before names and types are known
  Null,        ///< the literal NULL or '': fits every type
  Number,
  Varchar2,
  Char,  ///< text literals and CHAR columns: compared with blanks padded
  Date,
  Raw,
  Condition,  ///< true, false or unknown; no value in Oracle
};

struct Type {
  TypeKind kind = TypeKind::Unresolved;
  /// Of a Number: every value is whole and fits 64 bits, NULL apart. Columns marked so, COUNT, whole literals
  /// and ROWNUM are; the result of arithmetic is not, since it can leave the range.
  bool integral = false;
  /// Of a Char: its length in bytes, 0 where unknown.
  std::uint16_t length = 0;

  bool isText() const { return kind == TypeKind::Varchar2 || kind == TypeKind::Char; }
  bool operator==(const Type&) const = default;
};

/// How two values are compared, and which side is converted to what.
enum class Comparison : std::uint8_t {
  Number,      ///< as numbers; text is converted by TO_NUMBER
  Text,        ///< bytewise, exact
  PaddedText,  ///< bytewise, the shorter side padded with blanks: both sides are Char
  Date,        ///< text is converted by TO_DATE with the default format
  Raw,         ///< bytewise; text is converted by HEXTORAW
  Invalid,     ///< Oracle refuses the pair (ORA-00932)
};

/// The rule for `=`, `<`, BETWEEN, IN, simple CASE and NULLIF. A Null side takes the type of the other one.
/// The resolver inserts no conversions: a lowering looks at the types of both sides and asks this.
Comparison comparisonOf(Type left, Type right);

/// The type of CASE, COALESCE and UNION columns for two of their branches; kind Unresolved where Oracle
/// refuses the pair (ORA-00932, ORA-01790). Null takes the type of the other one.
Type commonType(Type a, Type b);

/// NUMBER, VARCHAR2, CHAR, DATE, RAW, NULL, CONDITION.
const char* typeName(TypeKind kind);

}  // namespace oracle_sql
