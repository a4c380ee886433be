#include "oracle_sql/date/date_parts.h"

#include "oracle_sql/function_error.h"

namespace oracle_sql {
namespace {

void requireSame(std::optional<int> told, int is, int code, const char* message) {
  if (told && *told != is) throw FunctionError(code, message);
}

void requireMonthAndDay(const DateParts& parts, const DateFields& fields) {
  requireSame(parts.month, fields.month, 1833, "month conflicts with Julian date");
  requireSame(parts.day, fields.day, 1834, "day of month conflicts with Julian date");
}

Date dayOfJulian(const DateParts& parts) {
  const Date date{(*parts.julian - 2440588) * 86400};
  const DateFields fields = date.fields();
  requireSame(parts.year, fields.year, 1831, "year conflicts with Julian date");
  requireMonthAndDay(parts, fields);
  return date;
}

Date dayOfYear(const DateParts& parts, int year) {
  const Date first = Date::fromFields({year, 1, 1, 0, 0, 0});
  const Date date{first.seconds + std::int64_t{86400} * (*parts.dayOfYear - 1)};
  const DateFields fields = date.fields();
  if (fields.year != year)
    throw FunctionError(1848, "day of year must be between 1 and 365 (366 for leap year)");
  requireMonthAndDay(parts, fields);
  return date;
}

Date dayOf(const DateParts& parts, const DateFields& now) {
  if (parts.julian) return dayOfJulian(parts);
  const int year = parts.year.value_or(now.year);
  if (parts.dayOfYear) return dayOfYear(parts, year);
  return Date::fromFields({year, parts.month.value_or(now.month), parts.day.value_or(1), 0, 0, 0});
}

/// Without AM or PM it is the morning: 12:30 is half past midnight.
std::optional<int> hourOf(const DateParts& parts) {
  if (!parts.hour12) return parts.hour24;
  return *parts.hour12 % 12 + (parts.afternoon.value_or(false) ? 12 : 0);
}

int timeOf(const DateParts& parts) {
  const std::optional<int> hour = hourOf(parts);
  if (!parts.secondOfDay)
    return (hour.value_or(0) * 60 + parts.minute.value_or(0)) * 60 + parts.second.value_or(0);
  const int seconds = *parts.secondOfDay;
  requireSame(hour, seconds / 3600, 1836, "hour conflicts with seconds in day");
  requireSame(parts.minute, seconds / 60 % 60, 1837, "minutes of hour conflicts with seconds in day");
  requireSame(parts.second, seconds % 60, 1838, "seconds of minute conflicts with seconds in day");
  return seconds;
}

}  // namespace

int enteredYear(std::int64_t year) {
  if (year == 0 || year > 9999)
    throw FunctionError(1841, "(full) year must be between -4713 and +9999, and not be 0");
  return static_cast<int>(year);
}

Date dateOfParts(const DateParts& parts, const DateFields& now) {
  Date date = dayOf(parts, now);
  requireSame(parts.weekday, date.weekday(), 1835, "day of week conflicts with Julian date");
  date.seconds += timeOf(parts);
  return date;
}

}  // namespace oracle_sql
