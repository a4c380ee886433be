#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "oracle_sql/date/date_format.h"
#include "oracle_sql/functions/functions.h"

// Short words for tests of functions: calls by name, and values as they are written in SQL.
namespace oracle_sql {

inline constexpr Date kNow{1718446830};  // 2024-06-15 10:20:30, a Saturday

inline Value n(const char* text) { return *Number::parse(text); }
inline Value s(const char* text) { return Value::text(text); }
inline Value d(const char* text) {
  const bool timed = std::string_view(text).size() > 10;
  return parseDate(text, timed ? "YYYY-MM-DD HH24:MI:SS" : "YYYY-MM-DD", {kNow});
}
inline const Value null;

// The value itself may look into the arguments; the text that tests compare does not.
inline std::string shown(const Value& value) {
  if (value.isNull()) {
    return "NULL";
  }
  return value.isDate() ? formatDate(value.date(), "YYYY-MM-DD HH24:MI:SS") : toText(value);
}

inline std::string call(const char* name, std::initializer_list<Value> arguments) {
  const Function* const function = findFunction(name);
  if (function == nullptr || function->call == nullptr) {
    return "no such function";
  }
  const std::vector<Value> values(arguments);
  EXPECT_GE(static_cast<int>(values.size()), function->minArguments) << name;
  EXPECT_LE(static_cast<int>(values.size()), function->maxArguments) << name;
  return shown(function->call(values, {kNow}));
}

// The number of the error that `action` ends in, 0 without one.
template <typename Action>
int errorOf(Action action) {
  try {
    action();
  } catch (const FunctionError& error) {
    return error.code();
  }
  return 0;
}

/// Whether `action` ends in a refusal of what a server knows and this engine does not.
template <typename Action>
bool isRefused(Action action) {
  try {
    action();
  } catch (const FunctionError& error) {
    return error.code() == FunctionError::kUnsupported;
  }
  return false;
}

inline int callError(const char* name, std::initializer_list<Value> arguments) {
  return errorOf([&] { call(name, arguments); });
}

}  // namespace oracle_sql
