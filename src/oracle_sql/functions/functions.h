// The table of functions, and the operators.
#pragma once

#include <limits>
#include <span>
#include <string_view>

#include "oracle_sql/function_error.h"
#include "oracle_sql/functions/value.h"

namespace oracle_sql {

using Arguments = std::span<const Value>;
using ArgumentTypes = std::span<const Type>;

/// One function of the language. `call` is given between minArguments and maxArguments values and may return
/// a piece of them. It is null where evaluation must be lazy (NVL, DECODE and their like): the name, the
/// number of arguments and the type of the result are still told here, the translator makes a CASE of it. The
/// words inside some calls become text arguments behind the others: TRIM(LEADING x FROM y) is called as
/// TRIM(y, x, 'LEADING'), EXTRACT(YEAR FROM d) as EXTRACT(d, 'YEAR').
struct Function {
  std::string_view name;  ///< upper case; one of a package as "STATSPACK.V1024"
  int minArguments;
  int maxArguments;    ///< kAnyNumber: no limit
  bool deterministic;  ///< equal arguments give equal results, however often asked
  Type (*resultType)(ArgumentTypes);
  Value (*call)(Arguments, const Context&);
  double largest = std::numeric_limits<double>::infinity();  ///< no absolute value of a result is above

  static constexpr int kAnyNumber = 1000;
};

std::span<const Function> functionTable();
/// `name` in any case; null if the language has no such function.
const Function* findFunction(std::string_view name);

/// The operators of arithmetic, with dates where they have a meaning; NULL if either side is. ORA-00932,
/// ORA-00975 for a pair that has none.
Value add(const Value& a, const Value& b);
Value subtract(const Value& a, const Value& b);
Value multiply(const Value& a, const Value& b);
Value divide(const Value& a, const Value& b);  ///< ORA-01476
Value negate(const Value& a);

/// a || b: NULL counts as the empty text.
Value concatenate(const Value& a, const Value& b);

/// LIKE with the wildcards % and _; case counts. Neither side is NULL. `escape` is one character or empty;
/// ORA-01425 for an escape of another length, ORA-01424 if it stands before anything but %, _ or itself.
bool like(std::string_view text, std::string_view pattern, std::string_view escape = {});

}  // namespace oracle_sql
