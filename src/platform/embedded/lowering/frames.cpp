// What stands in OVER (...): partition, order, frame. The default frame is Oracle's and SQLite's alike: from
// the first row to the peers of the current one.
#include <optional>

#include "oracle_sql/function_error.h"
#include "oracle_sql/number.h"
#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {
namespace {

using sql::BoundKind;
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

Unit unitOf(Emitter& emitter, const sql::Window& window, sql::Place place) {
  if (window.unit == sql::FrameUnit::Rows) return Unit::Rows;
  const Piece key = emitter.expression(*window.orderBy.front().expr);
  if (key.kind == TypeKind::Date) return Unit::Seconds;
  if (key.kind != TypeKind::Number || !key.number.integral)
    throw sql::SqlError::unsupported("RANGE with an offset over a key that is no date and no whole number",
                                     place);
  return Unit::Steps;
}

/// SQLite takes literals and binds as offsets, and no function of them. `takesIn` if a row at that very
/// distance is at the near side of the bound: between whole keys a broken distance is then the next lower
/// one.
std::string offsetText(Emitter& emitter, Unit unit, const sql::Expr& offset, bool takesIn) {
  if (const auto* bind = sql::as<sql::BindExpr>(&offset)) {
    const Piece piece = emitter.expression(*bind);
    if (piece.kind == TypeKind::Number && piece.number.integral)
      return unit == Unit::Seconds ? piece.text + " * 86400" : piece.text;
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
  return std::to_string((takesIn ? number->floor() : number->ceil()).clampToInt64());
}

std::string boundText(Emitter& emitter, const sql::Window& window, const sql::FrameBound& bound,
                      bool isStart) {
  switch (bound.kind) {
    case BoundKind::UnboundedPreceding:
      return "UNBOUNDED PRECEDING";
    case BoundKind::UnboundedFollowing:
      return "UNBOUNDED FOLLOWING";
    case BoundKind::CurrentRow:
      return "CURRENT ROW";
    default:
      break;
  }
  const bool before = bound.kind == BoundKind::Preceding;
  return offsetText(emitter, unitOf(emitter, window, bound.offset->place), *bound.offset, isStart == before) +
         (before ? " PRECEDING" : " FOLLOWING");
}

}  // namespace

std::string rowOffset(Emitter& emitter, const sql::Expr& expr, int least) {
  const Piece offset = emitter.converted(emitter.expression(expr), TypeKind::Number, expr.place);
  const auto* literal = sql::as<sql::NumberLiteral>(&expr);
  if (literal && offset.number.integral && offset.number.largest >= least) return offset.text;
  return "row_offset(" + offset.text + ", " + std::to_string(least) + ", " +
         std::to_string(expr.place.offset) + ")";
}

std::string partitionText(Emitter& emitter, const sql::Window& window) {
  std::string text;
  for (const sql::Expr* key : window.partitionBy)
    text += (text.empty() ? "PARTITION BY " : ", ") + emitter.expression(*key).text;
  return text;
}

std::string overText(Emitter& emitter, const sql::Window& window) {
  const std::string order = lowerOrder(emitter, window.orderBy, nullptr);
  std::string text = partitionText(emitter, window) + order;
  if (window.unit != sql::FrameUnit::None) {
    const bool offset = window.start.offset || window.end.offset;
    if (window.unit == sql::FrameUnit::Range && offset && order.empty())
      throw sql::SqlError::unsupported("RANGE with an offset over a constant", window.orderBy.front().place);
    text += window.unit == sql::FrameUnit::Rows ? " ROWS " : " RANGE ";
    const std::string start = boundText(emitter, window, window.start, true);
    text +=
        window.between ? "BETWEEN " + start + " AND " + boundText(emitter, window, window.end, false) : start;
  }
  return " OVER (" + text + ")";
}

}  // namespace kestrelix::embedded
