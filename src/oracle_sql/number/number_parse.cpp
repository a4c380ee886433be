#include <algorithm>

#include "oracle_sql/function_error.h"
#include "oracle_sql/number/number_format.h"
#include "oracle_sql/number/number_model.h"
#include "oracle_sql/text/ascii_case.h"

namespace oracle_sql {
namespace {

using Form = NumberModel::Form;
using Sign = NumberModel::Sign;

Number parseHexadecimal(std::string_view text, const NumberModel& model) {
  Number value;
  if (text.empty() || text.size() > model.whole.size()) raiseInvalidNumber();
  for (const char c : text) {
    const char upper = asciiUpper(c);
    const bool letter = upper >= 'A' && upper <= 'F';
    if (!letter && !isAsciiDigit(c)) raiseInvalidNumber();
    value = value * Number(16) + Number(letter ? upper - 'A' + 10 : c - '0');
  }
  return value;
}

class Reader {
 public:
  Reader(std::string_view text, const NumberModel& model) : rest_(text), model_(model) {}

  Number read() {
    const bool negative = readSigns();
    if (model_.dollar && !takeFront('$')) takeBack('$');
    readDigits();
    if (!rest_.empty()) raiseInvalidNumber();
    const auto value = Number::parse((negative ? "-" : "") + digits_);
    if (!value) raiseInvalidNumber();
    return model_.shift == 0 ? *value : *value / power(Number(10), Number(model_.shift));
  }

 private:
  bool takeFront(char c) {
    const bool there = !rest_.empty() && rest_.front() == c;
    rest_.remove_prefix(there ? 1 : 0);
    return there;
  }

  bool takeBack(char c) {
    const bool there = !rest_.empty() && rest_.back() == c;
    rest_.remove_suffix(there ? 1 : 0);
    return there;
  }

  bool readSigns() {
    switch (model_.sign) {
      case Sign::Default:
        return takeFront('-');
      case Sign::Leading: {
        const bool minus = takeFront('-');
        takeFront('+');
        return minus;
      }
      case Sign::Trailing: {
        const bool minus = takeBack('-');
        takeBack('+');
        return minus;
      }
      case Sign::TrailingMinus: {
        // The place of the sign must be there, unless FM leaves the blank out.
        if (takeBack('-')) return true;
        if (!takeBack(' ') && model_.filled) raiseInvalidNumber();
        return false;
      }
      case Sign::Brackets:
        if (takeFront('<')) {
          if (!takeBack('>')) raiseInvalidNumber();
          return true;
        }
        return false;
    }
    return false;
  }

  void readDigits() {
    const bool groups = std::ranges::any_of(model_.whole, isGroup);
    std::size_t whole = 0;
    std::size_t fraction = 0;
    bool point = false;
    for (; !rest_.empty(); rest_.remove_prefix(1)) {
      const char c = rest_.front();
      if (isAsciiDigit(c)) {
        whole += point ? 0 : 1;
        fraction += point ? 1 : 0;
      } else if (c == '.' && model_.point != 0 && !point) {
        point = true;
      } else if (c == ',' && groups && !point) {
        continue;
      } else {
        break;
      }
      digits_ += c;
    }
    if (model_.form == Form::Scientific && !rest_.empty() && asciiUpper(rest_.front()) == 'E') {
      digits_ += rest_;
      rest_ = {};
    }
    const bool missing = model_.form == Form::Fixed && whole > 0 && whole < model_.forcedPlaces();
    if (whole > model_.wholePlaces() || missing || fraction > model_.fraction.size()) raiseInvalidNumber();
  }

  std::string_view rest_;
  const NumberModel& model_;
  std::string digits_;
};

}  // namespace

Number parseNumber(std::string_view text, std::string_view model) {
  const NumberModel& m = numberModel(model);
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  if (m.sign == Sign::Brackets && !text.empty() && text.back() == ' ') {
    text.remove_suffix(1);  // as TO_CHAR leaves it behind a positive number
  }
  switch (m.form) {
    case Form::Fixed:
    case Form::Scientific:
      break;
    case Form::Hexadecimal:
      return parseHexadecimal(text, m);
    case Form::Roman:
      throw FunctionError(1481, "invalid number format model");
    case Form::Text:
    case Form::TextScientific: {
      const auto value = Number::parse(text);
      if (!value) raiseInvalidNumber();
      return *value;
    }
  }
  return Reader(text, m).read();
}

}  // namespace oracle_sql
