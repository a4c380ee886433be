#pragma once

#include <cstdint>
#include <string_view>

namespace oracle_sql {

struct Date;

enum class IntervalField : std::uint8_t { Year, Month, Day, Hour, Minute, Second };

// The fields that an INTERVAL literal writes: DAY(3) TO SECOND.
struct IntervalFields {
  IntervalField first = IntervalField::Day;
  IntervalField last = IntervalField::Day;
  int digits = 2;  // of the first field, 0 to 9
};

// A length of time: either months or seconds.
struct Interval {
  std::int64_t amount = 0;
  bool months = false;
};

// The length that the text of an INTERVAL literal writes. ORA-01867 for another form, ORA-01873 for more
// digits than the first field has, ORA-01843 and ORA-01850 to ORA-01852 for a later field out of its range.
// Fractions of a second are refused as unsupported.
Interval intervalOfLiteral(std::string_view text, const IntervalFields& fields);

// Months keep the day: ORA-01839 where the month is too short for it. ORA-01841 outside the years of a DATE.
Date operator+(const Date& date, const Interval& interval);

}  // namespace oracle_sql
