// What TO_DATE refuses in a model before it looks at the text: elements that only write, elements that come
// twice, and elements that exclude each other.
#include "oracle_sql/date/date_model.h"
#include "oracle_sql/function_error.h"
#include "oracle_sql/model_cache.h"

namespace oracle_sql {
namespace {

/// Elements that tell the same part of a date.
enum class Part : std::uint8_t { None, Year, Month, Weekday, Hour };

Part partOf(DateElement element) {
  switch (element) {
    case DateElement::Year:
    case DateElement::YearWithComma:
    case DateElement::RoundedYear2:
    case DateElement::RoundedYear4:
      return Part::Year;
    case DateElement::Month:
    case DateElement::MonthAbbreviation:
    case DateElement::MonthName:
      return Part::Month;
    case DateElement::WeekdayNumber:
    case DateElement::DayName:
    case DateElement::DayAbbreviation:
      return Part::Weekday;
    case DateElement::Hour12:
    case DateElement::Hour24:
      return Part::Hour;
    default:
      return Part::None;
  }
}

bool isOnlyWritten(const DateItem& item) {
  switch (item.element) {
    case DateElement::Century:
    case DateElement::IsoWeek:
    case DateElement::IsoYear:
    case DateElement::Quarter:
    case DateElement::WeekOfYear:
    case DateElement::WeekOfMonth:
      return true;
    default:
      return false;
  }
}

bool isText(const DateItem& item) {
  return item.element == DateElement::Literal || item.element == DateElement::Punctuation;
}

[[noreturn]] void raiseTwice(const DateItem& a, const DateItem& b) {
  if (a.element == b.element && a.digits == b.digits) {
    if (a.element == DateElement::Meridian && a.dotted != b.dotted)
      throw FunctionError(1814, "AM/PM conflicts with use of A.M./P.M.");
    if (a.element == DateElement::Era && a.dotted != b.dotted)
      throw FunctionError(1815, "BC/AD conflicts with use of B.C./A.D.");
    throw FunctionError(1810, "format code appears twice");
  }
  switch (partOf(a.element)) {
    case Part::Year:
      throw FunctionError(1812, "year may only be specified once");
    case Part::Month:
      throw FunctionError(1816, "month may only be specified once");
    case Part::Weekday:
      throw FunctionError(1817, "day of week may only be specified once");
    default:
      throw FunctionError(1813, "hour may only be specified once");
  }
}

void refuseTogether(const DateItem& a, const DateItem& b) {
  const auto pair = [&](DateElement x, DateElement y) {
    return (a.element == x && b.element == y) || (a.element == y && b.element == x);
  };
  if (a.element == b.element || (partOf(a.element) != Part::None && partOf(a.element) == partOf(b.element)))
    raiseTwice(a, b);
  if (pair(DateElement::Julian, DateElement::DayOfYear))
    throw FunctionError(1811, "Julian date precludes use of day of year");
  if (pair(DateElement::Hour24, DateElement::Meridian))
    throw FunctionError(1818, "'HH24' precludes use of meridian indicator");
}

DateModel checked(std::string_view text) {
  const DateModel& model = dateModel(text);
  for (std::size_t i = 0; i < model.size(); ++i) {
    if (isOnlyWritten(model[i])) throw FunctionError(1820, "format code cannot appear in date input format");
    for (std::size_t j = 0; j < i && !isText(model[i]); ++j) refuseTogether(model[j], model[i]);
  }
  return model;
}

}  // namespace

const DateModel& dateInputModel(std::string_view text) {
  thread_local ModelCache<DateModel> cache;
  return cache.get(text, checked);
}

}  // namespace oracle_sql
