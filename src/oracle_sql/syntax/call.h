// Calls of functions, with what may follow them: windows, sort lists, KEEP.
#pragma once

#include "oracle_sql/syntax/node.h"

namespace oracle_sql {

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
/// Grouping: GROUPING, which tells of the grouping that a row belongs to.
enum class CallRole : std::uint8_t { Unresolved, Scalar, Aggregate, Window, Grouping };

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

}  // namespace oracle_sql
