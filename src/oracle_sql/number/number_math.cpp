#include <boost/multiprecision/cpp_dec_float.hpp>
#include <boost/multiprecision/cpp_int.hpp>

#include "oracle_sql/function_error.h"
#include "oracle_sql/number/number.h"

namespace oracle_sql {
namespace {

/// Far more digits than NUMBER keeps, so that one rounding at the end is the only one that shows.
using Real = boost::multiprecision::number<boost::multiprecision::cpp_dec_float<100>>;
using Integer = boost::multiprecision::cpp_int;

Real toReal(const Number& n) { return Real(n.toPlainText()); }

Number fromReal(const Real& value) {
  if (!boost::multiprecision::isfinite(value) || boost::multiprecision::abs(value) > Real("1e130"))
    raiseNumericOverflow();
  const auto number = Number::parse(value.str(60, std::ios_base::scientific));
  return number ? *number : Number();
}

/// n = result * 100^exponent
Integer scaled(const NumberParts& p, int exponent) {
  Integer value = 0;
  for (int i = 0; i < p.count; ++i) value = value * 100 + p.digit[i];
  for (int i = p.exponent - p.count + 1; i > exponent; --i) value *= 100;
  return value;
}

Number fromInteger(Integer value, int exponent, bool negative) {
  std::uint8_t digits[220];
  std::size_t at = sizeof digits;
  while (value != 0) {
    digits[--at] = static_cast<std::uint8_t>(static_cast<unsigned>(Integer(value % 100)));
    value /= 100;
  }
  const std::size_t count = sizeof digits - at;
  return Number::fromDigits({digits + at, count}, exponent + static_cast<int>(count) - 1, negative);
}

/// What is left of |n| over |m|, both scaled to whole numbers. `nearest` counts back from the nearest
/// multiple.
Number rest(const Number& n, const Number& m, bool nearest) {
  const NumberParts a = n.parts();
  const NumberParts b = m.parts();
  const int exponent = std::min(a.exponent - a.count, b.exponent - b.count) + 1;
  const Integer divisor = scaled(b, exponent);
  const Integer dividend = scaled(a, exponent);
  const Integer quotient = dividend / divisor;
  Integer left = dividend - quotient * divisor;
  bool negative = a.negative;
  if (nearest) {
    const Integer twice = left * 2;
    if (twice > divisor || (twice == divisor && quotient % 2 != 0)) {
      left = divisor - left;
      negative = !negative;
    }
  }
  return fromInteger(left, exponent, negative);
}

/// Beyond this power of e every result has left the range of NUMBER: no need to compute it.
constexpr int kLargestExponential = 400;

Number exponentialOf(const Real& x) {
  if (x > kLargestExponential) raiseNumericOverflow();
  return x < -kLargestExponential ? Number() : fromReal(boost::multiprecision::exp(x));
}

Number byLogarithm(const Number& base, const Number& exponent) {
  return exponentialOf(toReal(exponent) * boost::multiprecision::log(toReal(base)));
}

}  // namespace

Number mod(const Number& n, const Number& m) {
  if (m.isZero() || n.isZero()) return n;
  if (n.isInt64() && m.isInt64()) return *m.toInt64() == -1 ? Number() : Number(*n.toInt64() % *m.toInt64());
  return rest(n, m, false);
}

Number remainder(const Number& n, const Number& m) {
  if (m.isZero()) raiseDivisionByZero();
  return n.isZero() ? n : rest(n, m, true);
}

std::string hexadecimal(const Number& whole) {
  return scaled(whole.parts(), 0).str(0, std::ios_base::hex | std::ios_base::uppercase);
}

Number power(const Number& base, const Number& exponent) {
  if (exponent.isZero()) return Number(1);
  if (base.isZero()) {
    if (exponent.isNegative()) raiseArgumentOutOfRange(base.toText());
    return base;
  }
  if (base.isNegative() && !exponent.isInteger()) raiseArgumentOutOfRange(base.toText());
  constexpr std::int64_t kBySquaring = 1000000000;
  if (!exponent.isInt64() || exponent.abs() > Number(kBySquaring)) {
    const bool odd = !mod(exponent, Number(2)).isZero();
    const Number size = byLogarithm(base.abs(), exponent);
    return base.isNegative() && odd ? -size : size;
  }
  // By squaring, so that a whole power of a short number is exact.
  std::int64_t left = *exponent.abs().toInt64();
  Real factor = toReal(base);
  Real result = 1;
  while (left != 0) {
    if ((left & 1) != 0) result *= factor;
    left >>= 1;
    if (left != 0) factor *= factor;
  }
  if (!exponent.isNegative()) return fromReal(result);
  return boost::multiprecision::isfinite(result) ? fromReal(1 / result) : Number();
}

Number sqrt(const Number& n) {
  if (n.isNegative()) raiseArgumentOutOfRange(n.toText());
  return n.isZero() ? n : fromReal(boost::multiprecision::sqrt(toReal(n)));
}

Number exp(const Number& n) { return exponentialOf(toReal(n)); }

Number ln(const Number& n) {
  if (n.sign() <= 0) raiseArgumentOutOfRange(n.toText());
  return fromReal(boost::multiprecision::log(toReal(n)));
}

Number log(const Number& base, const Number& n) {
  const bool badBase = base.sign() <= 0 || compare(base, Number(1)) == 0;
  if (badBase || n.sign() <= 0) raiseArgumentOutOfRange((badBase ? base : n).toText());
  return fromReal(boost::multiprecision::log(toReal(n)) / boost::multiprecision::log(toReal(base)));
}

}  // namespace oracle_sql
