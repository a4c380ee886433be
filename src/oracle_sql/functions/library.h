// What stands behind the rows of the function table, one file a family.
#pragma once

#include <string>
#include <string_view>

#include "oracle_sql/functions/functions.h"

/// Where table.cpp wraps a row in
/// strict<>, the arguments that come here are not NULL.
namespace oracle_sql::library {

/// The text of a value, without a copy where it is text already.
class TextOf {
 public:
  explicit TextOf(const Value& value) : room_(value.isText() ? std::string() : toText(value)) {
    view_ = value.isText() ? value.bytes() : std::string_view(room_);
  }
  TextOf(const TextOf&) = delete;
  TextOf& operator=(const TextOf&) = delete;
  std::string_view view() const { return view_; }
  /// A piece of view(): a view itself where the argument holds the bytes, else a copy.
  Value piece(std::string_view part) const {
    return room_.empty() ? Value::textView(part) : Value::text(std::string(part));
  }

 private:
  std::string room_;
  std::string_view view_;
};

inline std::int64_t toWhole(const Value& value) { return toNumber(value).clampToInt64(); }

#define ORACLE_SQL_FUNCTION(name) Value name(Arguments arguments, const Context& context)
// numeric.cpp
ORACLE_SQL_FUNCTION(absolute);
ORACLE_SQL_FUNCTION(sign);
ORACLE_SQL_FUNCTION(ceiling);
ORACLE_SQL_FUNCTION(floor);
ORACLE_SQL_FUNCTION(round);
ORACLE_SQL_FUNCTION(truncate);
ORACLE_SQL_FUNCTION(modulo);
ORACLE_SQL_FUNCTION(remainder);
ORACLE_SQL_FUNCTION(power);
ORACLE_SQL_FUNCTION(squareRoot);
ORACLE_SQL_FUNCTION(exponential);
ORACLE_SQL_FUNCTION(naturalLogarithm);
ORACLE_SQL_FUNCTION(logarithm);
ORACLE_SQL_FUNCTION(bitAnd);
// comparing.cpp
ORACLE_SQL_FUNCTION(greatest);
ORACLE_SQL_FUNCTION(least);
// text.cpp
ORACLE_SQL_FUNCTION(length);
ORACLE_SQL_FUNCTION(lengthBytes);
ORACLE_SQL_FUNCTION(substring);
ORACLE_SQL_FUNCTION(substringBytes);
ORACLE_SQL_FUNCTION(upper);
ORACLE_SQL_FUNCTION(lower);
ORACLE_SQL_FUNCTION(initialCapitals);
ORACLE_SQL_FUNCTION(concat);
ORACLE_SQL_FUNCTION(ascii);
ORACLE_SQL_FUNCTION(character);
// searching.cpp
ORACLE_SQL_FUNCTION(position);
ORACLE_SQL_FUNCTION(positionBytes);
ORACLE_SQL_FUNCTION(replace);
ORACLE_SQL_FUNCTION(translate);
// padding.cpp
ORACLE_SQL_FUNCTION(padLeft);
ORACLE_SQL_FUNCTION(padRight);
ORACLE_SQL_FUNCTION(trimLeft);
ORACLE_SQL_FUNCTION(trimRight);
ORACLE_SQL_FUNCTION(trim);
// conversion.cpp
ORACLE_SQL_FUNCTION(toCharacter);
ORACLE_SQL_FUNCTION(toNumeric);
ORACLE_SQL_FUNCTION(toDateValue);
ORACLE_SQL_FUNCTION(rawToHex);
ORACLE_SQL_FUNCTION(hexToRaw);
// calendar.cpp
ORACLE_SQL_FUNCTION(systemDate);
ORACLE_SQL_FUNCTION(addMonths);
ORACLE_SQL_FUNCTION(monthsBetween);
ORACLE_SQL_FUNCTION(lastDay);
ORACLE_SQL_FUNCTION(nextDay);
ORACLE_SQL_FUNCTION(extract);
#undef ORACLE_SQL_FUNCTION

}  // namespace oracle_sql::library
