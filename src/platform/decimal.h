#pragma once

#include <compare>
#include <string>
#include <string_view>

namespace kestrelix {

/// An exact decimal number of any length: what a cell shows, to be compared and drawn. It doesn't compute;
/// figures are the server's.
class Decimal {
 public:
  Decimal() = default;

  /// The number that the text begins with, behind any blanks; 0 where it begins with none.
  static Decimal ofPrefix(std::string_view text);

  /// Plain text: a digit before the point, no exponent, no zeros to trim, no sign of a zero.
  std::string text() const;

  bool isNegative() const { return negative_; }
  bool isZero() const { return digits_.empty(); }

  /// A number of one digit, away from zero: 2000 for 1234.5, 0.03 for 0.0234, 10 for 9.2, 0.07 for 0.07.
  Decimal roundedUpToOneDigit() const;

  friend std::strong_ordering operator<=>(const Decimal& a, const Decimal& b);
  friend bool operator==(const Decimal& a, const Decimal& b) = default;

 private:
  void trim();

  bool negative_ = false;
  std::string digits_;  // without zeros at either end; empty for 0
  long magnitude_ = 0;  // the value is 0.digits * 10^magnitude
};

}  // namespace kestrelix
