#include <algorithm>

#include "oracle_sql/date/date_format.h"
#include "oracle_sql/function_error.h"

namespace oracle_sql {
namespace {

[[noreturn]] void raiseForm() { throw FunctionError(1861, "literal does not match format string"); }

}  // namespace

Date dateOfLiteral(std::string_view text) {
  std::string_view rest = text;
  if (rest.starts_with('-')) raiseBeforeChrist();
  if (rest.starts_with('+')) rest.remove_prefix(1);
  int parts[3] = {0, 0, 0};
  for (int i = 0; i < 3; ++i) {
    const std::size_t size = std::min(rest.find_first_not_of("0123456789"), rest.size());
    const bool endsRight = i == 2 ? size == rest.size() : size < rest.size() && rest[size] == '-';
    if (size == 0 || size > (i == 0 ? 4U : 2U) || !endsRight) raiseForm();
    for (const char c : rest.substr(0, size)) parts[i] = parts[i] * 10 + (c - '0');
    rest.remove_prefix(i == 2 ? size : size + 1);
  }
  return Date::fromFields({parts[0], parts[1], parts[2], 0, 0, 0});
}

}  // namespace oracle_sql
