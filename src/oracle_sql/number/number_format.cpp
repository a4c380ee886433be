#include "oracle_sql/number/number_format.h"

#include <algorithm>

#include "oracle_sql/function_error.h"
#include "oracle_sql/number/number_model.h"
#include "oracle_sql/text/ascii_case.h"

namespace oracle_sql {
namespace {

using Form = NumberModel::Form;
using Sign = NumberModel::Sign;

constexpr std::size_t kRomanWidth = 15;
constexpr std::size_t kTextModelWidth = 64;  // TM9 beyond it turns to TME

/// Sign and currency around digits, filled up from the left to the width of the model.
struct Parts {
  std::string digits;
  bool negative = false;
};

std::size_t signWidth(Sign sign) { return sign == Sign::Brackets ? 2 : 1; }

std::string dressed(const NumberModel& model, const Parts& parts, std::size_t width) {
  std::string text;
  if (model.sign == Sign::Brackets)
    text += parts.negative ? "<" : model.filled ? " " : "";
  else if (model.sign == Sign::Leading)
    text += parts.negative ? "-" : "+";
  else if (model.sign == Sign::Default)
    text += parts.negative ? "-" : model.filled ? " " : "";
  text += model.dollar ? "$" : "";
  text += parts.digits;
  if (model.sign == Sign::Brackets)
    text += parts.negative ? ">" : model.filled ? " " : "";
  else if (model.sign == Sign::Trailing)
    text += parts.negative ? "-" : "+";
  else if (model.sign == Sign::TrailingMinus)
    text += parts.negative ? "-" : model.filled ? " " : "";
  if (model.filled && text.size() < width) text.insert(0, width - text.size(), ' ');
  return text;
}

std::string hashes(std::size_t width) { return std::string(width, '#'); }

/// The digits before the point in the places of the model.
std::string groupedWhole(const NumberModel& model, std::string_view digits) {
  const std::size_t places = model.wholePlaces();
  std::string text;
  std::size_t place = 0;
  bool started = false;
  for (const char c : model.whole) {
    if (isGroup(c)) {
      if (started) text += ',';
      continue;
    }
    const bool present = place + digits.size() >= places;
    started = started || present || c == '0';
    if (started) text += present ? digits[place + digits.size() - places] : '0';
    ++place;
  }
  return text;
}

std::string formatFixed(const Number& number, const NumberModel& model) {
  const std::size_t width = model.whole.size() + (model.point != 0 ? 1 : 0) + model.fraction.size() +
                            signWidth(model.sign) + (model.dollar ? 1 : 0);
  Number value = number;
  if (model.shift != 0) value = value * power(Number(10), Number(model.shift));
  const auto fractionPlaces = static_cast<int>(model.fraction.size());
  value = value.round(fractionPlaces).abs();
  const std::string plain = value.toPlainText();
  const std::size_t pointAt = std::min(plain.find('.'), plain.size());
  std::string whole = plain.substr(0, pointAt);
  std::string fraction = pointAt < plain.size() ? plain.substr(pointAt + 1) : "";
  fraction.resize(model.fraction.size(), '0');
  if (whole == "0") whole.clear();
  const std::size_t places = model.wholePlaces();
  if (whole.size() > places) return hashes(width);
  if (model.blankZero && value.isZero()) return model.filled ? std::string(width, ' ') : "";
  // A nought alone shows only where nothing else would: 0 with 99.99 is .00.
  if (whole.empty() && model.fraction.empty() && places > 0) whole = "0";
  if (!model.filled) {
    const std::size_t forced = model.fraction.rfind('0');
    std::size_t keep = fraction.find_last_not_of('0');
    keep = keep == std::string::npos ? 0 : keep + 1;
    fraction.resize(std::max(keep, forced == std::string::npos ? 0 : forced + 1));
    if (whole.empty() && fraction.empty() && places > 0) {
      whole = "0";  // 0 with FM99.99 is "0."
    }
  }
  Parts parts;
  parts.digits = groupedWhole(model, whole);
  parts.digits += model.point != 0 ? "." : "";
  parts.digits += fraction;
  parts.negative = number.isNegative();
  return dressed(model, parts, width);
}

std::string exponentText(int exponent) {
  std::string digits = Number(exponent < 0 ? -exponent : exponent).toText();
  digits.insert(0, digits.size() < 2 ? 1 : 0, '0');
  return (exponent < 0 ? "E-" : "E+") + digits;
}

/// Significant digits and the power of ten of the first one.
struct Mantissa {
  std::string digits;
  int exponent = 0;
};

Mantissa mantissaOf(const Number& number) {
  Mantissa m;
  const NumberParts p = number.parts();
  for (int i = 0; i < p.count; ++i) {
    m.digits += static_cast<char>('0' + p.digit[i] / 10);
    m.digits += static_cast<char>('0' + p.digit[i] % 10);
  }
  const std::size_t leading = std::min(m.digits.find_first_not_of('0'), m.digits.size());
  m.exponent = 2 * p.exponent + 1 - static_cast<int>(leading);
  m.digits.erase(0, leading);
  m.digits.erase(m.digits.find_last_not_of('0') + 1);
  return m;
}

/// To 1 + places digits, half away from zero.
Mantissa roundedMantissa(const Number& number, std::size_t places) {
  Mantissa m = mantissaOf(number);
  if (m.digits.size() > places + 1) {
    const bool up = m.digits[places + 1] >= '5';
    m.digits.resize(places + 1);
    if (up) {
      std::size_t at = m.digits.size();
      while (at > 0 && m.digits[at - 1] == '9') m.digits[--at] = '0';
      if (at == 0) {
        m.digits.insert(0, 1, '1');
        m.digits.pop_back();
        ++m.exponent;
      } else {
        ++m.digits[at - 1];
      }
    }
  }
  m.digits.resize(places + 1, '0');
  return m;
}

std::string formatScientific(const Number& number, const NumberModel& model) {
  const std::size_t places = model.fraction.size();
  // One digit, the point with its places, five for the exponent: how many digits stand before the point of
  // the model doesn't matter.
  const std::size_t width =
      1 + (model.point != 0 ? 1 + places : 0) + 5 + signWidth(model.sign) + (model.dollar ? 1 : 0);
  Parts parts;
  parts.negative = number.isNegative();
  const Mantissa m =
      number.isZero() ? Mantissa{std::string(places + 1, '0'), 0} : roundedMantissa(number, places);
  parts.digits = m.digits.substr(0, 1);
  parts.digits += model.point != 0 ? "." : "";
  parts.digits += m.digits.substr(1) + exponentText(m.exponent);
  return dressed(model, parts, width);
}

std::string formatRoman(const Number& number, const NumberModel& model) {
  struct Letter {
    int value;
    std::string_view text;
  };
  static constexpr Letter kLetters[] = {{1000, "M"}, {900, "CM"}, {500, "D"}, {400, "CD"}, {100, "C"},
                                        {90, "XC"},  {50, "L"},   {40, "XL"}, {10, "X"},   {9, "IX"},
                                        {5, "V"},    {4, "IV"},   {1, "I"}};
  std::int64_t value = number.round().clampToInt64();
  if (value < 1 || value > 3999) return hashes(kRomanWidth);
  std::string text;
  for (const Letter& letter : kLetters) {
    for (; value >= letter.value; value -= letter.value) text += letter.text;
  }
  if (model.lower)
    std::transform(text.begin(), text.end(), text.begin(), [](char c) { return asciiLower(c); });
  return model.filled ? std::string(kRomanWidth - text.size(), ' ') + text : text;
}

std::string formatHexadecimal(const Number& number, const NumberModel& model) {
  const std::size_t width = model.whole.size() + 1;
  const Number whole = number.round();
  if (whole.isNegative()) return hashes(width);
  std::string text = hexadecimal(whole);
  if (text.size() > model.whole.size()) return hashes(width);
  if (model.lower)
    std::transform(text.begin(), text.end(), text.begin(), [](char c) { return asciiLower(c); });
  if (model.whole[0] == '0') text.insert(0, model.whole.size() - text.size(), '0');
  return model.filled ? std::string(width - text.size(), ' ') + text : text;
}

std::string formatTextScientific(const Number& number) {
  if (number.isZero()) return "0E+00";
  const Mantissa m = mantissaOf(number);
  std::string text(number.isNegative() ? "-" : "");
  text += m.digits[0];
  if (m.digits.size() > 1) text += '.' + m.digits.substr(1);
  return text + exponentText(m.exponent);
}

std::string formatText(const Number& number) {
  std::string plain = number.toPlainText();
  if (number.abs() < Number(1) && !number.isZero()) plain.erase(number.isNegative() ? 1 : 0, 1);
  if (plain.size() > kTextModelWidth) return formatTextScientific(number);
  return plain;
}

}  // namespace

std::string formatNumber(const Number& number, std::string_view model) {
  const NumberModel& m = numberModel(model);
  switch (m.form) {
    case Form::Fixed:
      break;
    case Form::Scientific:
      return formatScientific(number, m);
    case Form::Roman:
      return formatRoman(number, m);
    case Form::Hexadecimal:
      return formatHexadecimal(number, m);
    case Form::Text:
      return formatText(number);
    case Form::TextScientific:
      return formatTextScientific(number);
  }
  return formatFixed(number, m);
}

}  // namespace oracle_sql
