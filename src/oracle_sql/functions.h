#pragma once

#include <span>
#include <string_view>

#include "oracle_sql/function_error.h"
#include "oracle_sql/value.h"

namespace oracle_sql {

using Arguments = std::span<const Value>;
using ArgumentTypes = std::span<const SqlType>;

// One function of the language. `call` is given between minArguments and maxArguments values and may return a
// piece of them. It is null where evaluation must be lazy (NVL, DECODE and their like): the name, the number
// of arguments and the type of the result are still told here, the translator makes a CASE of it.
struct Function {
  std::string_view name;  // upper case; a packaged one as "STATSPACK.V1024"
  int minArguments;
  int maxArguments;    // kAnyNumber: no limit
  bool deterministic;  // equal arguments give equal results, however often asked
  SqlType (*resultType)(ArgumentTypes);
  Value (*call)(Arguments, const Context&);

  static constexpr int kAnyNumber = 1000;
};

std::span<const Function> functionTable();
// `name` in any case; null if the language has no such function.
const Function* findFunction(std::string_view name);

// Arithmetic of the operators + - * / with dates; NULL if either side is.
enum class Operator : std::uint8_t { Add, Subtract, Multiply, Divide };
SqlType operatorType(Operator op, SqlType a, SqlType b);  // ORA-00932, ORA-00975 for a pair that has none
Value applyOperator(Operator op, const Value& a, const Value& b, const Context& context);
Value negate(const Value& value);

// a || b: NULL counts as the empty text.
Value concatenate(const Value& a, const Value& b);

// LIKE with the wildcards % and _; case counts. Neither side is NULL. `escape` is one character or empty;
// ORA-01425 for an escape of another length, ORA-01424 if it stands before anything but %, _ or itself.
bool like(std::string_view text, std::string_view pattern, std::string_view escape = {});

}  // namespace oracle_sql
