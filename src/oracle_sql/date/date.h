// Oracle's DATE, its calendar and its arithmetic.
#pragma once

#include <compare>
#include <cstdint>
#include <string_view>

#include "oracle_sql/number/number.h"

namespace oracle_sql {

/// Calendar fields of a date.
struct DateFields {
  int year = 1;
  int month = 1;  ///< 1..12
  int day = 1;    ///< 1..31
  int hour = 0;
  int minute = 0;
  int second = 0;
};

/// Oracle's DATE: a wall clock time to the second, years 1 to 9999, Julian calendar before 1582-10-15. The
/// ten days that the calendar left out then are that day too.
struct Date {
  std::int64_t seconds = 0;  ///< since 1970-01-01 00:00:00

  /// ORA-01839, ORA-01841, ORA-01843 or ORA-01847 if there is no such day.
  static Date fromFields(const DateFields& fields);
  DateFields fields() const;
  std::int64_t day() const;        ///< whole days since 1970-01-01
  std::int64_t timeOfDay() const;  ///< seconds since midnight
  std::int64_t julianDay() const { return day() + 2440588; }
  int weekday() const;  ///< 0 Sunday .. 6 Saturday

  friend auto operator<=>(const Date&, const Date&) = default;
};

/// What an evaluation needs to know of its surroundings.
struct Context {
  Date now;  ///< SYSDATE of the running statement; also the century of RR and the month of a bare TO_DATE
};

/// Years before Christ, which a server has, are refused as unsupported.
[[noreturn]] void raiseBeforeChrist();

/// Days as a NUMBER; the sum is rounded to whole seconds. ORA-01841 outside the years of a DATE.
Number operator-(const Date& a, const Date& b);
Date operator+(const Date& date, const Number& days);
Date operator-(const Date& date, const Number& days);

int daysInMonth(int year, int month);
/// The last day of a month stays the last day.
Date addMonths(const Date& date, std::int64_t months);
/// Whole for equal days of the month and for two month ends, else in 31sts with the time of day.
Number monthsBetween(const Date& a, const Date& b);
Date lastDay(const Date& date);
/// The next day after `date` of that English name (in full or its first three letters); ORA-01846.
Date nextDay(const Date& date, std::string_view dayName);
/// `model` is one of TRUNC's and ROUND's own: CC, YYYY, IYYY, Q, MM, WW, IW, W, DD, DAY, HH, MI and their
/// synonyms, in any case; ORA-01821, ORA-01898 or ORA-01899 for another.
Date truncDate(const Date& date, std::string_view model = "DD");
Date roundDate(const Date& date, std::string_view model = "DD");

}  // namespace oracle_sql
