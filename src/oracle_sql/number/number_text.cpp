#include <algorithm>
#include <charconv>

#include "oracle_sql/function_error.h"
#include "oracle_sql/number/number.h"

namespace oracle_sql {
namespace {

constexpr int kTextWidth = 40;  // digits and exponent of an implicit conversion; sign and point stand outside

bool isDigit(char c) { return c >= '0' && c <= '9'; }

bool isBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

std::string_view withoutBlanks(std::string_view text) {
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

/// Gathers decimal digits into base-100 ones. More than 42 significant digits cannot move the rounding.
class DigitCollector {
 public:
  void add(int digit, bool fraction) {
    if (count_ == 0 && digit == 0) {
      point_ -= fraction ? 1 : 0;  // a zero before the first significant digit
      return;
    }
    point_ += fraction ? 0 : 1;
    if (count_ < kMax) decimals_[count_++] = static_cast<std::uint8_t>(digit);
  }

  /// The value is 0.d1d2d3.. * 10^(point + exponent).
  Number number(std::int64_t exponent, bool negative) const {
    const std::int64_t point = point_ + exponent;
    if (count_ == 0 || point < -1000) return Number();
    if (point > 1000) raiseNumericOverflow();
    const bool odd = (point % 2) != 0;  // the first digit is the ones of its pair
    std::uint8_t digits[kMax / 2 + 1] = {};
    for (int i = 0; i < count_; ++i) {
      const int at = i + (odd ? 1 : 0);
      digits[at / 2] = static_cast<std::uint8_t>(digits[at / 2] + decimals_[i] * (at % 2 == 0 ? 10 : 1));
    }
    const auto first = static_cast<int>((point + (odd ? 1 : 0)) / 2 - 1);
    return Number::fromDigits(digits, first, negative);
  }

 private:
  static constexpr int kMax = 44;
  std::uint8_t decimals_[kMax];
  int count_ = 0;
  std::int64_t point_ = 0;
};

/// The significant decimal digits of a number: 0.d1d2.. * 10^point.
struct Decimals {
  char digit[kTextWidth];
  int count = 0;
  int point = 0;
};

Decimals decimalsOf(const NumberParts& p) {
  Decimals out;
  out.point = 2 * (p.exponent + 1);
  for (int i = 0; i < p.count; ++i) {
    const char tens = static_cast<char>('0' + p.digit[i] / 10);
    if (i == 0 && tens == '0')
      --out.point;
    else
      out.digit[out.count++] = tens;
    out.digit[out.count++] = static_cast<char>('0' + p.digit[i] % 10);
  }
  while (out.count > 0 && out.digit[out.count - 1] == '0') --out.count;
  return out;
}

void appendPlain(std::string& text, const Decimals& d, bool leadingZero) {
  const std::string_view digits(d.digit, static_cast<std::size_t>(d.count));
  if (d.point <= 0) {
    text += leadingZero ? "0." : ".";
    text.append(static_cast<std::size_t>(-d.point), '0');
    text += digits;
    return;
  }
  const auto whole = static_cast<std::size_t>(d.point);
  text += digits.substr(0, whole);
  if (whole > digits.size()) {
    text.append(whole - digits.size(), '0');
  } else if (whole < digits.size()) {
    text += '.';
    text += digits.substr(whole);
  }
}

std::string wholeText(std::int64_t value) {
  char buffer[20];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
  return {buffer, end};
}

/// Rounds to at most `count` digits. Not by Number::round: the largest of all would overflow.
void shorten(Decimals& d, int count) {
  if (d.count <= count) return;
  const bool up = d.digit[count] >= '5';
  d.count = count;
  if (up) {
    while (d.count > 0 && d.digit[d.count - 1] == '9') --d.count;
    if (d.count == 0) {
      d.digit[d.count++] = '1';
      ++d.point;
    } else {
      ++d.digit[d.count - 1];
    }
  }
  while (d.count > 0 && d.digit[d.count - 1] == '0') --d.count;
}

/// Digits behind the point in a text of the whole width, as "1.2000..0E+40".
int scientificPlaces(int exponent) { return kTextWidth - 4 - (exponent > -100 && exponent < 100 ? 2 : 3); }

void appendScientific(std::string& text, Decimals d) {
  const auto places = static_cast<std::size_t>(scientificPlaces(d.point - 1));
  shorten(d, static_cast<int>(places) + 1);
  const int exponent = d.point - 1;
  text += d.digit[0];
  text += '.';
  const std::size_t size = text.size() + places;
  text.append(d.digit + 1, static_cast<std::size_t>(d.count - 1));
  text.resize(size, '0');
  text += exponent < 0 ? "E-" : "E+";
  const std::string digits = wholeText(exponent < 0 ? -exponent : exponent);
  text.append(digits.size() < 2 ? 1 : 0, '0');
  text += digits;
}

}  // namespace

std::optional<Number> Number::parse(std::string_view text) {
  text = withoutBlanks(text);
  bool negative = false;
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
    negative = text.front() == '-';
    text.remove_prefix(1);
  }
  DigitCollector collector;
  bool any = false;
  bool fraction = false;
  std::size_t at = 0;
  for (; at < text.size(); ++at) {
    if (isDigit(text[at])) {
      collector.add(text[at] - '0', fraction);
      any = true;
    } else if (text[at] == '.' && !fraction) {
      fraction = true;
    } else {
      break;
    }
  }
  if (!any) return std::nullopt;
  std::int64_t exponent = 0;
  if (at < text.size()) {
    if (text[at] != 'e' && text[at] != 'E') return std::nullopt;
    ++at;
    bool down = false;
    if (at < text.size() && (text[at] == '-' || text[at] == '+')) {
      down = text[at] == '-';
      ++at;
    }
    if (at == text.size()) return std::nullopt;
    for (; at < text.size(); ++at) {
      if (!isDigit(text[at])) return std::nullopt;
      exponent = std::min<std::int64_t>(exponent * 10 + (text[at] - '0'), 1000000);
    }
    exponent = down ? -exponent : exponent;
  }
  return collector.number(exponent, negative);
}

std::string Number::toPlainText() const {
  if (isInt64()) return wholeText(whole_);
  std::string text(isNegative() ? "-" : "");
  appendPlain(text, decimalsOf(parts()), true);
  return text;
}

std::string Number::toText() const {
  if (isInt64()) return wholeText(whole_);
  std::string text(isNegative() ? "-" : "");
  Decimals d = decimalsOf(parts());
  if (d.point > kTextWidth) {
    appendScientific(text, d);
    return text;
  }
  if (d.point <= 0 && d.count - d.point > kTextWidth) {
    // More places than fit: whichever of both forms keeps more digits.
    const int plain = std::max(kTextWidth + d.point, 0);
    if (plain < std::min(d.count, scientificPlaces(d.point - 1) + 1)) {
      appendScientific(text, d);
      return text;
    }
    shorten(d, plain);
  }
  appendPlain(text, d, false);
  return text;
}

}  // namespace oracle_sql
