#include "statspack/package.h"

#include <string>

#include "oracle_sql/number/number_format.h"
#include "oracle_sql/text/ascii_case.h"

namespace kestrelix::statspack {
namespace {

using namespace oracle_sql;

constexpr std::string_view kUnits = " KMGTP";  // the first for ones

int unitOf(const Value& value) {
  if (value.isNull()) return 0;
  const std::string text = toText(value);
  const std::size_t unit = text.size() == 1 ? kUnits.find(text[0]) : std::string_view::npos;
  return unit == std::string_view::npos ? 0 : static_cast<int>(unit);
}

bool is(const Value& value, int number) { return !value.isNull() && toNumber(value) == Number(number); }

/// V1024(number, its unit, least unit to print, decimals, factor): a number of four digits with the
/// letter of its unit, as the columns of the STATSPACK report of release 11 show it. It climbs to a unit only
/// when the one below would need five digits. NULL and 0 are one blank.
Value v1024(Arguments arguments, const Context&) {
  const Value& value = arguments[0];
  if (value.isNull() || toNumber(value).isZero()) return Value::textView(" ");
  const Number factor = is(arguments[4], 1024) ? 1024 : 1000;
  const int precision = is(arguments[3], 0) ? 0 : is(arguments[3], 1) ? 1 : 2;
  const Number number = toNumber(value);
  const int ownUnit = unitOf(arguments[1]);
  const auto inUnit = [&](int unit) {
    return (number * power(factor, Number(ownUnit - unit))).round(precision);
  };
  int unit = unitOf(arguments[2]);
  while (unit + 1 < static_cast<int>(kUnits.size()) && inUnit(unit) > Number(9999)) ++unit;
  static constexpr std::string_view kModels[] = {"9999", "9999.9", "9999.99"};
  const Number shown = inUnit(unit);
  std::string text = formatNumber(shown, kModels[precision]);
  text += kUnits[static_cast<std::size_t>(unit)];
  return Value::text(std::move(text));
}

constexpr Function kV1024{
    "STATSPACK.V1024", 5, 5, true, [](ArgumentTypes) { return Type{TypeKind::Varchar2}; }, v1024};

}  // namespace

const Function* packageFunction(std::string_view name) {
  return asciiUpper(name) == kV1024.name ? &kV1024 : nullptr;
}

}  // namespace kestrelix::statspack
