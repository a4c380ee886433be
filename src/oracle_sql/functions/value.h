// A value of a row, and Oracle's conversions from one kind to another.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "oracle_sql/date/date.h"
#include "oracle_sql/number/number.h"
#include "oracle_sql/types.h"

namespace oracle_sql {

/// One value of a row. The empty text and the empty RAW are NULL. Text is UTF-8.
class Value {
 public:
  enum class Kind : std::uint8_t { Null, Number, Date, Text, Raw };

  Value() = default;
  Value(Number number) : data_(number), kind_(Kind::Number) {}  // NOLINT: every Number is a Value
  Value(std::int64_t number) : data_(Number(number)), kind_(Kind::Number) {}  // NOLINT
  Value(int number) : data_(Number(number)), kind_(Kind::Number) {}           // NOLINT
  Value(Date date) : data_(date), kind_(Kind::Date) {}                        // NOLINT
  static Value text(std::string text);
  static Value raw(std::string bytes);
  /// The bytes stay the caller's and must outlive the value and what is computed from it: a function may
  /// return a piece of its argument.
  static Value textView(std::string_view text);
  static Value rawView(std::string_view bytes);

  Kind kind() const { return kind_; }
  bool isNull() const { return kind_ == Kind::Null; }
  bool isNumber() const { return kind_ == Kind::Number; }
  bool isDate() const { return kind_ == Kind::Date; }
  bool isText() const { return kind_ == Kind::Text; }
  bool isRaw() const { return kind_ == Kind::Raw; }

  const Number& number() const { return *std::get_if<Number>(&data_); }  ///< only of that kind
  Date date() const { return *std::get_if<Date>(&data_); }               ///< only of that kind
  std::string_view bytes() const;                                        ///< of Text or Raw

 private:
  Value(std::variant<std::monostate, Number, Date, std::string_view, std::string> data, Kind kind)
      : data_(std::move(data)), kind_(kind) {}

  std::variant<std::monostate, Number, Date, std::string_view, std::string> data_;
  Kind kind_ = Kind::Null;
};

/// Oracle's implicit conversions. NULL must be asked for before: these are for values that are there.
Number toNumber(const Value& value);                      ///< ORA-01722; ORA-00932 for a DATE
std::string toText(const Value& value);                   ///< a DATE as DD-MON-RR, RAW as hexadecimal digits
Date toDate(const Value& value, const Context& context);  ///< text as DD-MON-RR; ORA-018xx
std::string toRaw(const Value& value);                    ///< text as hexadecimal digits, ORA-01465

/// -1, 0, 1 after bringing both sides to the type of the comparison, which is not Invalid; neither may be
/// NULL.
int compareAs(Comparison comparison, const Value& a, const Value& b, const Context& context);
int compareText(std::string_view a, std::string_view b);         ///< by the bytes
int compareBlankPadded(std::string_view a, std::string_view b);  ///< the shorter one filled up with blanks

}  // namespace oracle_sql
