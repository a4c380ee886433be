#include <algorithm>

#include "oracle_sql/date_format.h"
#include "oracle_sql/function_error.h"

namespace oracle_sql {
namespace {

[[noreturn]] void raiseForm() { throw FunctionError(1861, "literal does not match format string"); }

// The one or two digits in front of `rest`.
int takeTwoDigits(std::string_view& rest, int highest, int code, const char* message) {
  const std::size_t size = std::min(rest.find_first_not_of("0123456789"), rest.size());
  if (size == 0 || size > 2) {
    raiseForm();
  }
  int value = 0;
  for (const char c : rest.substr(0, size)) {
    value = value * 10 + (c - '0');
  }
  if (value > highest) {
    throw FunctionError(code, message);
  }
  rest.remove_prefix(size);
  return value;
}

void takeColon(std::string_view& rest) {
  if (!rest.starts_with(':')) {
    raiseForm();
  }
  rest.remove_prefix(1);
}

}  // namespace

Date dateOfLiteral(std::string_view text) {
  std::string_view rest = text;
  const bool beforeChrist = rest.starts_with('-');
  if (beforeChrist || rest.starts_with('+')) {
    rest.remove_prefix(1);
  }
  int parts[3] = {0, 0, 0};
  for (int i = 0; i < 3; ++i) {
    const std::size_t size = std::min(rest.find_first_not_of("0123456789"), rest.size());
    const bool endsRight = i == 2 ? size == rest.size() : size < rest.size() && rest[size] == '-';
    if (size == 0 || size > (i == 0 ? 4U : 2U) || !endsRight) {
      raiseForm();
    }
    for (const char c : rest.substr(0, size)) {
      parts[i] = parts[i] * 10 + (c - '0');
    }
    rest.remove_prefix(i == 2 ? size : size + 1);
  }
  return Date::fromFields({beforeChrist ? -parts[0] : parts[0], parts[1], parts[2], 0, 0, 0});
}

Date timestampOfLiteral(std::string_view text) {
  const std::size_t blank = text.find(' ');
  if (blank == std::string_view::npos) {
    raiseForm();
  }
  Date date = dateOfLiteral(text.substr(0, blank));
  std::string_view rest = text.substr(blank + 1);
  const int hour = takeTwoDigits(rest, 23, 1850, "hour must be between 0 and 23");
  takeColon(rest);
  const int minute = takeTwoDigits(rest, 59, 1851, "minutes must be between 0 and 59");
  takeColon(rest);
  const int second = takeTwoDigits(rest, 59, 1852, "seconds must be between 0 and 59");
  if (rest.starts_with('.')) {
    const std::size_t end = std::min(rest.find_first_not_of("0123456789", 1), rest.size());
    if (rest.substr(1, end - 1).find_first_not_of('0') != std::string_view::npos) {
      throw FunctionError(FunctionError::kUnsupported, "a TIMESTAMP with fractions of a second");
    }
    rest.remove_prefix(end);
  }
  if (!rest.empty()) {
    throw FunctionError(FunctionError::kUnsupported, "a TIMESTAMP with a time zone");
  }
  date.seconds += (hour * 60 + minute) * 60 + second;
  return date;
}

}  // namespace oracle_sql
