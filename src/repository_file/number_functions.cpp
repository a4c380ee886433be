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

bool bothWhole(Values arguments) {
  return sqlite3_value_type(arguments[0]) == SQLITE_INTEGER &&
         sqlite3_value_type(arguments[1]) == SQLITE_INTEGER;
}

/// The frame of a function of two numbers and a place.
template <class Compute>
void ofTwo(sqlite3_context* context, Values arguments, Compute compute) {
  if (anyNull(2, arguments)) return sqlite3_result_null(context);
  try {
    giveNumber(context, compute(numberOf(arguments[0]), numberOf(arguments[1])));
  } catch (...) {
    giveFailure(context, evaluationOf(context), offsetOf(arguments[2]));
  }
}

void add(sqlite3_context* context, int, Values arguments) {
  std::int64_t result = 0;
  if (bothWhole(arguments) &&
      !__builtin_add_overflow(sqlite3_value_int64(arguments[0]), sqlite3_value_int64(arguments[1]), &result))
    return sqlite3_result_int64(context, result);
  ofTwo(context, arguments, [](const Number& a, const Number& b) { return a + b; });
}

void subtract(sqlite3_context* context, int, Values arguments) {
  std::int64_t result = 0;
  if (bothWhole(arguments) &&
      !__builtin_sub_overflow(sqlite3_value_int64(arguments[0]), sqlite3_value_int64(arguments[1]), &result))
    return sqlite3_result_int64(context, result);
  ofTwo(context, arguments, [](const Number& a, const Number& b) { return a - b; });
}

void multiply(sqlite3_context* context, int, Values arguments) {
  std::int64_t result = 0;
  if (bothWhole(arguments) &&
      !__builtin_mul_overflow(sqlite3_value_int64(arguments[0]), sqlite3_value_int64(arguments[1]), &result))
    return sqlite3_result_int64(context, result);
  ofTwo(context, arguments, [](const Number& a, const Number& b) { return a * b; });
}

void divide(sqlite3_context* context, int count, Values arguments) {
  if (anyNull(2, arguments)) return sqlite3_result_null(context);
  if (bothWhole(arguments)) {
    const auto a = sqlite3_value_int64(arguments[0]);
    const auto b = sqlite3_value_int64(arguments[1]);
    if (b > 0 && a % b == 0) return sqlite3_result_int64(context, a / b);
  }
  try {
    giveNumber(context, numberOf(arguments[0]) / numberOf(arguments[1]));
  } catch (...) {
    giveFailure(context, evaluationOf(context), count > 2 ? offsetOf(arguments[2]) : 0);
  }
}

void negate(sqlite3_context* context, int, Values arguments) {
  if (isNull(arguments[0])) return sqlite3_result_null(context);
  try {
    giveNumber(context, -numberOf(arguments[0]));
  } catch (...) {
    giveFailure(context, evaluationOf(context), offsetOf(arguments[1]));
  }
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
  const auto places = numberOf(argument).clampToInt64();
  return static_cast<int>(places > 1000 ? 1000 : places < -1000 ? -1000 : places);
}

void roundNumber(sqlite3_context* context, int, Values arguments) {
  if (anyNull(2, arguments)) return sqlite3_result_null(context);
  try {
    giveNumber(context, numberOf(arguments[0]).round(placesOf(arguments[1])));
  } catch (...) {
    giveFailure(context, evaluationOf(context), offsetOf(arguments[2]));
  }
}

void truncNumber(sqlite3_context* context, int, Values arguments) {
  if (anyNull(2, arguments)) return sqlite3_result_null(context);
  try {
    giveNumber(context, numberOf(arguments[0]).trunc(placesOf(arguments[1])));
  } catch (...) {
    giveFailure(context, evaluationOf(context), offsetOf(arguments[2]));
  }
}

void compareNumbers(sqlite3_context* context, int, Values arguments) {
  if (anyNull(2, arguments)) return sqlite3_result_null(context);
  if (bothWhole(arguments)) {
    const auto a = sqlite3_value_int64(arguments[0]);
    const auto b = sqlite3_value_int64(arguments[1]);
    return sqlite3_result_int(context, a < b ? -1 : a > b ? 1 : 0);
  }
  try {
    sqlite3_result_int(context, compare(numberOf(arguments[0]), numberOf(arguments[1])));
  } catch (...) {
    giveFailure(context, evaluationOf(context), 0);
  }
}

