#include <algorithm>
#include <array>

#include "oracle_sql/date/date_format.h"
#include "oracle_sql/date/date_model.h"
#include "oracle_sql/date/date_parts.h"
#include "oracle_sql/function_error.h"
#include "oracle_sql/text/ascii_case.h"

namespace oracle_sql {
namespace {

constexpr std::int64_t kFirstJulianDay = 1721424;  // of 0001-01-01

bool isNumeric(const DateItem& item) { return item.digits != 0; }

constexpr DateElement kTimeOfDay[] = {
    DateElement::Hour12,      DateElement::Hour24,   DateElement::Minute,      DateElement::Second,
    DateElement::SecondOfDay, DateElement::Meridian, DateElement::Punctuation,
};

int inRange(std::int64_t value, int low, int high, int code, const char* message) {
  if (value < low || value > high) throw FunctionError(code, message);
  return static_cast<int>(value);
}

/// An element that is one part of a date, within limits.
struct Limits {
  DateElement element;
  std::optional<int> DateParts::*part;
  int low;
  int high;
  int code;
  const char* message;
};
constexpr Limits kLimits[] = {
    {DateElement::Month, &DateParts::month, 1, 12, 1843, "not a valid month"},
    {DateElement::Day, &DateParts::day, 1, 31, 1847, "day of month must be between 1 and last day of month"},
    {DateElement::DayOfYear, &DateParts::dayOfYear, 1, 366, 1848,
     "day of year must be between 1 and 365 (366 for leap year)"},
    {DateElement::Hour12, &DateParts::hour12, 1, 12, 1849, "hour must be between 1 and 12"},
    {DateElement::Hour24, &DateParts::hour24, 0, 23, 1850, "hour must be between 0 and 23"},
    {DateElement::Minute, &DateParts::minute, 0, 59, 1851, "minutes must be between 0 and 59"},
    {DateElement::Second, &DateParts::second, 0, 59, 1852, "seconds must be between 0 and 59"},
    {DateElement::SecondOfDay, &DateParts::secondOfDay, 0, 86399, 1853,
     "seconds in day must be between 0 and 86399"},
};

class Reader {
 public:
  Reader(std::string_view text, const Context& context) : rest_(text), now_(context.now.fields()) {}

  DateParts read(const DateModel& model) {
    bool marked = false;  // marks of the model stand between the last value and this one
    std::size_t lastEnd = rest_.size();
    for (std::size_t i = 0; i < model.size(); ++i) {
      const DateItem& item = model[i];
      const DateItem* const next = i + 1 < model.size() ? &model[i + 1] : nullptr;
      if (!mayBeBlank(item)) skipBlanks();
      if (rest_.empty()) {
        requireOptional(model, i);
        return found_;
      }
      if (item.element == DateElement::Punctuation) {
        readPunctuation();
        marked = true;
        continue;
      }
      readValue(item, next, marked && rest_.size() == lastEnd);
      marked = false;
      lastEnd = rest_.size();
    }
    skipBlanks();
    if (!rest_.empty())
      throw FunctionError(1830, "date format picture ends before converting entire input string");
    return found_;
  }

 private:
  static bool mayBeBlank(const DateItem& item) {
    return item.element == DateElement::Literal ||
           (item.element == DateElement::Punctuation && item.text == " ");
  }

  void skipBlanks() {
    while (!rest_.empty() && rest_[0] == ' ') rest_.remove_prefix(1);
  }

  /// A text may end before the time of day.
  static void requireOptional(const DateModel& model, std::size_t from) {
    for (std::size_t i = from; i < model.size(); ++i)
      if (std::ranges::find(kTimeOfDay, model[i].element) == std::end(kTimeOfDay))
        throw FunctionError(1840, "input value not long enough for date format");
  }

  /// `joined`: the text lacks the marks that the model has in front of this value. Then a number must have
  /// all its digits, and whatever does not fit is taken for the missing mark.
  void readValue(const DateItem& item, const DateItem* next, bool joined) {
    if (!joined) {
      readItem(item, next);
      return;
    }
    const std::size_t before = rest_.size();
    try {
      readItem(item, next);
    } catch (const FunctionError&) {
      raiseLiteral();
    }
    const std::size_t taken = before - rest_.size();
    if (isNumeric(item) && taken < item.digits &&
        !(item.element == DateElement::RoundedYear4 && taken == 2)) {
      raiseLiteral();
    }
  }

  [[noreturn]] static void raiseLiteral() {
    throw FunctionError(1861, "literal does not match format string");
  }

  void readItem(const DateItem& item, const DateItem* next) {
    switch (item.element) {
      case DateElement::Literal:
        readLiteral(item.text);
        return;
      case DateElement::Era:
        if (readMark(item, 'B', 'A', "CD", 1856, "BC/B.C. or AD/A.D. required")) raiseBeforeChrist();
        return;
      case DateElement::Meridian:
        found_.afternoon = readMark(item, 'P', 'A', "MM", 1855, "AM/A.M. or PM/P.M. required");
        return;
      case DateElement::DayName:
      case DateElement::DayAbbreviation:
        found_.weekday = readName(kDayNames, 1846, "not a valid day of the week");
        return;
      case DateElement::MonthName:
      case DateElement::MonthAbbreviation:
        found_.month = readName(kMonthNames, 1843, "not a valid month") + 1;
        return;
      default:
        break;
    }
    if (item.element == DateElement::Month && isAsciiLetter(rest_[0])) {
      found_.month = readName(kMonthNames, 1843, "not a valid month") + 1;
      return;
    }
    readNumber(item, next);
  }

