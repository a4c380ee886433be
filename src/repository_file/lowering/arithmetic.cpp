// NUMBER is decimal and has no bounds that matter. Where both sides are whole and so small that the result
// fits 64 bits for sure, SQLite's own operator gives it; else a function does.
#include "repository_file/lowering/builders.h"
#include "repository_file/lowering/rules.h"

namespace kestrelix::repository_file {
namespace {

using sql::ArithmeticOp;
using sql::TypeKind;

Value exactOr(Lowerer& to, std::string_view function, lite::Operator op, const Value& left,
              const Value& right, double largest, sql::Place place) {
  Value value{nullptr, TypeKind::Number};
  value.present = left.present && right.present;
  if (left.number.integral && right.number.integral && largest <= kFits) {
    value.node = to.operation(op, {left.node, right.node});
    value.number = {true, largest};
  } else {
    value.node = to.call(function, {left.node, right.node, to.place(place)});
  }
  return value;
}

/// The value if it is a power of ten of which 64 bits leave room for another factor, else 0.
std::int64_t powerOfTen(const lite::Expr* expr) {
  const auto* number = lite::as<lite::Integer>(expr);
  std::int64_t power = number && number->value < 10'000'000'000 ? number->value : 0;
  while (power > 1 && power % 10 == 0) power /= 10;
  return power == 1 ? number->value : 0;
}

bool isZero(const lite::Expr* expr) {
  const auto* number = lite::as<lite::Integer>(expr);
  return number && number->value == 0;
}

}  // namespace

Value divided(Lowerer& to, const Value& left, const Value& right, sql::Place place) {
  Value value{nullptr, TypeKind::Number};
  const std::int64_t power = powerOfTen(right.node);
  std::vector<const lite::Expr*> args{left.node, right.node};
  const ExactQuotient& quotient = left.quotient;
  if (quotient.dividend && right.number.integral &&
      right.number.largest * static_cast<double>(quotient.divisor) <= kFits) {
    // (x / 1000) / y is x / (1000 * y), rounded once either way, and two whole numbers are quicker to divide.
    args = {quotient.dividend,
            to.operation(lite::Operator::Multiply, {to.integer(quotient.divisor), right.node})};
  } else if (left.number.integral && power > 0) {
    value.quotient = {left.node, power, left.number.largest};
  }
  // Only a divisor that may be zero needs the place where the failure is told.
  const bool isLiteral = right.present && right.cheap && right.number.integral;
  if (!isLiteral || isZero(right.node)) args.push_back(to.place(place));
  value.node = to.call("num_div", args);
  return value;
}

Lowered lowerDates(Lowerer& to, const sql::Arithmetic& arithmetic) {
  if (arithmetic.left->type.kind != TypeKind::Date && arithmetic.right->type.kind != TypeKind::Date)
    return {};
  Value left = to.lower(*arithmetic.left);
  Value right = to.lower(*arithmetic.right);
  const bool subtract = arithmetic.op == ArithmeticOp::Subtract;
  std::string_view function = subtract ? "date_minus" : "date_plus";
  TypeKind kind = TypeKind::Date;
  if (subtract && left.kind == TypeKind::Date && right.kind == TypeKind::Date) {
    function = "date_days";
    kind = TypeKind::Number;
  } else {
    if (left.kind != TypeKind::Date) std::swap(left, right);
    right = to.converted(right, TypeKind::Number, arithmetic.place);
  }
  return Value{to.call(function, {left.node, right.node, to.place(arithmetic.place)}), kind};
}

Lowered lowerArithmetic(Lowerer& to, const sql::Arithmetic& arithmetic) {
  const Value left = to.lowerAs(*arithmetic.left, TypeKind::Number);
  const Value right = to.lowerAs(*arithmetic.right, TypeKind::Number);
  const double sum = left.number.largest + right.number.largest;
  const double product = left.number.largest * right.number.largest;
  switch (arithmetic.op) {
    case ArithmeticOp::Add:
      return exactOr(to, "num_add", lite::Operator::Add, left, right, sum, arithmetic.place);
    case ArithmeticOp::Subtract:
      return exactOr(to, "num_sub", lite::Operator::Subtract, left, right, sum, arithmetic.place);
    case ArithmeticOp::Multiply:
      return exactOr(to, "num_mul", lite::Operator::Multiply, left, right, product, arithmetic.place);
    case ArithmeticOp::Divide:
      break;
  }
  return divided(to, left, right, arithmetic.place);
}

Lowered lowerNegate(Lowerer& to, const sql::Negate& negate) {
  Value value = to.lowerAs(*negate.operand, TypeKind::Number);
  if (negate.plus) return value;
  const bool exact = value.number.integral && value.number.largest <= kFits;
  value.node = exact ? to.operation(lite::Operator::Minus, {value.node})
                     : to.call("num_neg", {value.node, to.place(negate.place)});
  if (!exact) value.number = {};
  value.kind = TypeKind::Number;
  value.quotient = {};
  value.cheap = false;
  return value;
}

}  // namespace kestrelix::repository_file
