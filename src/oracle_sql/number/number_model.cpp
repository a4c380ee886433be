#include "oracle_sql/number/number_model.h"

#include <algorithm>

#include "oracle_sql/function_error.h"
#include "oracle_sql/model_cache.h"
#include "oracle_sql/text/ascii_case.h"

namespace oracle_sql {
namespace {

using Form = NumberModel::Form;
using Sign = NumberModel::Sign;

[[noreturn]] void refuse() { throw FunctionError(1481, "invalid number format model"); }

class Parser {
 public:
  explicit Parser(std::string_view text) : text_(text) {}

  NumberModel parse() {
    if (take("FM")) model_.filled = false;
    if (parseWhole()) return std::move(model_);
    while (at_ < text_.size()) element();
    if (model_.whole.empty() && model_.fraction.empty()) refuse();
    const auto has = [&](char mark) {
      return model_.point == mark || model_.whole.find(mark) != std::string::npos;
    };
    if ((has('G') || has('D')) && (has(',') || has('.'))) refuse();
    return std::move(model_);
  }

 private:
  bool take(std::string_view name) {
    if (!startsWithAnyCase(text_.substr(at_), name)) return false;
    at_ += name.size();
    return true;
  }

  bool atEnd() const { return at_ == text_.size(); }

  /// The models that are one element: Roman, hexadecimal, text.
  bool parseWhole() {
    const std::size_t start = at_;
    model_.lower = at_ < text_.size() && isAsciiLetter(text_[at_]) && asciiLower(text_[at_]) == text_[at_];
    if (take("RN")) {
      model_.form = Form::Roman;
      return finished();
    }
    if (take("TM")) {
      model_.form = take("E") ? Form::TextScientific : Form::Text;
      if (model_.form == Form::Text) take("9");
      return finished();
    }
    while (take("0")) model_.whole += '0';
    if (!take("X")) {
      at_ = start;
      model_.whole.clear();
      return false;
    }
    model_.form = Form::Hexadecimal;
    model_.whole += 'X';
    while (take("X")) model_.whole += 'X';
    model_.lower = text_.find('x') != std::string_view::npos;
    return finished();
  }

  bool finished() const {
    if (!atEnd()) refuse();
    return true;
  }

  void element() {
    const char c = asciiUpper(text_[at_]);
    const bool digit = c == '9' || c == '0';
    if (ended_) refuse();
    if (digit && model_.form == Form::Scientific) refuse();
    if (digit) {
      addDigit(c);
    } else if (c == ',' || c == 'G') {
      if (model_.whole.empty() || model_.point != 0 || shifted_) refuse();
      model_.whole += c;
    } else if (c == '.' || c == 'D') {
      if (model_.point != 0 || shifted_) refuse();
      model_.point = c;
    } else if (c == 'V') {
      if (model_.point != 0 || shifted_) refuse();
      shifted_ = true;
    } else if (c == '$') {
      if (model_.dollar) refuse();
      model_.dollar = true;
    } else if (c == 'B') {
      model_.blankZero = true;
    } else {
      mark(c);
      return;
    }
    ++at_;
  }

  void addDigit(char c) {
    if (model_.point != 0) {
      model_.fraction += c;
    } else {
      model_.whole += c;
      model_.shift += shifted_ ? 1 : 0;
    }
  }

  void mark(char c) {
    const bool first = model_.whole.empty() && model_.point == 0;
    if (take("EEEE")) {
      if (first || model_.form != Form::Fixed || std::ranges::any_of(model_.whole, isGroup)) refuse();
      model_.form = Form::Scientific;
    } else if (take("MI")) {
      setSign(Sign::TrailingMinus);
      ended_ = true;
    } else if (take("PR")) {
      setSign(Sign::Brackets);
      ended_ = true;
    } else if (take("S")) {
      setSign(first ? Sign::Leading : Sign::Trailing);
      ended_ = !first;
    } else if (c == 'L' || c == 'C' || c == 'U') {
      throw FunctionError(FunctionError::kUnsupported, std::string("the number format element ") + c);
    } else {
      refuse();
    }
  }

  void setSign(Sign sign) {
    if (model_.sign != Sign::Default) refuse();
    model_.sign = sign;
  }

  std::string_view text_;
  std::size_t at_ = 0;
  bool shifted_ = false;
  bool ended_ = false;  // an element that must be the last one was read
  NumberModel model_;
};

}  // namespace

std::size_t NumberModel::wholePlaces() const {
  return whole.size() - static_cast<std::size_t>(std::ranges::count_if(whole, isGroup));
}

std::size_t NumberModel::forcedPlaces() const {
  const auto first = std::ranges::find(whole, '0');
  return static_cast<std::size_t>(std::count_if(first, whole.end(), [](char c) { return !isGroup(c); }));
}

const NumberModel& numberModel(std::string_view text) {
  thread_local ModelCache<NumberModel> cache;
  return cache.get(text, [](std::string_view model) { return Parser(model).parse(); });
}

}  // namespace oracle_sql