  void readLiteral(std::string_view literal) {
    if (!startsWithAnyCase(rest_, asciiUpper(literal))) raiseLiteral();
    rest_.remove_prefix(literal.size());
  }

  /// Any mark does for any other, and none at all before a digit or a letter.
  void readPunctuation() { rest_.remove_prefix(isAsciiLetter(rest_[0]) || isAsciiDigit(rest_[0]) ? 0 : 1); }

  bool readMark(const DateItem& item, char yes, char no, const char* second, int code, const char* message) {
    std::string wanted = item.dotted ? "Y.Z." : "YZ";
    for (const bool answer : {true, false}) {
      wanted[0] = answer ? yes : no;
      wanted[item.dotted ? 2 : 1] = second[answer ? 0 : 1];
      if (startsWithAnyCase(rest_, wanted)) {
        rest_.remove_prefix(wanted.size());
        return answer;
      }
    }
    throw FunctionError(code, message);
  }

  /// A full name or its first three letters, whichever the model asks for.
  template <std::size_t N>
  int readName(const std::string_view (&names)[N], int code, const char* message) {
    for (std::size_t i = 0; i < N; ++i) {
      for (const std::string_view name : {names[i], names[i].substr(0, 3)}) {
        if (startsWithAnyCase(rest_, name)) {
          rest_.remove_prefix(name.size());
          return static_cast<int>(i);
        }
      }
    }
    throw FunctionError(code, message);
  }

  /// Digits up to the width of the element; four for YY and RR that nothing numeric follows directly.
  std::pair<std::int64_t, int> readDigits(const DateItem& item, const DateItem* next) {
    int width = item.digits;
    const bool shortYear =
        (item.element == DateElement::Year && width == 2) || item.element == DateElement::RoundedYear2;
    if (shortYear && (next == nullptr || !isNumeric(*next))) width = 4;
    std::int64_t value = 0;
    int count = 0;
    while (count < width && !rest_.empty() && isAsciiDigit(rest_[0])) {
      value = value * 10 + (rest_[0] - '0');
      ++count;
      rest_.remove_prefix(1);
    }
    if (count == 0)
      throw FunctionError(1858, "a non-numeric character was found where a numeric was expected");
    return {value, count};
  }

  void readNumber(const DateItem& item, const DateItem* next) {
    if (item.element == DateElement::YearWithComma) {
      readYearWithComma();
      return;
    }
    const auto [value, count] = readDigits(item, next);
    switch (item.element) {
      case DateElement::Year:
        found_.year = count >= 4 ? enteredYear(value) : completedYear(value, item.digits);
        return;
      case DateElement::RoundedYear2:
      case DateElement::RoundedYear4:
        found_.year = count > 2 ? enteredYear(value) : roundedYear(value);
        return;
      case DateElement::WeekdayNumber:
        found_.weekday = inRange(value, 1, 7, 1846, "not a valid day of the week") - 1;
        return;
      case DateElement::Julian:
        found_.julian = inRange(value, 1, 5373484, 1854, "julian date must be between 1 and 5373484");
        if (value < kFirstJulianDay) raiseBeforeChrist();
        return;
      default:
        break;
    }
    const auto* limits = std::ranges::find(kLimits, item.element, &Limits::element);
    if (limits == std::end(kLimits))
      throw FunctionError(1820, "format code cannot appear in date input format");
    found_.*limits->part = inRange(value, limits->low, limits->high, limits->code, limits->message);
  }

  void readYearWithComma() {
    std::int64_t value = 0;
    int count = 0;
    for (; !rest_.empty() && (isAsciiDigit(rest_[0]) || rest_[0] == ',') && count < 5; ++count) {
      value = rest_[0] == ',' ? value : value * 10 + (rest_[0] - '0');
      rest_.remove_prefix(1);
    }
    if (count == 0)
      throw FunctionError(1858, "a non-numeric character was found where a numeric was expected");
    found_.year = enteredYear(value);
  }

  /// The digits that are missing in front come from the current year.
  int completedYear(std::int64_t value, int digits) const {
    int unit = 1;
    for (int i = 0; i < digits; ++i) unit *= 10;
    return enteredYear(now_.year / unit * unit + value);
  }

  /// Of the half century nearest to now.
  int roundedYear(std::int64_t value) const {
    int century = now_.year / 100;
    if (value < 50 && now_.year % 100 >= 50)
      ++century;
    else if (value >= 50 && now_.year % 100 < 50)
      --century;
    return enteredYear(std::int64_t{100} * century + value);
  }

  std::string_view rest_;
  DateFields now_;
  DateParts found_;
};

}  // namespace

Date parseDate(std::string_view text, std::string_view model, const Context& context) {
  return dateOfParts(Reader(text, context).read(dateInputModel(model)), context.now.fields());
}

}  // namespace oracle_sql
