#include "platform/decimal.h"

#include <algorithm>

namespace kestrelix {
namespace {

constexpr long kMaxExponent = 9999;  // far past any NUMBER; keeps texts finite

bool isDigit(std::string_view text, std::size_t at) {
  return at < text.size() && text[at] >= '0' && text[at] <= '9';
}

/// The exponent at `at`, or 0 where none is complete.
long exponent(std::string_view text, std::size_t at) {
  if (at >= text.size() || (text[at] != 'e' && text[at] != 'E')) return 0;
  ++at;
  const bool negative = at < text.size() && text[at] == '-';
  if (at < text.size() && (text[at] == '-' || text[at] == '+')) ++at;
  long value = 0;
  for (; isDigit(text, at); ++at) value = std::min(value * 10 + (text[at] - '0'), kMaxExponent);
  return negative ? -value : value;
}

}  // namespace

Decimal Decimal::ofPrefix(std::string_view text) {
  Decimal number;
  std::size_t at = std::min(text.find_first_not_of(' '), text.size());
  if (at < text.size() && (text[at] == '-' || text[at] == '+')) number.negative_ = text[at++] == '-';
  for (; isDigit(text, at); ++at) number.digits_ += text[at];
  number.magnitude_ = static_cast<long>(number.digits_.size());
  if (at < text.size() && text[at] == '.')
    for (++at; isDigit(text, at); ++at) number.digits_ += text[at];
  if (number.digits_.empty()) return {};
  number.magnitude_ += exponent(text, at);
  number.trim();
  return number;
}

void Decimal::trim() {
  const std::size_t first = digits_.find_first_not_of('0');
  if (first == std::string::npos) {
    *this = Decimal();
    return;
  }
  digits_.erase(digits_.find_last_not_of('0') + 1);
  digits_.erase(0, first);
  magnitude_ -= static_cast<long>(first);
}

std::string Decimal::text() const {
  if (isZero()) return "0";
  const auto length = static_cast<long>(digits_.size());
  std::string text = negative_ ? "-" : "";
  if (magnitude_ <= 0) return text + "0." + std::string(static_cast<std::size_t>(-magnitude_), '0') + digits_;
  if (magnitude_ >= length)
    return text + digits_ + std::string(static_cast<std::size_t>(magnitude_ - length), '0');
  return text + digits_.substr(0, static_cast<std::size_t>(magnitude_)) + "." +
         digits_.substr(static_cast<std::size_t>(magnitude_));
}

Decimal Decimal::roundedUpToOneDigit() const {
  Decimal rounded = *this;
  if (digits_.size() <= 1) return rounded;
  rounded.digits_.resize(1);
  if (rounded.digits_[0] == '9') {
    rounded.digits_[0] = '1';
    ++rounded.magnitude_;
  } else {
    ++rounded.digits_[0];
  }
  return rounded;
}

std::strong_ordering operator<=>(const Decimal& a, const Decimal& b) {
  const auto sign = [](const Decimal& x) { return x.isZero() ? 0 : x.negative_ ? -1 : 1; };
  if (sign(a) != sign(b) || a.isZero()) return sign(a) <=> sign(b);
  const Decimal& low = a.negative_ ? b : a;
  const Decimal& high = a.negative_ ? a : b;
  if (low.magnitude_ != high.magnitude_) return low.magnitude_ <=> high.magnitude_;
  return low.digits_.compare(high.digits_) <=> 0;
}

}  // namespace kestrelix
