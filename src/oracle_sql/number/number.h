// Oracle's NUMBER.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace oracle_sql {

struct NumberParts;

/// Oracle's NUMBER: decimal, at most 20 base-100 digits (39 or 40 significant decimal digits), magnitude from
/// 1E-130 to below 1E126. Every operation is exact and then rounded once, half away from zero, at the
/// twentieth base-100 digit. Overflow raises ORA-01426, underflow gives 0. Equal numbers have equal
/// representations: a whole number that fits 64 bits is always held as one. Zeroed memory is the number 0.
class Number {
 public:
  static constexpr std::size_t kMaxBytes = 21;  ///< of the ordered byte form

  constexpr Number() : whole_(0) {}
  constexpr Number(std::int64_t value) : whole_(value) {}  // NOLINT: a whole number is a Number
  constexpr Number(int value) : whole_(value) {}           // NOLINT

  /// Text as Oracle converts it by itself: blanks around, a sign, digits with a point, an exponent.
  /// Nothing if it is no number; ORA-01426 if it is too large.
  static std::optional<Number> parse(std::string_view text);
  /// The ordered byte form; nothing if the bytes are none.
  static std::optional<Number> fromBytes(std::span<const std::uint8_t> bytes);
  /// Digits (each 0..99), the first worth 100^exponent; rounded to 20 digits.
  static Number fromDigits(std::span<const std::uint8_t> digits, int exponent, bool negative);

  /// The value if it is whole and fits 64 bits.
  std::optional<std::int64_t> toInt64() const {
    return form_ == 0 ? std::optional<std::int64_t>(whole_) : std::nullopt;
  }
  bool isInt64() const { return form_ == 0; }
  bool isZero() const { return form_ == 0 && whole_ == 0; }
  bool isNegative() const { return form_ == 0 ? whole_ < 0 : form_ < 0; }
  bool isInteger() const;
  int sign() const { return isZero() ? 0 : isNegative() ? -1 : 1; }
  NumberParts parts() const;
  /// Truncated towards zero, held within the range of 64 bits: for positions, lengths and counts.
  std::int64_t clampToInt64() const;

  /// As the server converts it by itself: ".5", "-.25", "10"; an exponent only where 40 digits don't do.
  std::string toText() const;
  /// All digits, a zero before the point, never an exponent: "0.5".
  std::string toPlainText() const;
  /// The form whose bytewise order is the numeric order, 1 to 21 bytes; returns their count.
  std::size_t toBytes(std::span<std::uint8_t, kMaxBytes> out) const;

  Number operator-() const;
  Number abs() const { return isNegative() ? -*this : *this; }
  /// To `places` decimals (negative: before the point), half away from zero.
  Number round(int places = 0) const;
  Number trunc(int places = 0) const;
  Number floor() const;
  Number ceil() const;

  friend Number operator+(const Number& a, const Number& b);
  friend Number operator-(const Number& a, const Number& b);
  friend Number operator*(const Number& a, const Number& b);
  friend Number operator/(const Number& a, const Number& b);  ///< ORA-01476 for a zero divisor
  friend int compare(const Number& a, const Number& b);       ///< -1, 0, 1
  friend bool operator==(const Number& a, const Number& b) { return compare(a, b) == 0; }
  friend auto operator<=>(const Number& a, const Number& b) { return compare(a, b) <=> 0; }

 private:
  union {
    std::int64_t whole_;       ///< form_ 0
    std::uint8_t digits_[20];  ///< form_ 1 or -1, its sign: count_ digits, first and last not 0,
  };                           // the first worth 100^exponent_
  std::uint8_t count_ = 0;
  std::int8_t exponent_ = 0;
  std::int8_t form_ = 0;
};

/// A number taken apart: sign * sum of digit[i] * 100^(exponent - i). Zero has no digits.
struct NumberParts {
  std::uint8_t digit[20];
  int count;
  int exponent;
  bool negative;
};

/// n - m * trunc(n / m), exactly; n itself for a zero m.
Number mod(const Number& n, const Number& m);
/// n - m * (the whole number nearest to n / m, the even one of two); ORA-01476 for a zero m.
Number remainder(const Number& n, const Number& m);
/// Exact to the last digit kept; ORA-01428 for an argument without a real result.
Number power(const Number& base, const Number& exponent);
Number sqrt(const Number& n);
Number exp(const Number& n);
Number ln(const Number& n);
/// The server divides two logarithms whose last digit is not always right: TRUNC(LOG(2, 4)) is 1 there, 2
/// here.
Number log(const Number& base, const Number& n);

/// The digits of a whole number to the base of 16, with capital letters; not for a negative one.
std::string hexadecimal(const Number& whole);

}  // namespace oracle_sql
