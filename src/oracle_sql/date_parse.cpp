#include <algorithm>
#include <array>
#include <optional>

#include "oracle_sql/ascii_case.h"
#include "oracle_sql/date_format.h"
#include "oracle_sql/date_model.h"
#include "oracle_sql/function_error.h"

namespace oracle_sql {
namespace {

bool isNumeric(const DateItem& item) { return item.digits != 0; }

bool isTimeOfDay(DateElement element) {
  switch (element) {
    case DateElement::Hour12:
    case DateElement::Hour24:
    case DateElement::Minute:
    case DateElement::Second:
    case DateElement::SecondOfDay:
    case DateElement::Meridian:
    case DateElement::Punctuation:
      return true;
    default:
      return false;
  }
}

// What a text said of a date, element by element.
struct Found {
  std::optional<int> year, month, day, dayOfYear, hour12, hour24, minute, second, secondOfDay, weekday;
  std::optional<std::int64_t> julian;
  std::optional<bool> afternoon, beforeChrist;
};

template <typename T>
void setOnce(std::optional<T>& field, T value) {
  if (field) {
    throw FunctionError(1810, "format code appears twice");
  }
  field = value;
}

int inRange(std::int64_t value, int low, int high, int code, const char* message) {
  if (value < low || value > high) {
    throw FunctionError(code, message);
  }
  return static_cast<int>(value);
}

class Reader {
 public:
  Reader(std::string_view text, const Context& context) : rest_(text), now_(context.now.fields()) {}

  Found read(const DateModel& model) {
    for (std::size_t i = 0; i < model.size(); ++i) {
      if (!model[i].exact && !mayBeBlank(model[i])) {
        skipBlanks();
      }
      if (rest_.empty()) {
        requireOptional(model, i);
        return found_;
      }
      readItem(model[i], i + 1 < model.size() ? &model[i + 1] : nullptr);
    }
    skipBlanks();
    if (!rest_.empty()) {
      throw FunctionError(1830, "date format picture ends before converting entire input string");
    }
    return found_;
  }

 private:
  static bool mayBeBlank(const DateItem& item) {
    return item.element == DateElement::Literal ||
           (item.element == DateElement::Punctuation && item.text == " ");
  }

  void skipBlanks() {
    while (!rest_.empty() && rest_[0] == ' ') {
      rest_.remove_prefix(1);
    }
  }

  // A text may end before the time of day.
  static void requireOptional(const DateModel& model, std::size_t from) {
    for (std::size_t i = from; i < model.size(); ++i) {
      if (!isTimeOfDay(model[i].element) || model[i].exact) {
        throw FunctionError(1840, "input value not long enough for date format");
      }
    }
  }

  void readItem(const DateItem& item, const DateItem* next) {
    switch (item.element) {
      case DateElement::Literal:
        readLiteral(item.text);
        return;
      case DateElement::Punctuation:
        readPunctuation(item);
        return;
      case DateElement::Radix:
        readLiteral(".");
        return;
      case DateElement::Era:
        setOnce(found_.beforeChrist, readMark(item, 'B', 'A', "CD", 1856, "BC/B.C. or AD/A.D. required"));
        return;
      case DateElement::Meridian:
        setOnce(found_.afternoon, readMark(item, 'P', 'A', "MM", 1855, "AM/A.M. or PM/P.M. required"));
        return;
      case DateElement::DayName:
      case DateElement::DayAbbreviation:
        setOnce(found_.weekday, readName(kDayNames, 1846, "not a valid day of the week"));
        return;
      case DateElement::MonthName:
      case DateElement::MonthAbbreviation:
        setOnce(found_.month, readName(kMonthNames, 1843, "not a valid month") + 1);
        return;
      case DateElement::RomanMonth:
        setOnce(found_.month, readRoman());
        return;
      default:
        break;
    }
    if (item.spelled || !isNumeric(item)) {
      throw FunctionError(1820, "format code cannot appear in date input format");
    }
    if (item.element == DateElement::Month && isAsciiLetter(rest_[0])) {
      setOnce(found_.month, readName(kMonthNames, 1843, "not a valid month") + 1);
      return;
    }
    readNumber(item, next);
  }

  void readLiteral(std::string_view literal) {
    if (rest_.substr(0, literal.size()) != literal) {
      throw FunctionError(1861, "literal does not match format string");
    }
    rest_.remove_prefix(literal.size());
  }

