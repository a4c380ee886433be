// NUMBER is decimal and has no bounds that matter. Where both sides are whole and so small that the result
// fits 64 bits for sure, SQLite's own operator gives it; else a function does.
#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {
namespace {

using sql::ArithmeticOp;
using sql::TypeKind;

/// Below 2^63 by more than a double can be wrong.
constexpr double kFits = 9.2e18;

Piece exactOr(const char* function, char op, const Piece& left, const Piece& right, double largest,
              sql::Place place) {
  Piece piece;
  piece.kind = TypeKind::Number;
  if (left.number.integral && right.number.integral && largest <= kFits) {
    piece.text = bracketed(left) + " " + op + " " + bracketed(right);
    piece.number = {true, largest};
  } else {
    piece.text = std::string(function) + "(" + left.text + ", " + right.text + ", " +
                 std::to_string(place.offset) + ")";
    piece.atom = true;
  }
  piece.present = left.present && right.present;
  return piece;
}

/// The literal's value if it is a power of ten of which 64 bits leave room for another factor, else 0.
std::int64_t powerOfTen(const Piece& piece) {
  if (piece.text.size() > 10 || piece.text.front() != '1' ||
      piece.text.find_first_not_of('0', 1) != std::string::npos)
    return 0;
  std::int64_t power = 1;
  for (std::size_t i = 1; i < piece.text.size(); ++i) power *= 10;
  return power;
}

Piece dateCall(const char* function, const Piece& left, const Piece& right, TypeKind kind, sql::Place place) {
  Piece piece;
  piece.kind = kind;
  piece.text =
      std::string(function) + "(" + left.text + ", " + right.text + ", " + std::to_string(place.offset) + ")";
  piece.atom = true;
  return piece;
}

}  // namespace

Piece divided(Emitter&, const Piece& left, const Piece& right, sql::Place place) {
  Piece piece;
  piece.kind = TypeKind::Number;
  piece.atom = true;
  const std::int64_t power = powerOfTen(right);
  std::string dividend = left.text;
  std::string divisor = right.text;
  if (!left.quotient.dividend.empty() && right.number.integral &&
      right.number.largest * static_cast<double>(left.quotient.divisor) <= kFits) {
    // (x / 1000) / y is x / (1000 * y), rounded once either way, and two whole numbers are quicker to divide.
    dividend = left.quotient.dividend;
    divisor = std::to_string(left.quotient.divisor) + " * " + bracketed(right);
  } else if (left.number.integral && power > 0) {
    piece.quotient = {left.text, power, left.number.largest};
  }
  // Only a divisor that may be zero needs the place where the failure is told.
  const bool literal = right.present && right.cheap && right.number.integral && divisor != "0";
  piece.text =
      "num_div(" + dividend + ", " + divisor + (literal ? ")" : ", " + std::to_string(place.offset) + ")");
  return piece;
}

/// A DATE and an INTERVAL literal, which is no value of its own.
Piece dateAndInterval(Emitter& emitter, const sql::Arithmetic& arithmetic,
                      const sql::IntervalLiteral& literal) {
  const sql::Expr& date = arithmetic.left == &literal ? *arithmetic.right : *arithmetic.left;
  const std::int64_t amount = literal.interval.amount;
  Piece piece;
  piece.kind = TypeKind::Date;
  piece.text = "date_interval(" + emitter.expression(date).text + ", " +
               std::to_string(arithmetic.op == ArithmeticOp::Subtract ? -amount : amount) + ", " +
               (literal.interval.months ? "1" : "0") + ", " + std::to_string(arithmetic.place.offset) + ")";
  piece.atom = true;
  return piece;
}

Piece lowerArithmetic(Emitter& emitter, const sql::Arithmetic& arithmetic) {
  if (const auto* interval = sql::intervalOf(arithmetic))
    return dateAndInterval(emitter, arithmetic, *interval);
  if (isLongChain(arithmetic)) return lowerLongChain(emitter, arithmetic);
  Piece left = emitter.expression(*arithmetic.left);
  Piece right = emitter.expression(*arithmetic.right);
  const sql::Place place = arithmetic.place;
  const bool subtract = arithmetic.op == ArithmeticOp::Subtract;
  if (left.kind == TypeKind::Date || right.kind == TypeKind::Date) {
    if (subtract && left.kind == TypeKind::Date && right.kind == TypeKind::Date)
      return dateCall("date_days", left, right, TypeKind::Number, place);
    if (left.kind != TypeKind::Date) std::swap(left, right);
    right = emitter.converted(std::move(right), TypeKind::Number, place);
    return dateCall(subtract ? "date_minus" : "date_plus", left, right, TypeKind::Date, place);
  }
  left = emitter.converted(std::move(left), TypeKind::Number, arithmetic.left->place);
  right = emitter.converted(std::move(right), TypeKind::Number, arithmetic.right->place);
  switch (arithmetic.op) {
    case ArithmeticOp::Add:
      return exactOr("num_add", '+', left, right, left.number.largest + right.number.largest, place);
    case ArithmeticOp::Subtract:
      return exactOr("num_sub", '-', left, right, left.number.largest + right.number.largest, place);
    case ArithmeticOp::Multiply:
      return exactOr("num_mul", '*', left, right, left.number.largest * right.number.largest, place);
    case ArithmeticOp::Divide:
      break;
  }
  return divided(emitter, left, right, place);
}

Piece lowerNegate(Emitter& emitter, const sql::Negate& negate) {
  Piece piece =
      emitter.converted(emitter.expression(*negate.operand), TypeKind::Number, negate.operand->place);
  if (negate.plus) return piece;
  piece.kind = TypeKind::Number;
  piece.quotient = {};
  piece.cheap = false;
  if (piece.number.integral && piece.number.largest <= kFits) {
    piece.text = "-" + bracketed(piece);
    piece.atom = false;
  } else {
    piece.text = "num_neg(" + piece.text + ", " + std::to_string(negate.place.offset) + ")";
    piece.atom = true;
    piece.number = {};
  }
  return piece;
}

}  // namespace kestrelix::embedded