/// The ordered byte form, of whole numbers too.
void orderKey(sqlite3_context* context, int, Values arguments) {
  switch (sqlite3_value_type(arguments[0])) {
    case SQLITE_INTEGER: {
      std::uint8_t bytes[Number::kMaxBytes];
      const auto size = Number(static_cast<std::int64_t>(sqlite3_value_int64(arguments[0]))).toBytes(bytes);
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
  try {
    giveWhole(context, numberOf(arguments[0]).ceil());
  } catch (...) {
    giveFailure(context, evaluationOf(context), 0);
  }
}

void wholeDown(sqlite3_context* context, int, Values arguments) {
  if (sqlite3_value_type(arguments[0]) != SQLITE_BLOB) return sqlite3_result_value(context, arguments[0]);
  try {
    giveWhole(context, numberOf(arguments[0]).floor());
  } catch (...) {
    giveFailure(context, evaluationOf(context), 0);
  }
}

// SQLite's LIMIT: a negative one would be none.
void giveLimit(sqlite3_context* context, const Number& last) {
  const auto limit = last.clampToInt64();
  sqlite3_result_int64(context, limit < 0 ? 0 : limit);
}

void rowsUpTo(sqlite3_context* context, int, Values arguments) {
  if (isNull(arguments[0])) return sqlite3_result_int64(context, 0);
  try {
    giveLimit(context, numberOf(arguments[0]).floor());
  } catch (...) {
    giveFailure(context, evaluationOf(context), 0);
  }
}

void rowsBelow(sqlite3_context* context, int, Values arguments) {
  if (isNull(arguments[0])) return sqlite3_result_int64(context, 0);
  try {
    giveLimit(context, numberOf(arguments[0]).ceil() - Number(1));
  } catch (...) {
    giveFailure(context, evaluationOf(context), 0);
  }
}

void dateDays(sqlite3_context* context, int, Values arguments) {
  if (anyNull(2, arguments)) return sqlite3_result_null(context);
  try {
    giveNumber(context, values::Date{sqlite3_value_int64(arguments[0])} -
                            values::Date{sqlite3_value_int64(arguments[1])});
  } catch (...) {
    giveFailure(context, evaluationOf(context), offsetOf(arguments[2]));
  }
}

void datePlus(sqlite3_context* context, int, Values arguments) {
  if (anyNull(2, arguments)) return sqlite3_result_null(context);
  try {
    giveValue(context, values::Date{sqlite3_value_int64(arguments[0])} + numberOf(arguments[1]));
  } catch (...) {
    giveFailure(context, evaluationOf(context), offsetOf(arguments[2]));
  }
}

void dateMinus(sqlite3_context* context, int, Values arguments) {
  if (anyNull(2, arguments)) return sqlite3_result_null(context);
  try {
    giveValue(context, values::Date{sqlite3_value_int64(arguments[0])} - numberOf(arguments[1]));
  } catch (...) {
    giveFailure(context, evaluationOf(context), offsetOf(arguments[2]));
  }
}

void castNumber(sqlite3_context* context, int, Values arguments) {
  if (isNull(arguments[0])) return sqlite3_result_null(context);
  try {
    const int precision = sqlite3_value_int(arguments[1]);
    const int scale = sqlite3_value_int(arguments[2]);
    const Number rounded = numberOf(arguments[0]).round(scale);
    if (!(rounded.abs() < power(Number(10), Number(precision - scale))))
      throw values::FunctionError(1438, "value larger than specified precision allowed for this column");
    giveNumber(context, rounded);
  } catch (...) {
    giveFailure(context, evaluationOf(context), offsetOf(arguments[3]));
  }
}

/// How far a frame or a shift goes: a whole number that is not below the second argument.
void rowOffset(sqlite3_context* context, int, Values arguments) {
  try {
    if (isNull(arguments[0])) values::raiseArgumentOutOfRange("");
    const std::int64_t offset = numberOf(arguments[0]).clampToInt64();
    if (offset < sqlite3_value_int64(arguments[1])) values::raiseArgumentOutOfRange(std::to_string(offset));
    sqlite3_result_int64(context, offset);
  } catch (...) {
    giveFailure(context, evaluationOf(context), offsetOf(arguments[2]));
  }
}

struct Entry {
  const char* name;
  int count;
  void (*call)(sqlite3_context*, int, Values);
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
  for (const auto& entry : kFunctions)
    checkRegistration(sqlite3_create_function_v2(connection, entry.name, entry.count, kPure, &evaluation,
                                                 entry.call, nullptr, nullptr, nullptr),
                      entry.name);
}

}  // namespace kestrelix::repository_file
