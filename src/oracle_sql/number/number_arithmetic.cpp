#include <algorithm>
#include <cstring>

#include "oracle_sql/function_error.h"
#include "oracle_sql/number/number.h"

namespace oracle_sql {
namespace {

__extension__ typedef __int128 Wide;
__extension__ typedef unsigned __int128 UnsignedWide;

std::uint64_t magnitude(std::int64_t value) {
  return value < 0 ? std::uint64_t{0} - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
}

Number fromWide(Wide value) {
  UnsignedWide rest = value < 0 ? -static_cast<UnsignedWide>(value) : static_cast<UnsignedWide>(value);
  std::uint8_t digits[20];
  int at = 20;
  while (rest != 0) {
    digits[--at] = static_cast<std::uint8_t>(rest % 100);
    rest /= 100;
  }
  return Number::fromDigits({digits + at, static_cast<std::size_t>(20 - at)}, 19 - at, value < 0);
}

/// |a| + |b| or |a| - |b|, with the sign of a. Beyond a distance of 22 digits b cannot move the rounding of
/// a.
Number combine(const NumberParts& a, const NumberParts& b, bool subtract) {
  const int distance = a.exponent - b.exponent;
  if (distance > 21)
    return Number::fromDigits({a.digit, static_cast<std::size_t>(a.count)}, a.exponent, a.negative);
  std::uint8_t out[1 + 20 + 22] = {};  // the first for a carry
  std::memcpy(out + 1, a.digit, static_cast<std::size_t>(a.count));
  const int last = std::max(a.count, distance + b.count);
  int carry = 0;
  for (int i = distance + b.count; i >= 1; --i) {
    const int digit = i > distance ? b.digit[i - distance - 1] : 0;
    int sum = subtract ? out[i] - digit - carry : out[i] + digit + carry;
    carry = 0;
    if (sum < 0) {
      sum += 100;
      carry = 1;
    } else if (sum >= 100) {
      sum -= 100;
      carry = 1;
    }
    out[i] = static_cast<std::uint8_t>(sum);
    if (carry == 0 && i <= distance + 1) break;
  }
  out[0] = static_cast<std::uint8_t>(carry);
  return Number::fromDigits({out, static_cast<std::size_t>(last + 1)}, a.exponent + 1, a.negative);
}

bool smallerMagnitude(const NumberParts& a, const NumberParts& b) {
  if (a.exponent != b.exponent) return a.exponent < b.exponent;
  const int order = std::memcmp(a.digit, b.digit, static_cast<std::size_t>(std::min(a.count, b.count)));
  return order != 0 ? order < 0 : a.count < b.count;
}

Number add(const NumberParts& a, const NumberParts& b) {
  if (a.count == 0)
    return Number::fromDigits({b.digit, static_cast<std::size_t>(b.count)}, b.exponent, b.negative);
  if (b.count == 0)
    return Number::fromDigits({a.digit, static_cast<std::size_t>(a.count)}, a.exponent, a.negative);
  const bool subtract = a.negative != b.negative;
  return smallerMagnitude(a, b) ? combine(b, a, subtract) : combine(a, b, subtract);
}

/// Four base-100 digits to a limb: a magnitude as 0.L0L1L2.. in base 10^8.
constexpr std::uint64_t kBase = 100000000;
constexpr int kLimbs = 5;

int pack(const NumberParts& p, std::uint64_t (&limbs)[kLimbs]) {
  const int count = (p.count + 3) / 4;
  std::uint8_t padded[20] = {};
  std::memcpy(padded, p.digit, static_cast<std::size_t>(p.count));
  for (int i = 0; i < count; ++i) {
    const std::uint8_t* d = padded + static_cast<std::ptrdiff_t>(4) * i;
    limbs[i] = ((d[0] * 100U + d[1]) * 100U + d[2]) * 100U + d[3];
  }
  return count;
}

void unpack(std::uint64_t limb, std::uint8_t* out) {
  const auto value = static_cast<std::uint32_t>(limb);
  const std::uint32_t high = value / 10000;
  const std::uint32_t low = value % 10000;
  out[0] = static_cast<std::uint8_t>(high / 100);
  out[1] = static_cast<std::uint8_t>(high % 100);
  out[2] = static_cast<std::uint8_t>(low / 100);
  out[3] = static_cast<std::uint8_t>(low % 100);
}

Number multiply(const NumberParts& a, const NumberParts& b) {
  if (a.count == 0 || b.count == 0) return Number();
  std::uint64_t x[kLimbs];
  std::uint64_t y[kLimbs];
  const int m = pack(a, x);
  const int n = pack(b, y);
  std::uint64_t columns[2 * kLimbs] = {};
  for (int i = 0; i < m; ++i) {
    for (int j = 0; j < n; ++j) {
      columns[i + j + 1] += x[i] * y[j];  // at most five products below 10^16
    }
  }
  for (int i = m + n - 1; i > 0; --i) {
    columns[i - 1] += columns[i] / kBase;
    columns[i] %= kBase;
  }
  std::uint8_t digits[8 * kLimbs];
  for (int i = 0; i < m + n; ++i) unpack(columns[i], digits + static_cast<std::ptrdiff_t>(4) * i);
  return Number::fromDigits({digits, static_cast<std::size_t>(4 * (m + n))}, a.exponent + b.exponent + 1,
                            a.negative != b.negative);
}

/// The digits of a number that has few of them, as one whole number.
constexpr int kShortDigits = 9;

std::uint64_t shortDigits(const NumberParts& p) {
  std::uint64_t value = 0;
  for (int i = 0; i < p.count; ++i) value = value * 100 + p.digit[i];
  return value;
}

/// Of two whole numbers, times 100^shift: the quotient, then nine digits of the fraction at a time.
Number divideWhole(std::uint64_t a, std::uint64_t b, int shift, bool negative) {
  constexpr std::uint64_t kStep = 1000000000000000000;  // 100^9
  constexpr int kSignificant = 21;                      // one more than kept: it decides the rounding
  std::uint8_t digits[10 + 9 * 5];
  std::uint64_t quotient = a / b;
  std::uint64_t rest = a % b;
  int count = 0;
  while (quotient != 0) {
    digits[9 - count++] = static_cast<std::uint8_t>(quotient % 100);
    quotient /= 100;
  }
  std::memmove(digits, digits + 10 - count, static_cast<std::size_t>(count));
  const int exponent = count - 1 + shift;
  int significant = count;
  while (rest != 0 && significant < kSignificant) {
    const UnsignedWide scaled = static_cast<UnsignedWide>(rest) * kStep;
    const auto chunk = static_cast<std::uint64_t>(scaled / b);
    rest = static_cast<std::uint64_t>(scaled - static_cast<UnsignedWide>(chunk) * b);
    const bool leading = significant == 0;
    const std::uint64_t high = chunk / kBase;
    digits[count] = static_cast<std::uint8_t>(high / kBase);
    unpack(high % kBase, digits + count + 1);
    unpack(chunk % kBase, digits + count + 5);
    if (leading) {
      const std::uint8_t* begin = digits + count;
      significant =
          static_cast<int>(begin + 9 - std::find_if(begin, begin + 9, [](auto d) { return d != 0; }));
    } else {
      significant += 9;
    }
    count += 9;
  }
  return Number::fromDigits({digits, static_cast<std::size_t>(count)}, exponent, negative);
}

/// Long division in base 10^8 (Knuth's algorithm D): 23 digits of the quotient at least.
Number divide(const NumberParts& a, const NumberParts& b) {
  constexpr int kFraction = 6;  // limbs of the quotient behind its point
  std::uint64_t x[kLimbs] = {};
  std::uint64_t y[kLimbs] = {};
  const int m = pack(a, x);
  const int n = pack(b, y);
  // a / b as whole numbers: (x * base^kFraction) / y, both shifted to a large first limb of the divisor.
  const std::uint64_t scale = kBase / (y[0] + 1);
  std::uint64_t divisor[kLimbs] = {};
  std::uint64_t carry = 0;
  for (int i = n - 1; i >= 0; --i) {
    const std::uint64_t value = y[i] * scale + carry;
    divisor[i] = value % kBase;
    carry = value / kBase;
  }
  constexpr int kRest = kLimbs + kFraction + 1;
  std::uint64_t rest[kRest + 1] = {};
  carry = 0;
  for (int i = m - 1; i >= 0; --i) {
    const std::uint64_t value = x[i] * scale + carry;
    rest[i + 1] = value % kBase;
    carry = value / kBase;
  }
  rest[0] = carry;
  std::uint8_t digits[4 * (kFraction + 1)];
  for (int step = 0; step <= kFraction; ++step) {
    std::uint64_t* r = rest + step;  // n + 1 limbs take part
    const std::uint64_t top = r[0] * kBase + r[1];
    std::uint64_t guess = std::min(top / divisor[0], kBase - 1);
    if (n > 1) {
      while (true) {
        const std::uint64_t left = top - guess * divisor[0];
        if (left >= kBase || guess * divisor[1] <= left * kBase + r[2]) break;
        --guess;
      }
    }
    std::int64_t borrow = 0;
    for (int i = n; i >= 1; --i) {
      std::int64_t value =
          static_cast<std::int64_t>(r[i]) + borrow - static_cast<std::int64_t>(guess * divisor[i - 1]);
      borrow = value / static_cast<std::int64_t>(kBase);
      value %= static_cast<std::int64_t>(kBase);
      if (value < 0) {
        value += static_cast<std::int64_t>(kBase);
        --borrow;
      }
      r[i] = static_cast<std::uint64_t>(value);
    }
    if (static_cast<std::int64_t>(r[0]) + borrow < 0) {  // guessed one too many: add the divisor back
      --guess;
      std::uint64_t over = 0;
      for (int i = n; i >= 1; --i) {
        const std::uint64_t sum = r[i] + divisor[i - 1] + over;
        r[i] = sum % kBase;
        over = sum / kBase;
      }
    }
    r[0] = 0;
    unpack(guess, digits + static_cast<std::ptrdiff_t>(4) * step);
  }
  return Number::fromDigits({digits, sizeof digits}, a.exponent - b.exponent + 3, a.negative != b.negative);
}

}  // namespace

Number operator+(const Number& a, const Number& b) {
  if (a.form_ == 0 && b.form_ == 0) {
    std::int64_t sum = 0;
    if (!__builtin_add_overflow(a.whole_, b.whole_, &sum)) return sum;
    return fromWide(static_cast<Wide>(a.whole_) + b.whole_);
  }
  return add(a.parts(), b.parts());
}

Number operator-(const Number& a, const Number& b) {
  if (a.form_ == 0 && b.form_ == 0) {
    std::int64_t difference = 0;
    if (!__builtin_sub_overflow(a.whole_, b.whole_, &difference)) return difference;
    return fromWide(static_cast<Wide>(a.whole_) - b.whole_);
  }
  NumberParts negated = b.parts();
  negated.negative = !negated.negative;
  return add(a.parts(), negated);
}

Number operator*(const Number& a, const Number& b) {
  if (a.form_ == 0 && b.form_ == 0) {
    std::int64_t product = 0;
    if (!__builtin_mul_overflow(a.whole_, b.whole_, &product)) return product;
    return fromWide(static_cast<Wide>(a.whole_) * b.whole_);
  }
  return multiply(a.parts(), b.parts());
}

Number operator/(const Number& a, const Number& b) {
  if (b.isZero()) raiseDivisionByZero();
  if (a.isZero()) return a;
  if (a.form_ == 0 && b.whole_ > 0 && b.form_ == 0 && a.whole_ % b.whole_ == 0) return a.whole_ / b.whole_;
  if (a.form_ == 0 && b.form_ == 0)
    return divideWhole(magnitude(a.whole_), magnitude(b.whole_), 0, a.isNegative() != b.isNegative());
  const NumberParts x = a.parts();
  const NumberParts y = b.parts();
  if (x.count <= kShortDigits && y.count <= kShortDigits) {
    const int shift = (x.exponent - x.count) - (y.exponent - y.count);
    return divideWhole(shortDigits(x), shortDigits(y), shift, x.negative != y.negative);
  }
  return divide(x, y);
}

}  // namespace oracle_sql
