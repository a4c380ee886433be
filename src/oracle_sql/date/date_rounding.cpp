#include <array>
#include <string>

#include "oracle_sql/date/date.h"
#include "oracle_sql/date/date_model.h"
#include "oracle_sql/function_error.h"
#include "oracle_sql/text/ascii_case.h"

namespace oracle_sql {
namespace {

constexpr std::int64_t kSecondsOfDay = 86400;

enum class Unit : std::uint8_t {
  Century,
  Year,
  IsoYear,
  Quarter,
  Month,
  Week,
  IsoWeek,
  MonthWeek,
  Day,
  SundayWeek,
  Hour,
  Minute
};

struct UnitName {
  std::string_view name;
  Unit unit;
};

constexpr UnitName kUnits[] = {
    {"CC", Unit::Century},     {"SCC", Unit::Century},   {"SYYYY", Unit::Year},   {"YYYY", Unit::Year},
    {"YEAR", Unit::Year},      {"SYEAR", Unit::Year},    {"YYY", Unit::Year},     {"YY", Unit::Year},
    {"Y", Unit::Year},         {"IYYY", Unit::IsoYear},  {"IYY", Unit::IsoYear},  {"IY", Unit::IsoYear},
    {"I", Unit::IsoYear},      {"Q", Unit::Quarter},     {"MONTH", Unit::Month},  {"MON", Unit::Month},
    {"MM", Unit::Month},       {"RM", Unit::Month},      {"WW", Unit::Week},      {"IW", Unit::IsoWeek},
    {"W", Unit::MonthWeek},    {"DDD", Unit::Day},       {"DD", Unit::Day},       {"J", Unit::Day},
    {"DAY", Unit::SundayWeek}, {"DY", Unit::SundayWeek}, {"D", Unit::SundayWeek}, {"HH", Unit::Hour},
    {"HH12", Unit::Hour},      {"HH24", Unit::Hour},     {"MI", Unit::Minute},
};

Unit unitOf(std::string_view model) {
  const std::string upper = asciiUpper(model);
  for (const UnitName& entry : kUnits) {
    if (entry.name == upper) return entry.unit;
  }
  if (dateModel(model).size() > 1) throw FunctionError(1898, "too many precision specifiers");
  throw FunctionError(1899, "bad precision specifier");
}

Date dayOf(int year, int month, int day) { return Date::fromFields({year, month, day, 0, 0, 0}); }

Date plusDays(const Date& date, std::int64_t days) { return {date.seconds + days * kSecondsOfDay}; }

Date midnight(const Date& date) { return {date.seconds - date.timeOfDay()}; }

/// Midnight of the last day of that weekday, the day itself included.
Date backTo(int weekday, const Date& date) {
  return plusDays(midnight(date), -((date.weekday() - weekday + 7) % 7));
}

Date isoYearStart(int year) { return backTo(1, dayOf(year, 1, 4)); }

Date start(const Date& date, Unit unit) {
  const DateFields f = date.fields();
  switch (unit) {
    case Unit::Century:
      return dayOf((f.year - 1) / 100 * 100 + 1, 1, 1);
    case Unit::Year:
      return dayOf(f.year, 1, 1);
    case Unit::IsoYear: {
      if (f.year < 9999 && date >= isoYearStart(f.year + 1)) return isoYearStart(f.year + 1);
      const Date begin = isoYearStart(f.year);
      return date >= begin ? begin : isoYearStart(f.year - 1);
    }
    case Unit::Quarter:
      return dayOf(f.year, (f.month - 1) / 3 * 3 + 1, 1);
    case Unit::Month:
      return dayOf(f.year, f.month, 1);
    case Unit::Week:
      return backTo(dayOf(f.year, 1, 1).weekday(), date);
    case Unit::IsoWeek:
      return backTo(1, date);
    case Unit::MonthWeek:
      return backTo(dayOf(f.year, f.month, 1).weekday(), date);
    case Unit::Day:
      return midnight(date);
    case Unit::SundayWeek:
      return backTo(0, date);
    case Unit::Hour:
      return {date.seconds - date.timeOfDay() % 3600};
    case Unit::Minute:
      return {date.seconds - date.timeOfDay() % 60};
  }
  return date;
}

Date next(const Date& begin, Unit unit) {
  const DateFields f = begin.fields();
  switch (unit) {
    case Unit::Century:
      return addMonths(begin, 1200);
    case Unit::Year:
      return addMonths(begin, 12);
    case Unit::IsoYear:
      return start(plusDays(begin, 371), Unit::IsoYear);
    case Unit::Quarter:
      return addMonths(dayOf(f.year, f.month, 1), 3);
    case Unit::Month:
      return addMonths(begin, 1);
    case Unit::Week:
    case Unit::IsoWeek:
    case Unit::MonthWeek:
    case Unit::SundayWeek:
      return plusDays(begin, 7);
    case Unit::Day:
      return plusDays(begin, 1);
    case Unit::Hour:
      return {begin.seconds + 3600};
    case Unit::Minute:
      return {begin.seconds + 60};
  }
  return begin;
}

/// Whether `date` belongs to the unit that follows. The turn is no plain middle for the long units: years
/// turn on July 1, quarters on the sixteenth of their second month, months on their sixteenth day, centuries
/// in their fifty-first year.
bool roundsUp(const Date& date, const Date& begin, Unit unit) {
  const DateFields f = date.fields();
  switch (unit) {
    case Unit::Century:
      return date >= addMonths(begin, 600);
    case Unit::Year:
      return f.month >= 7;
    case Unit::IsoYear:
      return date >= dayOf(plusDays(begin, 7).fields().year, 7, 1);
    case Unit::Quarter:
      return date >= plusDays(addMonths(begin, 1), 15);
    case Unit::Month:
      return f.day >= 16;
    default:
      return 2 * (date.seconds - begin.seconds) >= next(begin, unit).seconds - begin.seconds;
  }
}

}  // namespace

Date truncDate(const Date& date, std::string_view model) { return start(date, unitOf(model)); }

Date roundDate(const Date& date, std::string_view model) {
  const Unit unit = unitOf(model);
  const Date begin = start(date, unit);
  return roundsUp(date, begin, unit) ? next(begin, unit) : begin;
}

}  // namespace oracle_sql
