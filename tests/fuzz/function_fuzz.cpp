// Any call of any function with any values: it gives a value that can be shown and stored, or Oracle's error.
#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <vector>

#include "oracle_sql/functions/functions.h"

namespace {

using namespace oracle_sql;

constexpr int kMostArguments = 6;
constexpr std::size_t kLongestText = 60;
const std::int64_t kFirstSecond = Date::fromFields({.year = 1}).seconds;
const std::int64_t kLastSecond =
    Date::fromFields({.year = 9999, .month = 12, .day = 31, .hour = 23, .minute = 59, .second = 59}).seconds;
/// TRUNC and ROUND go beyond the calendar as the server's do, to the year 10001.
constexpr std::int64_t kRoundedBeyond = 2LL * 366 * 86400;

[[noreturn]] void fault(std::string_view what, const Function& function) {
  std::cerr << function.name << ": " << what << "\n";
  std::abort();
}

Number number(FuzzedDataProvider& data) {
  if (data.ConsumeBool()) return data.ConsumeIntegral<std::int64_t>();
  std::vector<std::uint8_t> digits(data.ConsumeIntegralInRange<std::size_t>(1, 20));
  for (auto& digit : digits) digit = data.ConsumeIntegralInRange<std::uint8_t>(0, 99);
  return Number::fromDigits(digits, data.ConsumeIntegralInRange(-65, 62), data.ConsumeBool());
}

Value value(FuzzedDataProvider& data) {
  switch (data.ConsumeIntegralInRange(0, 5)) {
    case 0:
      return {};
    case 1:
      return number(data);
    case 2:
      return data.ConsumeIntegralInRange(-3, 40);
    case 3:
      return Date{data.ConsumeIntegralInRange(kFirstSecond, kLastSecond)};
    case 4:
      return Value::raw(data.ConsumeRandomLengthString(kLongestText));
    default:
      return Value::text(data.ConsumeRandomLengthString(kLongestText));
  }
}

/// What a value must keep to once it is stored and read again.
void check(const Value& result, const Function& function) {
  if (result.isNumber()) {
    const Number& n = result.number();
    const auto back = Number::parse(n.toPlainText());
    if (!back || *back != n) fault("plain text reads as another number: " + n.toPlainText(), function);
    std::uint8_t bytes[Number::kMaxBytes];
    const auto stored = Number::fromBytes({bytes, n.toBytes(bytes)});
    if (!stored || *stored != n) fault("stored as another number: " + n.toPlainText(), function);
  }
  if (result.isDate() && (result.date().seconds < kFirstSecond - kRoundedBeyond ||
                          result.date().seconds > kLastSecond + kRoundedBeyond))
    fault("a date beyond the calendar: " + std::to_string(result.date().seconds), function);
  if ((result.isText() || result.isRaw()) && result.bytes().empty()) fault("an empty text", function);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  FuzzedDataProvider data(bytes, size);
  const auto table = functionTable();
  const Function& function = table[data.ConsumeIntegralInRange<std::size_t>(0, table.size() - 1)];
  const Context context{Date{data.ConsumeIntegralInRange(kFirstSecond, kLastSecond)}};
  std::vector<Value> arguments(static_cast<std::size_t>(data.ConsumeIntegralInRange(
      function.minArguments,
      std::max(function.minArguments, std::min(function.maxArguments, kMostArguments)))));
  for (Value& argument : arguments) argument = value(data);
  try {
    if (function.call != nullptr) check(function.call(arguments, context), function);
  } catch (const FunctionError&) {
  }
  const Value a = value(data);
  const Value b = value(data);
  for (const auto operation : {&add, &subtract, &multiply, &divide, &concatenate}) {
    try {
      check(operation(a, b), function);
    } catch (const FunctionError&) {
    }
  }
  return 0;
}
