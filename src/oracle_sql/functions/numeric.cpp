#include <algorithm>

#include "oracle_sql/functions/library.h"

namespace oracle_sql::library {
namespace {

// The number of places of ROUND and TRUNC.
int placesOf(Arguments arguments) {
  if (arguments.size() < 2) {
    return 0;
  }
  return static_cast<int>(std::clamp<std::int64_t>(toWhole(arguments[1]), -1000, 1000));
}

// A bound or the value of WIDTH_BUCKET: dates are numbers of seconds there.
Number scalar(const Value& value) { return value.isDate() ? Number(value.date().seconds) : toNumber(value); }

[[noreturn]] void raiseInvalidBucketArgument() {
  throw FunctionError(30494, "The argument of WIDTH_BUCKET function is NULL or invalid");
}

}  // namespace

Value absolute(Arguments arguments, const Context&) { return toNumber(arguments[0]).abs(); }

Value sign(Arguments arguments, const Context&) { return toNumber(arguments[0]).sign(); }

Value ceiling(Arguments arguments, const Context&) { return toNumber(arguments[0]).ceil(); }

Value floor(Arguments arguments, const Context&) { return toNumber(arguments[0]).floor(); }

Value round(Arguments arguments, const Context&) {
  if (arguments[0].isDate()) {
    return arguments.size() < 2 ? roundDate(arguments[0].date())
                                : roundDate(arguments[0].date(), TextOf(arguments[1]).view());
  }
  return toNumber(arguments[0]).round(placesOf(arguments));
}

Value truncate(Arguments arguments, const Context&) {
  if (arguments[0].isDate()) {
    return arguments.size() < 2 ? truncDate(arguments[0].date())
                                : truncDate(arguments[0].date(), TextOf(arguments[1]).view());
  }
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
  const Number a = toNumber(arguments[0]).trunc();
  const Number b = toNumber(arguments[1]).trunc();
  const auto x = a.toInt64();
  const auto y = b.toInt64();
  return x && y ? Value(*x & *y) : Value(oracle_sql::bitAnd(a, b));
}

Value arcTangent2(Arguments arguments, const Context&) {
  return atan2(toNumber(arguments[0]), toNumber(arguments[1]));
}

// The bytes that the server keeps a value in.
Value storedSize(Arguments arguments, const Context&) {
  const Value& value = arguments[0];
  switch (value.kind()) {
    case Value::Kind::Null:
      return {};
    case Value::Kind::Number: {
      std::uint8_t bytes[Number::kMaxBytes];
      return static_cast<std::int64_t>(value.number().toBytes(bytes));
    }
    case Value::Kind::Date:
      return 7;
    case Value::Kind::Text:
    case Value::Kind::Raw:
      break;
  }
  return static_cast<std::int64_t>(value.bytes().size());
}

Value binaryToNumber(Arguments arguments, const Context&) {
  Number number;
  for (const Value& argument : arguments) {
    const Number bit = toNumber(argument);
    if (!bit.isZero() && bit != Number(1)) {
      raiseArgumentOutOfRange(bit.toText());
    }
    number = number + number + bit;
  }
  return number;
}

// A NUMBER is never NaN.
Value notANumberValue(Arguments arguments, const Context&) {
  toNumber(arguments[1]);
  return toNumber(arguments[0]);
}

// Of `count` intervals of equal width from `low` up to `high`, or down to it, the one that the value is in;
// 0 before them, count + 1 behind. An interval holds the bound where it begins.
Value widthBucket(Arguments arguments, const Context&) {
  for (const Value& argument : arguments.subspan(1)) {
    if (argument.isNull()) {
      raiseInvalidBucketArgument();
    }
  }
  const Number low = scalar(arguments[1]);
  const Number high = scalar(arguments[2]);
  const Number count = toNumber(arguments[3]).trunc();
  if (count.sign() <= 0) {
    raiseInvalidBucketArgument();
  }
  if (arguments[0].isNull()) {
    return {};
  }
  const Number value = scalar(arguments[0]);
  const bool down = high < low;
  const Number inside = down ? low - value : value - low;
  const Number width = down ? low - high : high - low;
  if (inside.isNegative()) {
    return 0;
  }
  return inside >= width ? count + Number(1) : (inside * count / width).floor() + Number(1);
}

}  // namespace oracle_sql::library
