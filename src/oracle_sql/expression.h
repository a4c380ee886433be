// Expressions and conditions of a statement, as they are written, with what resolving finds out about them.
#pragma once

#include <cstdint>
#include <memory_resource>
#include <string_view>
#include <vector>

#include "oracle_sql/place.h"
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

enum class NullsOrder : std::uint8_t { Default, First, Last };

struct OrderItem {
  Expr* expr = nullptr;
  bool descending = false;
  NullsOrder nulls = NullsOrder::Default;
  Place place;
  int output = -1;  ///< resolved: sorts by this column of the select list (a position or an alias), else -1

  /// Oracle's default: NULL counts as the greatest value.
  bool nullsFirst() const { return nulls == NullsOrder::Default ? descending : nulls == NullsOrder::First; }
};

enum class FrameUnit : std::uint8_t { None, Rows, Range };
enum class BoundKind : std::uint8_t {
  UnboundedPreceding,
  Preceding,
  CurrentRow,
  Following,
  UnboundedFollowing
};

struct FrameBound {
  BoundKind kind = BoundKind::CurrentRow;
  Expr* offset = nullptr;  ///< of Preceding and Following
};

/// OVER (...). Without a frame and with ORDER BY: RANGE from the first row to the peers of the current one.
struct Window {
  explicit Window(std::pmr::memory_resource* m) : partitionBy(m), orderBy(m) {}
  ExprList partitionBy;
  List<OrderItem> orderBy;
  FrameUnit unit = FrameUnit::None;
  bool between = false;  ///< both bounds written; else the end is the current row
  FrameBound start;
  FrameBound end;
};

/// KEEP (DENSE_RANK FIRST|LAST ORDER BY ...).
struct Keep {
  explicit Keep(std::pmr::memory_resource* m) : orderBy(m) {}
  bool last = false;
  List<OrderItem> orderBy;
};

enum class NullTreatment : std::uint8_t { Default, Respect, Ignore };
enum class CallRole : std::uint8_t { Unresolved, Scalar, Aggregate, Window };

/// A function of any sort: NVL(a, b), COUNT(*), SUM(x) OVER (...), STATSPACK.V1024(...), SYSDATE.
/// TRIM(LEADING x FROM y) has option LEADING and arguments y, x; EXTRACT(YEAR FROM d) option YEAR, argument
/// d.
struct Call : Expr {
  static constexpr ExprKind kKind = ExprKind::Call;
  explicit Call(std::pmr::memory_resource* m) : Expr(kKind), args(m), withinGroup(m) {}
  std::string_view package;  ///< empty without one
  std::string_view name;     ///< upper case
  std::string_view option;   ///< of TRIM and EXTRACT
  bool bare = false;         ///< written without brackets, as SYSDATE
  bool star = false;         ///< COUNT(*)
  bool distinct = false;
  NullTreatment nulls = NullTreatment::Default;
  ExprList args;
  List<OrderItem> withinGroup;  ///< LISTAGG(..) WITHIN GROUP (ORDER BY ..)
  Keep* keep = nullptr;
  Window* over = nullptr;

  CallRole role = CallRole::Unresolved;  ///< resolved
  const Function* function = nullptr;    ///< resolved: the entry of the function table
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

enum class CompareOp : std::uint8_t { Equal, NotEqual, Less, LessEqual, Greater, GreaterEqual };
enum class Quantifier : std::uint8_t { None, Any, All };

/// a < b; a < ANY (list or query).
struct Compare : Expr {
  static constexpr ExprKind kKind = ExprKind::Compare;
  explicit Compare(std::pmr::memory_resource* m) : Expr(kKind), list(m) {}
  CompareOp op = CompareOp::Equal;
  Expr* left = nullptr;
  Expr* right = nullptr;  ///< null with a quantifier
  Quantifier quantifier = Quantifier::None;
  ExprList list;           ///< with a quantifier: its values, unless `query` is set
  Query* query = nullptr;  ///< with a quantifier: its subquery
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
