// Conditions: what is true, false or unknown, and no value in Oracle.
#pragma once

#include "oracle_sql/syntax/node.h"

namespace oracle_sql {

enum class CompareOp : std::uint8_t { Equal, NotEqual, Less, LessEqual, Greater, GreaterEqual };

/// a < b.
struct Compare : Expr {
  static constexpr ExprKind kKind = ExprKind::Compare;
  Compare() : Expr(kKind) {}
  CompareOp op = CompareOp::Equal;
  Expr* left = nullptr;
  Expr* right = nullptr;
};

/// Two or more terms.
struct AndExpr : Expr {
  static constexpr ExprKind kKind = ExprKind::And;
  explicit AndExpr(std::pmr::memory_resource* m) : Expr(kKind), terms(m) {}
  ExprList terms;
};

struct OrExpr : Expr {
  static constexpr ExprKind kKind = ExprKind::Or;
  explicit OrExpr(std::pmr::memory_resource* m) : Expr(kKind), terms(m) {}
  ExprList terms;
};

struct NotExpr : Expr {
  static constexpr ExprKind kKind = ExprKind::Not;
  NotExpr() : Expr(kKind) {}
  Expr* operand = nullptr;
};

struct Between : Expr {
  static constexpr ExprKind kKind = ExprKind::Between;
  Between() : Expr(kKind) {}
  bool negated = false;
  Expr* operand = nullptr;
  Expr* low = nullptr;
  Expr* high = nullptr;
};

/// x IN (list) or x IN (query); x may be a Row, and the list's items are Rows then.
struct InExpr : Expr {
  static constexpr ExprKind kKind = ExprKind::In;
  explicit InExpr(std::pmr::memory_resource* m) : Expr(kKind), list(m) {}
  bool negated = false;
  Expr* operand = nullptr;
  ExprList list;
  Query* query = nullptr;
};

struct LikeExpr : Expr {
  static constexpr ExprKind kKind = ExprKind::Like;
  LikeExpr() : Expr(kKind) {}
  bool negated = false;
  Expr* operand = nullptr;
  Expr* pattern = nullptr;
  Expr* escape = nullptr;  ///< null without ESCAPE: then no character escapes
};

struct IsNull : Expr {
  static constexpr ExprKind kKind = ExprKind::IsNull;
  IsNull() : Expr(kKind) {}
  bool negated = false;
  Expr* operand = nullptr;
};

struct Exists : Expr {
  static constexpr ExprKind kKind = ExprKind::Exists;
  Exists() : Expr(kKind) {}
  Query* query = nullptr;
};

/// LNNVL(condition): true where the condition is false or unknown.
struct Lnnvl : Expr {
  static constexpr ExprKind kKind = ExprKind::Lnnvl;
  Lnnvl() : Expr(kKind) {}
  Expr* operand = nullptr;
};

}  // namespace oracle_sql
