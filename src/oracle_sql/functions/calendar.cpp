#include "oracle_sql/functions/library.h"
#include "oracle_sql/text/ascii_case.h"

namespace oracle_sql::library {

Value systemDate(Arguments, const Context& context) { return context.now; }

Value addMonths(Arguments arguments, const Context& context) {
  return oracle_sql::addMonths(toDate(arguments[0], context), toWhole(arguments[1]));
}

Value monthsBetween(Arguments arguments, const Context& context) {
  return oracle_sql::monthsBetween(toDate(arguments[0], context), toDate(arguments[1], context));
}

Value lastDay(Arguments arguments, const Context& context) {
  return oracle_sql::lastDay(toDate(arguments[0], context));
}

/// The day by its name or by its number, 1 for Sunday.
Value nextDay(Arguments arguments, const Context& context) {
  static constexpr std::string_view kDays[] = {"SUN", "MON", "TUE", "WED", "THU", "FRI", "SAT"};
  const Date date = toDate(arguments[0], context);
  if (arguments[1].isNumber()) {
    const std::int64_t day = toWhole(arguments[1]);
    return oracle_sql::nextDay(date, day >= 1 && day <= 7 ? kDays[day - 1] : std::string_view());
  }
  return oracle_sql::nextDay(date, TextOf(arguments[1]).view());
}

/// A DATE has a year, a month and a day here, nothing else; text does not become one.
Value extract(Arguments arguments, const Context&) {
  const std::string part = asciiUpper(TextOf(arguments[1]).view());
  if (arguments[0].isDate()) {
    const DateFields fields = arguments[0].date().fields();
    if (part == "YEAR") return fields.year;
    if (part == "MONTH") return fields.month;
    if (part == "DAY") return fields.day;
  }
  throw FunctionError(30076, "invalid extract field for extract source");
}

}  // namespace oracle_sql::library
