#include <algorithm>

#include "oracle_sql/functions/library.h"

namespace oracle_sql::library {
namespace {

/// The number of places of ROUND and TRUNC.
int placesOf(Arguments arguments) {
  if (arguments.size() < 2) return 0;
  return static_cast<int>(std::clamp<std::int64_t>(toWhole(arguments[1]), -1000, 1000));
}

}  // namespace

Value absolute(Arguments arguments, const Context&) { return toNumber(arguments[0]).abs(); }

Value sign(Arguments arguments, const Context&) { return toNumber(arguments[0]).sign(); }

Value ceiling(Arguments arguments, const Context&) { return toNumber(arguments[0]).ceil(); }

Value floor(Arguments arguments, const Context&) { return toNumber(arguments[0]).floor(); }

Value round(Arguments arguments, const Context&) {
  if (arguments[0].isDate())
    return arguments.size() < 2 ? roundDate(arguments[0].date())
                                : roundDate(arguments[0].date(), TextOf(arguments[1]).view());
  return toNumber(arguments[0]).round(placesOf(arguments));
}

Value truncate(Arguments arguments, const Context&) {
  if (arguments[0].isDate())
    return arguments.size() < 2 ? truncDate(arguments[0].date())
                                : truncDate(arguments[0].date(), TextOf(arguments[1]).view());
  return toNumber(arguments[0]).trunc(placesOf(arguments));
}

Value modulo(Arguments arguments, const Context&) {
  return mod(toNumber(arguments[0]), toNumber(arguments[1]));
}

Value remainder(Arguments arguments, const Context&) {
  return oracle_sql::remainder(toNumber(arguments[0]), toNumber(arguments[1]));
}

Value power(Arguments arguments, const Context&) {
  return oracle_sql::power(toNumber(arguments[0]), toNumber(arguments[1]));
}

Value squareRoot(Arguments arguments, const Context&) { return sqrt(toNumber(arguments[0])); }

Value exponential(Arguments arguments, const Context&) { return exp(toNumber(arguments[0])); }

Value naturalLogarithm(Arguments arguments, const Context&) { return ln(toNumber(arguments[0])); }

Value logarithm(Arguments arguments, const Context&) {
  return log(toNumber(arguments[0]), toNumber(arguments[1]));
}

Value bitAnd(Arguments arguments, const Context&) {
  const auto x = toNumber(arguments[0]).trunc().toInt64();
  const auto y = toNumber(arguments[1]).trunc().toInt64();
  if (!x || !y) throw FunctionError(FunctionError::kUnsupported, "BITAND beyond 64 bits");
  return *x & *y;
}

}  // namespace oracle_sql::library
