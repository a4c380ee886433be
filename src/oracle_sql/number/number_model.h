// A number format model, taken apart.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace oracle_sql {

/// A number format model taken apart. Positions are counted in digits.
struct NumberModel {
  enum class Form : std::uint8_t { Fixed, Scientific, Roman, Hexadecimal, Text, TextScientific };
  enum class Sign : std::uint8_t { Default, Leading, Trailing, TrailingMinus, Brackets };

  Form form = Form::Fixed;
  Sign sign = Sign::Default;
  bool dollar = false;
  bool filled = true;         ///< not under FM
  bool blankZero = false;     ///< B
  bool lower = false;         ///< rn, x
  char point = 0;             ///< '.' or 'D', 0 for none
  int shift = 0;              ///< digits behind V
  std::string whole = {};     ///< '9', '0', ',' and 'G' as they stand before the point
  std::string fraction = {};  ///< '9' and '0' behind it

  std::size_t wholePlaces() const;   ///< digits before the point
  std::size_t forcedPlaces() const;  ///< those of them from the first 0 on, which always stand
};

constexpr bool isGroup(char element) { return element == ',' || element == 'G'; }

/// ORA-01481 for a model that is none. Valid until the next call on this thread.
const NumberModel& numberModel(std::string_view text);

}  // namespace oracle_sql
