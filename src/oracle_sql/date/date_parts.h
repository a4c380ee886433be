// What TO_DATE has read, piece by piece, put together to one date.
#pragma once

#include <optional>

#include "oracle_sql/date/date.h"

namespace oracle_sql {

/// What a text said of a date, element by element.
struct DateParts {
  std::optional<int> year, month, day, dayOfYear, hour12, hour24, minute, second, secondOfDay, weekday;
  std::optional<std::int64_t> julian;
  std::optional<bool> afternoon;
};

/// The date that the parts tell: what is missing is the first day of the month of `now`, midnight.
/// ORA-01831 to ORA-01838 for parts that contradict each other, else as Date::fromFields.
Date dateOfParts(const DateParts& parts, const DateFields& now);

/// ORA-01841 for a year that cannot be entered.
int enteredYear(std::int64_t year);

}  // namespace oracle_sql
