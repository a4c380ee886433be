// The base of every node of an expression.
#pragma once

#include <cstdint>
#include <memory_resource>
#include <string_view>
#include <vector>

#include "oracle_sql/syntax/place.h"
#include "oracle_sql/types.h"

namespace oracle_sql {

struct Query;
struct FromItem;
struct Function;

template <class T>
using List = std::pmr::vector<T>;

enum class ExprKind : std::uint8_t {
  // values
  Null,
  Number,
  String,
  DateLiteral,
  Column,
  Rownum,
  Bind,
  Negate,
  Arithmetic,
  Concat,
  Case,
  Call,
  Cast,
  Subquery,
  Row,
  // conditions
  Compare,
  And,
  Or,
  Not,
  Between,
  In,
  Like,
  IsNull,
  Exists,
  Lnnvl,
};

/// Base of every node of an expression. Nodes live in the arena of their Tree and are never destroyed one by
/// one; texts point into the statement or into the arena.
struct Expr {
  ExprKind kind;
  std::uint16_t height = 1;  ///< of the tree below, 1 for a leaf
  Place place;               ///< of its operator or first token
  Type type;                 ///< resolved

 protected:
  explicit Expr(ExprKind k) : kind(k) {}
};

using ExprList = List<Expr*>;

inline bool isCondition(const Expr& e) { return e.kind >= ExprKind::Compare; }

/// The node as a T, or null if it is another kind.
template <class T>
T* as(Expr* e) {
  return e && e->kind == T::kKind ? static_cast<T*>(e) : nullptr;
}
template <class T>
const T* as(const Expr* e) {
  return e && e->kind == T::kKind ? static_cast<const T*>(e) : nullptr;
}

}  // namespace oracle_sql