  // Any mark does for any other, and none at all before a digit or a letter.
  void readPunctuation(const DateItem& item) {
    const char c = rest_[0];
    if (item.exact) {
      readLiteral(item.text);
    } else if (!isAsciiLetter(c) && !isAsciiDigit(c)) {
      const bool sign = (c == '-' || c == '+') && item.text == " ";
      rest_.remove_prefix(sign ? 0 : 1);
    }
  }

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

  // A full name or its first three letters, whichever the model asks for.
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

  int readRoman() {
    std::size_t size = 0;
    while (size < rest_.size() && isAsciiLetter(rest_[size])) {
      ++size;
    }
    const std::string word = asciiUpper(rest_.substr(0, size));
    const auto* const month = std::find(std::begin(kRomanMonths), std::end(kRomanMonths), word);
    if (month == std::end(kRomanMonths)) {
      throw FunctionError(1843, "not a valid month");
    }
    rest_.remove_prefix(size);
    return static_cast<int>(month - std::begin(kRomanMonths)) + 1;
  }

  // Digits up to the width of the element; four for a short year that nothing numeric follows directly.
  std::pair<std::int64_t, int> readDigits(const DateItem& item, const DateItem* next) {
    int width = item.digits;
    const bool shortYear = item.element == DateElement::Year || item.element == DateElement::RoundedYear2;
    if (shortYear && !item.exact && (next == nullptr || !isNumeric(*next))) {
      width = 4;
    }
    std::int64_t value = 0;
    int count = 0;
    while (count < width && !rest_.empty() && isAsciiDigit(rest_[0])) {
      value = value * 10 + (rest_[0] - '0');
      ++count;
      rest_.remove_prefix(1);
    }
    if (count == 0) {
      throw FunctionError(1858, "a non-numeric character was found where a numeric was expected");
    }
    if (item.exact && item.padded && count < item.digits) {
      throw FunctionError(1862, "the numeric value does not match the length of the format item");
    }
    if (item.ordinal && rest_.size() >= 2 && isAsciiLetter(rest_[0])) {
      rest_.remove_prefix(2);
    }
    return {value, count};
  }

  bool readSign() {
    const bool negative = rest_[0] == '-';
    if (negative || rest_[0] == '+') {
      rest_.remove_prefix(1);
    }
    return negative;
  }

  void readNumber(const DateItem& item, const DateItem* next) {
    if (item.element == DateElement::YearWithComma) {
      readYearWithComma();
      return;
    }
    const bool negative = item.element == DateElement::SignedYear && readSign();
    const auto [value, count] = readDigits(item, next);
    switch (item.element) {
      case DateElement::Year:
        setOnce(found_.year, count >= 4 ? checkedYear(value) : completedYear(value, item.digits));
        return;
      case DateElement::SignedYear:
        setOnce(found_.year, checkedYear(negative ? -value : value));
        return;
      case DateElement::RoundedYear2:
      case DateElement::RoundedYear4:
        setOnce(found_.year, count > 2 ? checkedYear(value) : roundedYear(value));
        return;
      case DateElement::Month:
        setOnce(found_.month, inRange(value, 1, 12, 1843, "not a valid month"));
        return;
      case DateElement::Day:
        setOnce(found_.day,
                inRange(value, 1, 31, 1847, "day of month must be between 1 and last day of month"));
        return;
      case DateElement::DayOfYear:
        setOnce(found_.dayOfYear,
                inRange(value, 1, 366, 1848, "day of year must be between 1 and 365 (366 for leap year)"));
        return;
      case DateElement::Hour12:
        setOnce(found_.hour12, inRange(value, 1, 12, 1849, "hour must be between 1 and 12"));
        return;
      case DateElement::Hour24:
        setOnce(found_.hour24, inRange(value, 0, 23, 1850, "hour must be between 0 and 23"));
        return;
      case DateElement::Minute:
        setOnce(found_.minute, inRange(value, 0, 59, 1851, "minutes must be between 0 and 59"));
        return;
      case DateElement::Second:
        setOnce(found_.second, inRange(value, 0, 59, 1852, "seconds must be between 0 and 59"));
        return;
      case DateElement::SecondOfDay:
        setOnce(found_.secondOfDay,
                inRange(value, 0, 86399, 1853, "seconds in day must be between 0 and 86399"));
        return;
      case DateElement::WeekdayNumber:
        setOnce(found_.weekday, inRange(value, 1, 7, 1846, "not a valid day of the week") - 1);
        return;
      case DateElement::Julian:
        inRange(value, 1, 5373484, 1854, "julian date must be between 1 and 5373484");
        setOnce(found_.julian, value);
        return;
      default:
        throw FunctionError(1820, "format code cannot appear in date input format");
    }
  }

