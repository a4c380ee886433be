// NUMBER arithmetic, order and rounding, and the arithmetic of dates.
#include <algorithm>
#include <charconv>
#include <cstdint>
#include <string_view>

#include "oracle_sql/date/date.h"
#include "repository_file/function_frame.h"
#include "repository_file/storage.h"

namespace kestrelix::repository_file {
namespace {

using values::Number;

/// What a function of the arguments before `place` gives: NULL for any NULL, else `compute()`; a failure is
/// told at `place`.
template <class Compute>
void strict(sqlite3_context* context, Values arguments, int place, Compute compute) {
  if (anyNull(place, arguments)) return sqlite3_result_null(context);
  guarded(context, arguments[place], [&] { giveNumber(context, compute()); });
}

void add(sqlite3_context* context, int, Values arguments) {
  strict(context, arguments, 2, [&] { return numberOf(arguments[0]) + numberOf(arguments[1]); });
}

void subtract(sqlite3_context* context, int, Values arguments) {
  strict(context, arguments, 2, [&] { return numberOf(arguments[0]) - numberOf(arguments[1]); });
}

void multiply(sqlite3_context* context, int, Values arguments) {
  strict(context, arguments, 2, [&] { return numberOf(arguments[0]) * numberOf(arguments[1]); });
}

void divide(sqlite3_context* context, int count, Values arguments) {
  if (anyNull(2, arguments)) return sqlite3_result_null(context);
  guarded(context, count > 2 ? arguments[2] : nullptr,
          [&] { giveNumber(context, numberOf(arguments[0]) / numberOf(arguments[1])); });
}

void negate(sqlite3_context* context, int, Values arguments) {
  strict(context, arguments, 1, [&] { return -numberOf(arguments[0]); });
}

/// Many operators from left to right. The second argument has them, each with the place that its failure is
/// told at, as "+12/15"; the others are the operands, one more than operators.
void chain(sqlite3_context* context, int count, Values arguments) {
  std::string_view operators(reinterpret_cast<const char*>(sqlite3_value_text(arguments[1])),
                             static_cast<std::size_t>(sqlite3_value_bytes(arguments[1])));
  std::uint32_t place = 0;
  try {
    if (isNull(arguments[0])) return sqlite3_result_null(context);
    Number result = numberOf(arguments[0]);
    for (int i = 2; i < count; ++i) {
      if (isNull(arguments[i])) return sqlite3_result_null(context);
      const auto end = std::min(operators.find_first_not_of("0123456789", 1), operators.size());
      std::from_chars(operators.data() + 1, operators.data() + end, place);
      const Number operand = numberOf(arguments[i]);
      switch (operators.front()) {
        case '+':
          result = result + operand;
          break;
        case '-':
          result = result - operand;
          break;
        case '*':
          result = result * operand;
          break;
        default:
          result = result / operand;
      }
      operators.remove_prefix(end);
    }
    giveNumber(context, result);
  } catch (...) {
    giveFailure(context, evaluationOf(context), place);
  }
}

int placesOf(sqlite3_value* argument) {
  return static_cast<int>(std::clamp<std::int64_t>(numberOf(argument).clampToInt64(), -1000, 1000));
}

void roundNumber(sqlite3_context* context, int, Values arguments) {
  strict(context, arguments, 2, [&] { return numberOf(arguments[0]).round(placesOf(arguments[1])); });
}

void truncNumber(sqlite3_context* context, int, Values arguments) {
  strict(context, arguments, 2, [&] { return numberOf(arguments[0]).trunc(placesOf(arguments[1])); });
}

void compareNumbers(sqlite3_context* context, int, Values arguments) {
  if (anyNull(2, arguments)) return sqlite3_result_null(context);
  guarded(context, nullptr,
          [&] { sqlite3_result_int(context, compare(numberOf(arguments[0]), numberOf(arguments[1]))); });
}

/// The ordered byte form, of whole numbers too.
void orderKey(sqlite3_context* context, int, Values arguments) {
  switch (sqlite3_value_type(arguments[0])) {
    case SQLITE_INTEGER: {
      std::uint8_t bytes[Number::kMaxBytes];
      const auto size = numberOf(arguments[0]).toBytes(bytes);
      return sqlite3_result_blob(context, bytes, static_cast<int>(size), SQLITE_TRANSIENT);
    }
    case SQLITE_NULL:
      return sqlite3_result_null(context);
    default:
      sqlite3_result_value(context, arguments[0]);
  }
}

/// A whole number beside a broken one; beyond 64 bits a floating point number beyond every whole one.
void giveWhole(sqlite3_context* context, const Number& whole) {
  if (const auto value = whole.toInt64())
    sqlite3_result_int64(context, *value);
  else
    sqlite3_result_double(context, whole.isNegative() ? -1e300 : 1e300);
}

void wholeUp(sqlite3_context* context, int, Values arguments) {
  if (sqlite3_value_type(arguments[0]) != SQLITE_BLOB) return sqlite3_result_value(context, arguments[0]);
  guarded(context, nullptr, [&] { giveWhole(context, numberOf(arguments[0]).ceil()); });
}

void wholeDown(sqlite3_context* context, int, Values arguments) {
  if (sqlite3_value_type(arguments[0]) != SQLITE_BLOB) return sqlite3_result_value(context, arguments[0]);
  guarded(context, nullptr, [&] { giveWhole(context, numberOf(arguments[0]).floor()); });
}

// SQLite's LIMIT: a negative one would be none.
void giveLimit(sqlite3_context* context, const Number& last) {
  sqlite3_result_int64(context, std::max<std::int64_t>(last.clampToInt64(), 0));
}

void rowsUpTo(sqlite3_context* context, int, Values arguments) {
  if (isNull(arguments[0])) return sqlite3_result_int64(context, 0);
  guarded(context, nullptr, [&] { giveLimit(context, numberOf(arguments[0]).floor()); });
}

void rowsBelow(sqlite3_context* context, int, Values arguments) {
  if (isNull(arguments[0])) return sqlite3_result_int64(context, 0);
  guarded(context, nullptr, [&] { giveLimit(context, numberOf(arguments[0]).ceil() - Number(1)); });
}

values::Date dateOf(sqlite3_value* stored) { return {sqlite3_value_int64(stored)}; }

void dateDays(sqlite3_context* context, int, Values arguments) {
  strict(context, arguments, 2, [&] { return dateOf(arguments[0]) - dateOf(arguments[1]); });
}

/// Dates are stored as their seconds.
void datePlus(sqlite3_context* context, int, Values arguments) {
  strict(context, arguments, 2, [&] { return (dateOf(arguments[0]) + numberOf(arguments[1])).seconds; });
}

void dateMinus(sqlite3_context* context, int, Values arguments) {
  strict(context, arguments, 2, [&] { return (dateOf(arguments[0]) - numberOf(arguments[1])).seconds; });
}

void castNumber(sqlite3_context* context, int, Values arguments) {
  strict(context, arguments, 3, [&] {
    const int precision = sqlite3_value_int(arguments[1]);
    const int scale = sqlite3_value_int(arguments[2]);
    const Number rounded = numberOf(arguments[0]).round(scale);
    if (!(rounded.abs() < power(Number(10), Number(precision - scale))))
      throw values::FunctionError(1438, "value larger than specified precision allowed for this column");
    return rounded;
  });
}

/// How far a frame or a shift goes: a whole number that is not below the second argument.
void rowOffset(sqlite3_context* context, int, Values arguments) {
  guarded(context, arguments[2], [&] {
    if (isNull(arguments[0])) values::raiseArgumentOutOfRange("");
    const std::int64_t offset = numberOf(arguments[0]).clampToInt64();
    if (offset < sqlite3_value_int64(arguments[1])) values::raiseArgumentOutOfRange(std::to_string(offset));
    sqlite3_result_int64(context, offset);
  });
}

struct Entry {
  const char* name;
  int count;
  SqliteFunction call;
};

constexpr Entry kFunctions[] = {
    {"num_add", 3, add},           {"num_sub", 3, subtract},      {"num_mul", 3, multiply},
    {"num_div", 2, divide},        {"num_div", 3, divide},        {"num_neg", 2, negate},
    {"num_round", 3, roundNumber}, {"num_trunc", 3, truncNumber}, {"num_cmp", 2, compareNumbers},
    {"num_key", 1, orderKey},      {"whole_up", 1, wholeUp},      {"whole_down", 1, wholeDown},
    {"rows_up_to", 1, rowsUpTo},   {"rows_below", 1, rowsBelow},  {"date_days", 3, dateDays},
    {"date_plus", 3, datePlus},    {"date_minus", 3, dateMinus},  {"cast_number", 4, castNumber},
    {"num_chain", -1, chain},      {"row_offset", 3, rowOffset},
};

}  // namespace

void registerNumberFunctions(sqlite3* connection, Evaluation& evaluation) {
  for (const auto& [name, count, call] : kFunctions) addFunction(connection, name, count, call, evaluation);
}

}  // namespace kestrelix::repository_file
