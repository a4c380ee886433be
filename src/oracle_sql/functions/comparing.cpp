#include "oracle_sql/functions/library.h"

namespace oracle_sql::library {
namespace {

/// The first argument decides what the others are converted to: GREATEST('10', 9) is '9'.
Value likeFirst(const Value& value, const Value& first, const Context& context) {
  if (value.kind() == first.kind()) return value;
  switch (first.kind()) {
    case Value::Kind::Number:
      return toNumber(value);
    case Value::Kind::Date:
      return toDate(value, context);
    case Value::Kind::Raw:
      return Value::raw(toRaw(value));
    case Value::Kind::Null:
    case Value::Kind::Text:
      break;
  }
  return Value::text(toText(value));
}

Comparison comparisonOf(const Value& first) {
  switch (first.kind()) {
    case Value::Kind::Number:
      return Comparison::Number;
    case Value::Kind::Date:
      return Comparison::Date;
    case Value::Kind::Raw:
      return Comparison::Raw;
    case Value::Kind::Null:
    case Value::Kind::Text:
      break;
  }
  return Comparison::Text;
}

/// `wanted`: 1 for the greatest, -1 for the least.
Value extreme(Arguments arguments, const Context& context, int wanted) {
  Value best = arguments[0];
  const Comparison comparison = comparisonOf(best);
  for (const Value& argument : arguments.subspan(1)) {
    Value other = likeFirst(argument, arguments[0], context);
    if (compareAs(comparison, other, best, context) == wanted) best = std::move(other);
  }
  return best;
}

}  // namespace

Value greatest(Arguments arguments, const Context& context) { return extreme(arguments, context, 1); }

Value least(Arguments arguments, const Context& context) { return extreme(arguments, context, -1); }

}  // namespace oracle_sql::library
