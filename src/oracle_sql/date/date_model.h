// A date format model, taken apart.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace oracle_sql {

/// The elements of a date format model.
enum class DateElement : std::uint8_t {
  Literal,
  Punctuation,
  Era,
  Meridian,
  Century,
  WeekdayNumber,
  DayName,
  DayAbbreviation,
  Day,
  DayOfYear,
  Hour12,
  Hour24,
  IsoWeek,
  IsoYear,
  Julian,
  Minute,
  Month,
  MonthAbbreviation,
  MonthName,
  Quarter,
  RoundedYear2,
  RoundedYear4,
  Second,
  SecondOfDay,
  WeekOfYear,
  WeekOfMonth,
  Year,
  YearWithComma,
};

enum class LetterCase : std::uint8_t { Upper, Capital, Lower };

/// One element as it stands in the model.
struct DateItem {
  DateElement element = DateElement::Literal;
  std::uint8_t digits = 0;  ///< of a number: its full width
  LetterCase letters = LetterCase::Upper;
  bool dotted = false;    ///< A.M., B.C.
  bool padded = true;     ///< not under FM
  std::string text = {};  ///< of a literal or of punctuation
};

using DateModel = std::vector<DateItem>;

/// ORA-01821 for an element that there is none of; what the server has beyond these (Roman and spelled
/// numbers, signed years, FX, the forms of a territory) is refused as unsupported. Valid until the next call
/// on this thread.
const DateModel& dateModel(std::string_view text);

/// The same for TO_DATE: ORA-01810 to ORA-01820 also for elements that cannot be read, come twice or exclude
/// each other.
const DateModel& dateInputModel(std::string_view text);

/// `word` (upper case) in the letters of an item.
std::string inCase(std::string_view word, LetterCase letters);

inline constexpr std::string_view kMonthNames[] = {"JANUARY",   "FEBRUARY", "MARCH",    "APRIL",
                                                   "MAY",       "JUNE",     "JULY",     "AUGUST",
                                                   "SEPTEMBER", "OCTOBER",  "NOVEMBER", "DECEMBER"};
inline constexpr std::string_view kDayNames[] = {"SUNDAY",   "MONDAY", "TUESDAY", "WEDNESDAY",
                                                 "THURSDAY", "FRIDAY", "SATURDAY"};

}  // namespace oracle_sql
