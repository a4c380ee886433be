// What stands in OVER (...): partition, order, frame. The default frame is Oracle's and SQLite's alike: from
// the first row to the peers of the current one.
#include <optional>

#include "oracle_sql/function_error.h"
#include "oracle_sql/number/number.h"
#include "oracle_sql/syntax/spelling.h"
#include "repository_file/lowering/builders.h"

namespace kestrelix::repository_file {
namespace {

using sql::TypeKind;

/// The value of what is made of literals alone.
std::optional<values::Number> constantOf(const sql::Expr& expr) {
  if (const auto* literal = sql::as<sql::NumberLiteral>(&expr)) return values::Number::parse(literal->text);
  if (const auto* negate = sql::as<sql::Negate>(&expr)) {
    const auto operand = constantOf(*negate->operand);
    return operand && !negate->plus ? -*operand : operand;
  }
  const auto* arithmetic = sql::as<sql::Arithmetic>(&expr);
  if (!arithmetic) return {};
  const auto left = constantOf(*arithmetic->left);
  const auto right = constantOf(*arithmetic->right);
  if (!left || !right) return {};
  switch (arithmetic->op) {
    case sql::ArithmeticOp::Add:
      return *left + *right;
    case sql::ArithmeticOp::Subtract:
      return *left - *right;
    case sql::ArithmeticOp::Multiply:
      return *left * *right;
    case sql::ArithmeticOp::Divide:
      break;
  }
  return *left / *right;
}

/// What a bound of a frame is counted in: rows, the steps between whole keys, or the seconds of a date.
enum class Unit { Rows, Steps, Seconds };

Unit unitOf(Lowerer& to, const sql::Window& window, sql::Place place) {
  if (window.unit == sql::FrameUnit::Rows) return Unit::Rows;
  const Value key = to.lower(*window.orderBy.front().expr);
  if (key.kind == TypeKind::Date) return Unit::Seconds;
  if (key.kind != TypeKind::Number || !key.number.integral)
    throw sql::SqlError::unsupported("RANGE with an offset over a key that is no date and no whole number",
                                     place);
  return Unit::Steps;
}

/// SQLite takes literals and binds as offsets, and no function of them. `takesIn` if a row at that very
/// distance is at the near side of the bound: between whole keys a broken distance is then the next lower
/// one.
const lite::Expr* offsetOf(Lowerer& to, Unit unit, const sql::Expr& offset, bool takesIn) {
  if (const auto* bind = sql::as<sql::BindExpr>(&offset)) {
    const Value value = to.lower(*bind);
    if (value.kind == TypeKind::Number && value.number.integral) {
      to.addFrameBind(bind->name);
      return unit == Unit::Seconds ? to.operation(lite::Operator::Multiply, {value.node, to.integer(86400)})
                                   : value.node;
    }
  }
  std::optional<values::Number> number;
  try {
    number = constantOf(offset);
    if (number && number->isNegative()) values::raiseArgumentOutOfRange(number->toText());
  } catch (const values::FunctionError& error) {
    throw sql::SqlError::wrong(error.code(), error.what(), offset.place);
  }
  if (!number) throw sql::SqlError::unsupported("a frame with an offset that is no literal", offset.place);
  if (unit == Unit::Rows && !number->isInteger())
    throw sql::SqlError::unsupported("a broken number of rows", offset.place);
  if (unit == Unit::Seconds) number = (*number * values::Number(86400)).round();
  return to.integer((takesIn ? number->floor() : number->ceil()).clampToInt64());
}

lite::Bound boundOf(Lowerer& to, const sql::Window& window, const sql::FrameBound& bound, bool isStart) {
  const lite::Expr* offset = nullptr;
  if (bound.offset)
    offset = offsetOf(to, unitOf(to, window, bound.offset->place), *bound.offset,
                      isStart == (bound.kind == sql::BoundKind::Preceding));
  return {offset, sql::spelling(bound.kind)};
}

}  // namespace

const lite::Expr* rowOffset(Lowerer& to, const sql::Expr& expr, int least) {
  const Value offset = to.lowerAs(expr, TypeKind::Number);
  const auto* literal = sql::as<sql::NumberLiteral>(&expr);
  if (literal && offset.number.integral && offset.number.largest >= least) return offset.node;
  return to.call("row_offset", {offset.node, to.integer(least), to.place(expr.place)});
}

lite::Window* lowerPartition(Lowerer& to, const sql::Window& window) {
  lite::Window* lowered = to.window();
  for (const sql::Expr* key : window.partitionBy) lowered->partitionBy.push_back(to.lower(*key).node);
  return lowered;
}

const lite::Window* lowerWindow(Lowerer& to, const sql::Window& window) {
  lite::Window* lowered = lowerPartition(to, window);
  lowered->orderBy = lowerOrder(to, window.orderBy, nullptr);
  if (window.unit == sql::FrameUnit::None) return lowered;
  const bool offset = window.start.offset || window.end.offset;
  if (window.unit == sql::FrameUnit::Range && offset && lowered->orderBy.empty())
    throw sql::SqlError::unsupported("RANGE with an offset over a constant", window.orderBy.front().place);
  lowered->unit = window.unit == sql::FrameUnit::Rows ? "ROWS" : "RANGE";
  lowered->start = boundOf(to, window, window.start, true);
  if (window.between) lowered->end = boundOf(to, window, window.end, false);
  return lowered;
}

}  // namespace kestrelix::repository_file
