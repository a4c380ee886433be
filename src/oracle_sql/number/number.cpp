#include "oracle_sql/number/number.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include "oracle_sql/function_error.h"

namespace oracle_sql {
namespace {

constexpr int kMaxDigits = 20;
constexpr int kMaxExponent = 62;   // 99.. * 100^62 is the largest magnitude
constexpr int kMinExponent = -65;  // 1 * 100^-65 is 1E-130

/// The magnitude of canonical whole digits if it is at most `limit`, which is below 1.9E19.
std::optional<std::uint64_t> wholeMagnitude(const std::uint8_t* digits, int count, int exponent,
                                            std::uint64_t limit) {
  if (exponent < count - 1 || exponent > 9) return std::nullopt;
  std::uint64_t value = 0;  // at most 100^10 - 1 > 2^64: the last step is checked
  for (int i = 0; i <= exponent; ++i) {
    const std::uint64_t digit = i < count ? digits[i] : 0;
    if (__builtin_mul_overflow(value, std::uint64_t{100}, &value) ||
        __builtin_add_overflow(value, digit, &value)) {
      return std::nullopt;
    }
  }
  return value <= limit ? std::optional(value) : std::nullopt;
}

}  // namespace

Number Number::fromDigits(std::span<const std::uint8_t> digits, int exponent, bool negative) {
  while (!digits.empty() && digits.front() == 0) {
    digits = digits.subspan(1);
    --exponent;
  }
  Number result;
  if (digits.empty()) return result;
  std::uint8_t kept[kMaxDigits];
  const bool up = digits.size() > kMaxDigits && digits[kMaxDigits] >= 50;
  std::size_t count = std::min<std::size_t>(digits.size(), kMaxDigits);
  std::memcpy(kept, digits.data(), count);
  if (up) {
    while (count > 0 && kept[count - 1] == 99) --count;
    if (count == 0) {
      kept[count++] = 1;
      ++exponent;
    } else {
      ++kept[count - 1];
    }
  }
  while (kept[count - 1] == 0) --count;
  const std::uint64_t limit =
      static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()) + (negative ? 1 : 0);
  if (const auto whole = wholeMagnitude(kept, static_cast<int>(count), exponent, limit)) {
    result.whole_ = static_cast<std::int64_t>(negative ? std::uint64_t{0} - *whole : *whole);
    return result;
  }
  if (exponent > kMaxExponent) raiseNumericOverflow();
  if (exponent < kMinExponent) return result;
  std::memcpy(result.digits_, kept, count);
  result.count_ = static_cast<std::uint8_t>(count);
  result.exponent_ = static_cast<std::int8_t>(exponent);
  result.form_ = negative ? -1 : 1;
  return result;
}

NumberParts Number::parts() const {
  NumberParts parts;
  if (form_ != 0) {
    std::memcpy(parts.digit, digits_, sizeof parts.digit);
    parts.count = count_;
    parts.exponent = static_cast<int>(exponent_);
    parts.negative = form_ < 0;
    return parts;
  }
  parts.negative = whole_ < 0;
  const auto bits = static_cast<std::uint64_t>(whole_);
  std::uint64_t rest = parts.negative ? std::uint64_t{0} - bits : bits;
  std::uint8_t reversed[10];
  int count = 0;
  while (rest != 0) {
    reversed[count++] = static_cast<std::uint8_t>(rest % 100);
    rest /= 100;
  }
  parts.exponent = count - 1;
  int trailing = 0;
  while (trailing < count && reversed[trailing] == 0) ++trailing;
  parts.count = count - trailing;
  for (int i = 0; i < parts.count; ++i) parts.digit[i] = reversed[count - 1 - i];
  return parts;
}

bool Number::isInteger() const { return form_ == 0 || exponent_ >= count_ - 1; }

std::int64_t Number::clampToInt64() const {
  const Number whole = trunc();
  if (whole.form_ == 0) return whole.whole_;
  return whole.form_ < 0 ? std::numeric_limits<std::int64_t>::min()
                         : std::numeric_limits<std::int64_t>::max();
}

int compare(const Number& a, const Number& b) {
  if (a.form_ == 0 && b.form_ == 0) return a.whole_ < b.whole_ ? -1 : a.whole_ > b.whole_ ? 1 : 0;
  const int signA = a.sign();
  const int signB = b.sign();
  if (signA != signB) return signA < signB ? -1 : 1;
  const NumberParts x = a.parts();
  const NumberParts y = b.parts();
  if (x.exponent != y.exponent) return (x.exponent < y.exponent) == (signA > 0) ? -1 : 1;
  const int common = std::memcmp(x.digit, y.digit, static_cast<std::size_t>(std::min(x.count, y.count)));
  const int order = common != 0 ? common : x.count - y.count;
  return order == 0 ? 0 : (order < 0) == (signA > 0) ? -1 : 1;
}

std::size_t Number::toBytes(std::span<std::uint8_t, kMaxBytes> out) const {
  const NumberParts p = parts();
  if (p.count == 0) {
    out[0] = 0x80;
    return 1;
  }
  std::size_t size = 0;
  out[size++] = static_cast<std::uint8_t>(p.negative ? 62 - p.exponent : 193 + p.exponent);
  for (int i = 0; i < p.count; ++i)
    out[size++] = static_cast<std::uint8_t>(p.negative ? 101 - p.digit[i] : p.digit[i] + 1);
  if (p.negative && p.count < kMaxDigits) {
    out[size++] = 102;  // above every digit, so that -1 sorts behind -1.01
  }
  return size;
}

std::optional<Number> Number::fromBytes(std::span<const std::uint8_t> bytes) {
  if (bytes.empty() || bytes.size() > kMaxBytes + 1) return std::nullopt;
  if (bytes.size() == 1) return bytes[0] == 0x80 ? std::optional<Number>(Number()) : std::nullopt;
  const bool negative = bytes[0] < 0x80;
  std::span<const std::uint8_t> stored = bytes.subspan(1);
  if (negative && stored.back() == 102) stored = stored.first(stored.size() - 1);
  if (stored.empty() || stored.size() > kMaxDigits) return std::nullopt;
  std::uint8_t digits[kMaxDigits] = {};
  for (std::size_t i = 0; i < stored.size(); ++i) {
    const int digit = negative ? 101 - stored[i] : stored[i] - 1;
    if (digit < 0 || digit > 99) return std::nullopt;
    digits[i] = static_cast<std::uint8_t>(digit);
  }
  if (digits[0] == 0 || digits[stored.size() - 1] == 0) {
    return std::nullopt;  // the form of a value is unique
  }
  return fromDigits({digits, stored.size()}, negative ? 62 - bytes[0] : bytes[0] - 193, negative);
}

Number Number::operator-() const {
  Number result = *this;
  if (form_ != 0) {
    result.form_ = static_cast<std::int8_t>(-form_);
    if (form_ > 0 && exponent_ == 9) {  // 2^63 has no positive short form but a negative one
      return fromDigits({digits_, count_}, exponent_, true);
    }
    return result;
  }
  if (whole_ == std::numeric_limits<std::int64_t>::min()) {
    const NumberParts p = parts();
    return fromDigits({p.digit, static_cast<std::size_t>(p.count)}, p.exponent, false);
  }
  result.whole_ = -whole_;
  return result;
}

}  // namespace oracle_sql
