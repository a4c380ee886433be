#include "oracle_sql/interval.h"

#include "oracle_sql/ascii_case.h"
#include "oracle_sql/date.h"
#include "oracle_sql/function_error.h"

namespace oracle_sql {
namespace {

// What follows the first field: the mark in front of it and what its values mean.
struct FieldRule {
  char mark;
  int highest;
  int code;
  const char* message;
  std::int64_t unit;  // months or seconds
};

constexpr FieldRule kRules[] = {{'\0', 0, 0, "", 12},
                                {'-', 11, 1843, "not a valid month", 1},
                                {'\0', 0, 0, "", 86400},
                                {' ', 23, 1850, "hour must be between 0 and 23", 3600},
                                {':', 59, 1851, "minutes must be between 0 and 59", 60},
                                {':', 59, 1852, "seconds must be between 0 and 59", 1}};

[[noreturn]] void raiseInvalid() { throw FunctionError(1867, "the interval is invalid"); }

std::string_view trimmed(std::string_view text) {
  while (text.starts_with(' ')) {
    text.remove_prefix(1);
  }
  while (text.ends_with(' ')) {
    text.remove_suffix(1);
  }
  return text;
}

std::string_view takeDigits(std::string_view& rest) {
  std::size_t size = 0;
  while (size < rest.size() && isAsciiDigit(rest[size])) {
    ++size;
  }
  const std::string_view digits = rest.substr(0, size);
  rest.remove_prefix(size);
  if (digits.empty() || size > 9) {
    raiseInvalid();
  }
  return digits;
}

std::int64_t valueOf(std::string_view digits) {
  std::int64_t value = 0;
  for (const char c : digits) {
    value = value * 10 + (c - '0');
  }
  return value;
}

void refuseFractions(std::string_view& rest) {
  if (!rest.starts_with('.')) {
    return;
  }
  rest.remove_prefix(1);
  if (valueOf(takeDigits(rest)) != 0) {
    throw FunctionError(FunctionError::kUnsupported, "an INTERVAL with fractions of a second");
  }
}

}  // namespace

Interval intervalOfLiteral(std::string_view text, const IntervalFields& fields) {
  std::string_view rest = trimmed(text);
  const bool negative = rest.starts_with('-');
  if (negative || rest.starts_with('+')) {
    rest = trimmed(rest.substr(1));
  }
  std::string_view digits = takeDigits(rest);
  while (digits.size() > 1 && digits[0] == '0') {
    digits.remove_prefix(1);
  }
  if (digits != "0" && static_cast<int>(digits.size()) > fields.digits) {
    throw FunctionError(1873, "the leading precision of the interval is too small");
  }
  Interval interval;
  interval.months = fields.first <= IntervalField::Month;
  interval.amount = valueOf(digits) * kRules[static_cast<std::size_t>(fields.first)].unit;
  for (auto field = static_cast<std::size_t>(fields.first) + 1;
       field <= static_cast<std::size_t>(fields.last); ++field) {
    const FieldRule& rule = kRules[field];
    if (!rest.starts_with(rule.mark)) {
      raiseInvalid();
    }
    rest = rule.mark == ' ' ? trimmed(rest) : rest.substr(1);
    const std::int64_t value = valueOf(takeDigits(rest));
    if (value > rule.highest) {
      throw FunctionError(rule.code, rule.message);
    }
    interval.amount += value * rule.unit;
  }
  if (fields.last == IntervalField::Second) {
    refuseFractions(rest);
  }
  if (!rest.empty()) {
    raiseInvalid();
  }
  interval.amount = negative ? -interval.amount : interval.amount;
  return interval;
}

Date operator+(const Date& date, const Interval& interval) {
  if (!interval.months) {
    return date + Number(interval.amount) / Number(86400);
  }
  const int day = date.fields().day;
  const Date firstOfMonth{date.seconds - (day - 1) * std::int64_t{86400}};
  DateFields fields = addMonths(firstOfMonth, interval.amount).fields();
  fields.day = day;
  return Date::fromFields(fields);
}

}  // namespace oracle_sql
