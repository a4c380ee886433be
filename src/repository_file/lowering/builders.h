// What several rules build alike.
#pragma once

#include "repository_file/lowering/lowerer.h"

namespace kestrelix::repository_file {

/// Below 2^63 by more than a double can be wrong: whole numbers up to here fit 64 bits.
inline constexpr double kFits = 9.2e18;

// ---- values and conditions ----

/// The items of a row, or the one value.
std::vector<Value> lowerRow(Lowerer& to, const sql::Expr& expr);
/// `left op right` in the type that Oracle compares them in.
const lite::Expr* compared(Lowerer& to, sql::CompareOp op, const Value& left, const Value& right,
                           sql::Place place);
/// The operator that says the same with its sides changed over.
sql::CompareOp mirrored(sql::CompareOp op);
/// Both sides of a comparison, brought to the type that they are compared in.
struct Sides {
  Value left;
  Value right;
};
Sides comparable(Lowerer& to, const Value& left, const Value& right, sql::Place place);
/// What two sides compare that count no blanks at their end.
const lite::Expr* withoutBlanks(Lowerer& to, const Value& value);
/// left / right, both numbers.
Value divided(Lowerer& to, const Value& left, const Value& right, sql::Place place);
/// The first of two values that is there. `computesBoth`: the second one is computed all the same.
Value either(Lowerer& to, const sql::Call& call, const sql::Expr& first, const sql::Expr& second,
             bool computesBoth = false);

// ---- calls over several rows ----

/// The call of an aggregate or window function, with OVER where the language's call has it.
lite::Call* setCall(Lowerer& to, const sql::Call& call, std::string_view name, lite::Nodes args);
/// Whether a call names columns of the blocks around its own and none of that.
bool namesOnlyOuter(const sql::Call& call);
/// OVER (...), and its PARTITION BY alone.
const lite::Window* lowerWindow(Lowerer& to, const sql::Window& window);
lite::Window* lowerPartition(Lowerer& to, const sql::Window& window);
/// A count of rows, not below `least` (ORA-01428).
const lite::Expr* rowOffset(Lowerer& to, const sql::Expr& expr, int least);

// ---- sorting ----

/// Whether SQLite would take it for the place of a column: a whole number, signs included.
bool isWholeLiteral(const lite::Expr* expr);
/// What SQLite sorts, groups extremes and compares `value` by.
const lite::Expr* sortKey(Lowerer& to, const Value& value);
/// ORDER BY. `outputs` is the select list that its items may stand for, or null.
lite::List<lite::Order> lowerOrder(Lowerer& to, const sql::List<sql::OrderItem>& items,
                                   const std::vector<Value>* outputs);
/// The order as further arguments of an aggregate (key, how, ...); `backwards` from its end.
void addSortKeys(Lowerer& to, const sql::List<sql::OrderItem>& items, bool backwards,
                 std::vector<const lite::Expr*>& args);

// ---- queries ----

/// set_operators: UNION, MINUS and INTERSECT, one precedence, left to right.
LoweredQuery lowerSetOperators(Lowerer& to, const sql::Query& query);
/// joins: ANSI joins, with USING.
lite::From lowerJoin(Lowerer& to, const sql::JoinItem& join);
/// pivot: PIVOT to grouped CASE aggregates.
lite::Source lowerPivot(Lowerer& to, const sql::PivotItem& pivot);
/// used_columns: what nobody reads of an inline view is not selected.
void markUsedColumns(const sql::Query& query, UsedColumns& used);
bool isUsed(const UsedColumns& used, const sql::SelectBlock& block, std::size_t column);

}  // namespace kestrelix::repository_file
