// Values: literals, columns, operators, CASE, CAST.
#pragma once

#include "oracle_sql/syntax/node.h"

namespace oracle_sql {

struct NullLiteral : Expr {
  static constexpr ExprKind kKind = ExprKind::Null;
  NullLiteral() : Expr(kKind) {}
};

struct NumberLiteral : Expr {
  static constexpr ExprKind kKind = ExprKind::Number;
  NumberLiteral() : Expr(kKind) {}
  std::string_view text;  ///< as written, without sign
};

/// '' included, whose type is Null.
struct StringLiteral : Expr {
  static constexpr ExprKind kKind = ExprKind::String;
  StringLiteral() : Expr(kKind) {}
  std::string_view value;
};

/// DATE 'YYYY-MM-DD'. The value is checked by the resolver.
struct DateLiteral : Expr {
  static constexpr ExprKind kKind = ExprKind::DateLiteral;
  DateLiteral() : Expr(kKind) {}
  std::string_view value;
};

/// A name with up to two qualifiers.
struct ColumnRef : Expr {
  static constexpr ExprKind kKind = ExprKind::Column;
  ColumnRef() : Expr(kKind) {}
  std::string_view schema;     ///< upper case unless quoted; empty if not written
  std::string_view qualifier;  ///< likewise
  std::string_view name;       ///< likewise
  bool outerMark = false;      ///< (+) stands behind it

  // Resolved: either a column of a FROM item, or in ORDER BY an item of the select list.
  const FromItem* source =
      nullptr;        ///< a leaf (Table, Derived, Pivot), or a Join for a column merged by USING
  int column = -1;    ///< index in source->columns, for a Join in its `merged`
  int levelsOut = 0;  ///< 0: own block; 1: the block around; and so on
  int output = -1;    ///< index in SelectBlock::columns; source is null then
};

struct RownumExpr : Expr {
  static constexpr ExprKind kKind = ExprKind::Rownum;
  RownumExpr() : Expr(kKind) {}
};

struct BindExpr : Expr {
  static constexpr ExprKind kKind = ExprKind::Bind;
  BindExpr() : Expr(kKind) {}
  std::string_view name;  ///< upper case, without the colon
};

/// -x; also +x, which is x.
struct Negate : Expr {
  static constexpr ExprKind kKind = ExprKind::Negate;
  Negate() : Expr(kKind) {}
  bool plus = false;
  Expr* operand = nullptr;
};

enum class ArithmeticOp : std::uint8_t { Add, Subtract, Multiply, Divide };

struct Arithmetic : Expr {
  static constexpr ExprKind kKind = ExprKind::Arithmetic;
  Arithmetic() : Expr(kKind) {}
  ArithmeticOp op = ArithmeticOp::Add;
  Expr* left = nullptr;
  Expr* right = nullptr;
};

/// a || b, two operands.
struct Concat : Expr {
  static constexpr ExprKind kKind = ExprKind::Concat;
  Concat() : Expr(kKind) {}
  Expr* left = nullptr;
  Expr* right = nullptr;
};

struct CaseWhen {
  Expr* when = nullptr;  ///< a condition, or a value where the CASE has an operand
  Expr* then = nullptr;
};

struct CaseExpr : Expr {
  static constexpr ExprKind kKind = ExprKind::Case;
  explicit CaseExpr(std::pmr::memory_resource* m) : Expr(kKind), whens(m) {}
  Expr* operand = nullptr;  ///< null for the searched form
  List<CaseWhen> whens;
  Expr* otherwise = nullptr;  ///< null without ELSE
};

/// CAST(x AS type).
struct CastExpr : Expr {
  static constexpr ExprKind kKind = ExprKind::Cast;
  CastExpr() : Expr(kKind) {}
  Expr* operand = nullptr;
  TypeKind target = TypeKind::Number;
  int precision = -1;    ///< of NUMBER: digits, -1 if not written; of text and RAW: length
  int scale = 0;         ///< of NUMBER(p, s)
  bool integer = false;  ///< written INTEGER, INT or SMALLINT: NUMBER(38)
  bool inChars = false;  ///< of text: the length counts characters, not bytes
};

/// A scalar subquery: no row is NULL, two rows are an error (ORA-01427).
struct SubqueryExpr : Expr {
  static constexpr ExprKind kKind = ExprKind::Subquery;
  SubqueryExpr() : Expr(kKind) {}
  Query* query = nullptr;
};

/// (a, b), on either side of IN and of =.
struct RowExpr : Expr {
  static constexpr ExprKind kKind = ExprKind::Row;
  explicit RowExpr(std::pmr::memory_resource* m) : Expr(kKind), items(m) {}
  ExprList items;
};

}  // namespace oracle_sql