  void readYearWithComma() {
    std::int64_t value = 0;
    int count = 0;
    for (; !rest_.empty() && (isAsciiDigit(rest_[0]) || rest_[0] == ',') && count < 5; ++count) {
      value = rest_[0] == ',' ? value : value * 10 + (rest_[0] - '0');
      rest_.remove_prefix(1);
    }
    if (count == 0) {
      throw FunctionError(1858, "a non-numeric character was found where a numeric was expected");
    }
    setOnce(found_.year, checkedYear(value));
  }

  static int checkedYear(std::int64_t year) {
    if (year == 0 || year < -4713 || year > 9999) {
      throw FunctionError(1841, "(full) year must be between -4713 and +9999, and not be 0");
    }
    return static_cast<int>(year);
  }

  // The digits that are missing in front come from the current year.
  int completedYear(std::int64_t value, int digits) const {
    int unit = 1;
    for (int i = 0; i < digits; ++i) {
      unit *= 10;
    }
    return checkedYear(now_.year / unit * unit + value);
  }

  // Of the half century nearest to now.
  int roundedYear(std::int64_t value) const {
    int century = now_.year / 100;
    if (value < 50 && now_.year % 100 >= 50) {
      ++century;
    } else if (value >= 50 && now_.year % 100 < 50) {
      --century;
    }
    return checkedYear(std::int64_t{100} * century + value);
  }

  std::string_view rest_;
  DateFields now_;
  Found found_;
};

int hourOf(const Found& found) {
  if (found.hour24) {
    if (found.afternoon) {
      throw FunctionError(1818, "'HH24' precludes use of meridian indicator");
    }
    return *found.hour24;
  }
  if (!found.hour12) {
    return 0;
  }
  // Without AM or PM it is the morning: 12:30 is half past midnight.
  return *found.hour12 % 12 + (found.afternoon.value_or(false) ? 12 : 0);
}

Date assemble(const Found& found, const DateFields& now) {
  DateFields fields;
  fields.year = found.year.value_or(now.year);
  if (found.beforeChrist && *found.beforeChrist) {
    fields.year = -fields.year;
  }
  Date date;
  if (found.julian) {
    date.seconds = (*found.julian - 2440588) * 86400;
  } else if (found.dayOfYear) {
    const Date first = Date::fromFields({fields.year, 1, 1, 0, 0, 0});
    date.seconds = first.seconds + std::int64_t{86400} * (*found.dayOfYear - 1);
    if (date.fields().year != fields.year) {
      throw FunctionError(1848, "day of year must be between 1 and 365 (366 for leap year)");
    }
    const DateFields named = date.fields();
    if ((found.month && *found.month != named.month) || (found.day && *found.day != named.day)) {
      throw FunctionError(1834, "day of month conflicts with Julian date");
    }
  } else {
    fields.month = found.month.value_or(now.month);
    fields.day = found.day.value_or(1);
    date = Date::fromFields(fields);
  }
  if (found.weekday && *found.weekday != date.weekday()) {
    throw FunctionError(1835, "day of week conflicts with Julian date");
  }
  if (found.secondOfDay) {
    date.seconds += *found.secondOfDay;
  } else {
    date.seconds += (hourOf(found) * 60LL + found.minute.value_or(0)) * 60 + found.second.value_or(0);
  }
  return date;
}

}  // namespace

Date parseDate(std::string_view text, std::string_view model, const Context& context) {
  return assemble(Reader(text, context).read(dateModel(model)), context.now.fields());
}

Date dateOfLiteral(std::string_view text) {
  std::string_view rest = text;
  const bool beforeChrist = rest.starts_with('-');
  if (beforeChrist || rest.starts_with('+')) {
    rest.remove_prefix(1);
  }
  int parts[3] = {0, 0, 0};
  for (int i = 0; i < 3; ++i) {
    const std::size_t size = std::min(rest.find_first_not_of("0123456789"), rest.size());
    const bool endsRight = i == 2 ? size == rest.size() : size < rest.size() && rest[size] == '-';
    if (size == 0 || size > (i == 0 ? 4U : 2U) || !endsRight) {
      throw FunctionError(1861, "literal does not match format string");
    }
    for (const char c : rest.substr(0, size)) {
      parts[i] = parts[i] * 10 + (c - '0');
    }
    rest.remove_prefix(i == 2 ? size : size + 1);
  }
  return Date::fromFields({beforeChrist ? -parts[0] : parts[0], parts[1], parts[2], 0, 0, 0});
}

}  // namespace oracle_sql
