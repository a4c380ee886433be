#include "oracle_sql/date/date.h"

#include <algorithm>
#include <limits>

#include "oracle_sql/function_error.h"

namespace oracle_sql {
namespace {

constexpr std::int64_t kSecondsOfDay = 86400;
constexpr std::int64_t kEpochJulianDay = 2440588;     // of 1970-01-01
constexpr std::int64_t kFirstGregorianDay = 2299161;  // of 1582-10-15, the day after 1582-10-04
constexpr int kMaxYear = 9999;

std::int64_t floorDivide(std::int64_t a, std::int64_t b) { return a / b - (a % b < 0 ? 1 : 0); }

/// Days before the month in a year that begins in March.
int daysBefore(int marchMonth) { return (153 * marchMonth + 2) / 5; }

std::int64_t gregorianDay(int year, int month, int day) {
  const std::int64_t y = year + 4800 - (month < 3 ? 1 : 0);
  return day + daysBefore((month + 9) % 12) + 365 * y + y / 4 - y / 100 + y / 400 - 32045;
}

std::int64_t julianCalendarDay(int year, int month, int day) {
  const std::int64_t y = year + 4800 - (month < 3 ? 1 : 0);
  return day + daysBefore((month + 9) % 12) + 365 * y + y / 4 - 32083;
}

std::int64_t julianDayOf(int year, int month, int day) {
  const bool october = year == 1582 && month == 10;
  if (october && day > 4 && day < 15) return kFirstGregorianDay;
  const bool gregorian = year > 1582 || (year == 1582 && month > 10) || (october && day >= 15);
  return gregorian ? gregorianDay(year, month, day) : julianCalendarDay(year, month, day);
}

DateFields calendarOf(std::int64_t julianDay) {
  std::int64_t century = 0;
  std::int64_t rest = 0;
  if (julianDay >= kFirstGregorianDay) {
    const std::int64_t shifted = julianDay + 32044;
    century = (4 * shifted + 3) / 146097;
    rest = shifted - 146097 * century / 4;
  } else {
    rest = julianDay + 32082;
  }
  const std::int64_t year = (4 * rest + 3) / 1461;
  const auto dayOfYear = static_cast<int>(rest - 1461 * year / 4);
  const int marchMonth = (5 * dayOfYear + 2) / 153;
  DateFields fields;
  fields.day = dayOfYear - daysBefore(marchMonth) + 1;
  fields.month = marchMonth < 10 ? marchMonth + 3 : marchMonth - 9;
  fields.year = static_cast<int>(100 * century + year - 4800) + (marchMonth < 10 ? 0 : 1);
  return fields;
}

[[noreturn]] void raiseYear() {
  throw FunctionError(1841, "(full) year must be between -4713 and +9999, and not be 0");
}

void requireYear(int year) {
  if (year < 0) raiseBeforeChrist();
  if (year == 0 || year > kMaxYear) raiseYear();
}

Date checked(std::int64_t seconds) {
  static const std::int64_t first = Date::fromFields({1, 1, 1, 0, 0, 0}).seconds;
  static const std::int64_t last = Date::fromFields({kMaxYear, 12, 31, 23, 59, 59}).seconds;
  if (seconds < first) raiseBeforeChrist();
  if (seconds > last) raiseYear();
  return {seconds};
}

Date shifted(const Date& date, const Number& days, bool back) {
  const Number seconds = (days * Number(kSecondsOfDay)).round();
  const auto whole = seconds.toInt64();
  constexpr std::int64_t kFar = std::numeric_limits<std::int64_t>::max() / 4;
  if (!whole || *whole > kFar || *whole < -kFar) raiseYear();
  return checked(date.seconds + (back ? -*whole : *whole));
}

}  // namespace

void raiseBeforeChrist() { throw FunctionError(FunctionError::kUnsupported, "a date before Christ"); }

Date Date::fromFields(const DateFields& f) {
  requireYear(f.year);
  if (f.month < 1 || f.month > 12) throw FunctionError(1843, "not a valid month");
  if (f.day < 1 || f.day > 31)
    throw FunctionError(1847, "day of month must be between 1 and last day of month");
  if (f.day > daysInMonth(f.year, f.month)) throw FunctionError(1839, "date not valid for month specified");
  const std::int64_t day = julianDayOf(f.year, f.month, f.day) - kEpochJulianDay;
  return {day * kSecondsOfDay + (f.hour * 60LL + f.minute) * 60 + f.second};
}

DateFields Date::fields() const {
  DateFields result = calendarOf(julianDay());
  const auto time = static_cast<int>(timeOfDay());
  result.hour = time / 3600;
  result.minute = time / 60 % 60;
  result.second = time % 60;
  return result;
}

std::int64_t Date::day() const { return floorDivide(seconds, kSecondsOfDay); }

std::int64_t Date::timeOfDay() const { return seconds - day() * kSecondsOfDay; }

int Date::weekday() const { return static_cast<int>((julianDay() + 1) % 7); }

/// Whole days and the part of a day are rounded each for itself, as the server does: over midnight a second
/// is 1 - 86399/86400, which has four places fewer than 1/86400.
Number operator-(const Date& a, const Date& b) {
  const Number days = a.day() - b.day();
  const std::int64_t seconds = a.timeOfDay() - b.timeOfDay();
  return seconds == 0 ? days : days + Number(seconds) / Number(kSecondsOfDay);
}

Date operator+(const Date& date, const Number& days) { return shifted(date, days, false); }

Date operator-(const Date& date, const Number& days) { return shifted(date, days, true); }

int daysInMonth(int year, int month) {
  static constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (month != 2) return kDays[month - 1];
  const bool leap = year % 4 == 0 && (year <= 1582 || year % 100 != 0 || year % 400 == 0);
  return leap ? 29 : 28;
}

Date addMonths(const Date& date, std::int64_t months) {
  if (months > 12 * 20000 || months < -12 * 20000) raiseYear();
  DateFields f = date.fields();
  const bool monthEnd = f.day == daysInMonth(f.year, f.month);
  const std::int64_t total = std::int64_t{f.year} * 12 + f.month - 1 + months;
  f.year = static_cast<int>(floorDivide(total, 12));
  f.month = static_cast<int>(total - std::int64_t{f.year} * 12) + 1;
  if (f.year < 1) raiseBeforeChrist();
  requireYear(f.year);
  const int last = daysInMonth(f.year, f.month);
  f.day = monthEnd ? last : std::min(f.day, last);
  return Date::fromFields(f);
}

Number monthsBetween(const Date& a, const Date& b) {
  const DateFields x = a.fields();
  const DateFields y = b.fields();
  const int months = (x.year - y.year) * 12 + x.month - y.month;
  const bool bothEnds = x.day == daysInMonth(x.year, x.month) && y.day == daysInMonth(y.year, y.month);
  if (x.day == y.day || bothEnds) return months;
  const std::int64_t seconds = std::int64_t{x.day - y.day} * kSecondsOfDay + a.timeOfDay() - b.timeOfDay();
  return Number(months) + Number(seconds) / Number(31 * kSecondsOfDay);
}

Date lastDay(const Date& date) {
  DateFields f = date.fields();
  f.day = daysInMonth(f.year, f.month);
  return Date::fromFields(f);
}

Date nextDay(const Date& date, std::string_view dayName) {
  static constexpr std::string_view kDays[] = {"SUN", "MON", "TUE", "WED", "THU", "FRI", "SAT"};
  std::string name;
  for (const char c : dayName.substr(0, 3))
    name += static_cast<char>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
  const auto* const found = std::find(std::begin(kDays), std::end(kDays), name);
  if (found == std::end(kDays)) throw FunctionError(1846, "not a valid day of the week");
  const int wanted = static_cast<int>(found - std::begin(kDays));
  const int ahead = (wanted - date.weekday() + 6) % 7 + 1;
  return checked(date.seconds + ahead * kSecondsOfDay);
}

}  // namespace oracle_sql
