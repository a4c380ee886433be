#include "oracle_sql/date/date_format.h"

#include "oracle_sql/date/date_model.h"
#include "oracle_sql/text/ascii_case.h"

namespace oracle_sql {
namespace {

/// Year and week by ISO 8601: the week belongs to the year of its Thursday.
struct IsoWeekDate {
  int year;
  int week;
};

IsoWeekDate isoWeekOf(const Date& date) {
  const int sinceMonday = (date.weekday() + 6) % 7;
  const Date thursday{date.seconds + (3 - sinceMonday) * std::int64_t{86400}};
  const int year = thursday.fields().year;
  const Date first = Date::fromFields({year, 1, 1, 0, 0, 0});
  return {year, static_cast<int>((thursday.day() - first.day()) / 7) + 1};
}

int powerOfTen(int exponent) {
  int power = 1;
  for (int i = 0; i < exponent; ++i) power *= 10;
  return power;
}

class Formatter {
 public:
  explicit Formatter(const Date& date) : date_(date), fields_(date.fields()) {}

  void append(std::string& out, const DateItem& item) const {
    switch (item.element) {
      case DateElement::Literal:
      case DateElement::Punctuation:
        out += item.text;
        return;
      case DateElement::Era:
        appendMark(out, item, 'A', 'D');
        return;
      case DateElement::Meridian:
        appendMark(out, item, fields_.hour < 12 ? 'A' : 'P', 'M');
        return;
      case DateElement::DayName:
        appendName(out, item, kDayNames[date_.weekday()], 9);
        return;
      case DateElement::DayAbbreviation:
        appendName(out, item, kDayNames[date_.weekday()].substr(0, 3), 3);
        return;
      case DateElement::MonthName:
        appendName(out, item, kMonthNames[fields_.month - 1], 9);
        return;
      case DateElement::MonthAbbreviation:
        appendName(out, item, kMonthNames[fields_.month - 1].substr(0, 3), 3);
        return;
      case DateElement::YearWithComma:
        appendNumber(out, item, fields_.year / 1000, 1);
        out += ',';
        appendNumber(out, {.element = item.element, .digits = 3}, fields_.year % 1000, 3);
        return;
      default:
        appendNumber(out, item, numberOf(item), item.digits);
    }
  }

 private:
  std::int64_t numberOf(const DateItem& item) const {
    switch (item.element) {
      case DateElement::Century:
        return (fields_.year + 99) / 100;
      case DateElement::WeekdayNumber:
        return date_.weekday() + 1;
      case DateElement::Day:
        return fields_.day;
      case DateElement::DayOfYear:
        return dayOfYear();
      case DateElement::Hour12:
        return (fields_.hour + 11) % 12 + 1;
      case DateElement::Hour24:
        return fields_.hour;
      case DateElement::IsoWeek:
        return isoWeekOf(date_).week;
      case DateElement::IsoYear:
        return isoWeekOf(date_).year % powerOfTen(item.digits);
      case DateElement::Julian:
        return date_.julianDay();
      case DateElement::Minute:
        return fields_.minute;
      case DateElement::Month:
        return fields_.month;
      case DateElement::Quarter:
        return (fields_.month + 2) / 3;
      case DateElement::Second:
        return fields_.second;
      case DateElement::SecondOfDay:
        return date_.timeOfDay();
      case DateElement::WeekOfYear:
        return (dayOfYear() + 6) / 7;
      case DateElement::WeekOfMonth:
        return (fields_.day + 6) / 7;
      default:
        return fields_.year % powerOfTen(item.digits);
    }
  }

  std::int64_t dayOfYear() const {
    return date_.day() - Date::fromFields({fields_.year, 1, 1, 0, 0, 0}).day() + 1;
  }

  static void appendMark(std::string& out, const DateItem& item, char first, char second) {
    std::string mark(1, first);
    mark += item.dotted ? "." : "";
    mark += second;
    mark += item.dotted ? "." : "";
    if (item.letters == LetterCase::Lower)
      mark = inCase(mark, LetterCase::Lower);
    else if (item.letters == LetterCase::Capital)
      mark[item.dotted ? 2 : 1] = asciiLower(second);
    out += mark;
  }

  static void appendName(std::string& out, const DateItem& item, std::string_view name, std::size_t width) {
    out += inCase(name, item.letters);
    if (item.padded && name.size() < width) out.append(width - name.size(), ' ');
  }

  static void appendNumber(std::string& out, const DateItem& item, std::int64_t number, std::size_t width) {
    const std::string digits = Number(number).toText();
    if (item.padded && digits.size() < width) out.append(width - digits.size(), '0');
    out += digits;
  }

  Date date_;
  DateFields fields_;
};

}  // namespace

std::string formatDate(const Date& date, std::string_view model) {
  const Formatter formatter(date);
  std::string out;
  for (const DateItem& item : dateModel(model)) {
    formatter.append(out, item);
  }
  return out;
}

}  // namespace oracle_sql
