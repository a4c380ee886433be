#include "oracle_sql/date/date_format.h"
#include "oracle_sql/functions/library.h"
#include "oracle_sql/number/number_format.h"

namespace oracle_sql::library {
Value toCharacter(Arguments arguments, const Context&) {
  const Value& value = arguments[0];
  if (arguments.size() < 2) return value.isText() ? value : Value::text(toText(value));
  const TextOf model(arguments[1]);
  if (value.isDate()) return Value::text(formatDate(value.date(), model.view()));
  return Value::text(formatNumber(toNumber(value), model.view()));
}

Value toNumeric(Arguments arguments, const Context&) {
  if (arguments.size() < 2) return toNumber(arguments[0]);
  return parseNumber(TextOf(arguments[0]).view(), TextOf(arguments[1]).view());
}

/// A DATE goes through its own text too, and so loses its time of day, as it does on the server.
Value toDateValue(Arguments arguments, const Context& context) {
  const TextOf text(arguments[0]);
  if (arguments.size() < 2) return parseDate(text.view(), kDefaultDateModel, context);
  return parseDate(text.view(), TextOf(arguments[1]).view(), context);
}

/// The bytes of any value: of a number its ordered form, of text its characters.
Value rawToHex(Arguments arguments, const Context&) {
  const Value& value = arguments[0];
  if (value.isDate()) raiseInconsistentTypes();
  if (value.isNumber()) {
    std::uint8_t bytes[Number::kMaxBytes];
    const std::size_t size = value.number().toBytes(bytes);
    return Value::text(toText(Value::raw(std::string(bytes, bytes + size))));
  }
  return Value::text(toText(Value::rawView(value.bytes())));
}

Value hexToRaw(Arguments arguments, const Context&) {
  return Value::raw(toRaw(Value::textView(TextOf(arguments[0]).view())));
}

}  // namespace oracle_sql::library
