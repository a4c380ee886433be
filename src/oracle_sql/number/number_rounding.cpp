#include <algorithm>

#include "oracle_sql/number/number.h"

namespace oracle_sql {
namespace {

/// Keeps `kept` decimal digits, counted from the tens of the first base-100 digit.
Number cut(const NumberParts& p, int kept, bool up) {
  if (kept < 0) return Number();
  std::uint8_t digits[21] = {};  // the first for a carry
  std::copy(p.digit, p.digit + p.count, digits + 1);
  const int whole = kept / 2;  // base-100 digits kept in full
  int next = p.count > whole ? digits[whole + 1] : 0;
  int carry = 0;
  int count = whole;
  if (kept % 2 == 0) {
    carry = up && next >= 50 ? 1 : 0;
  } else {
    int tens = next / 10 * 10;
    if (up && next % 10 >= 5) tens += 10;
    carry = tens / 100;
    digits[whole + 1] = static_cast<std::uint8_t>(tens % 100);
    count = whole + 1;
  }
  for (int i = whole; carry != 0 && i >= 0; --i) {
    const int sum = digits[i] + carry;
    carry = sum / 100;
    digits[i] = static_cast<std::uint8_t>(sum % 100);
  }
  return Number::fromDigits({digits, static_cast<std::size_t>(count + 1)}, p.exponent + 1, p.negative);
}

Number cutAt(const Number& number, int places, bool up) {
  if (number.isInt64() && places >= 0) return number;
  const NumberParts p = number.parts();
  const int kept = 2 * (p.exponent + 1) + std::clamp(places, -300, 300);
  return kept >= 2 * p.count ? number : cut(p, kept, up);
}

}  // namespace

Number Number::round(int places) const { return cutAt(*this, places, true); }

Number Number::trunc(int places) const { return cutAt(*this, places, false); }

Number Number::floor() const {
  if (isInteger()) return *this;
  return isNegative() ? trunc() - Number(1) : trunc();
}

Number Number::ceil() const {
  if (isInteger()) return *this;
  return isNegative() ? trunc() : trunc() + Number(1);
}

}  // namespace oracle_sql
