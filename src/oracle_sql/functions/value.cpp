#include "oracle_sql/functions/value.h"

#include <algorithm>
#include <cstring>

#include "oracle_sql/date/date_format.h"
#include "oracle_sql/function_error.h"

namespace oracle_sql {
namespace {

int order(int difference) { return difference < 0 ? -1 : difference > 0 ? 1 : 0; }

int hexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return c >= 'a' && c <= 'f' ? c - 'a' + 10 : -1;
}

std::string hexText(std::string_view bytes) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  std::string text;
  text.reserve(bytes.size() * 2);
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    text += kDigits[byte >> 4];
    text += kDigits[byte & 15];
  }
  return text;
}

/// The text of a value without a copy where it is text already; `room` holds the rest.
std::string_view viewText(const Value& value, std::string& room) {
  if (value.isText()) return value.bytes();
  room = toText(value);
  return room;
}

}  // namespace

Value Value::text(std::string text) { return text.empty() ? Value() : Value(std::move(text), Kind::Text); }

Value Value::raw(std::string bytes) { return bytes.empty() ? Value() : Value(std::move(bytes), Kind::Raw); }

Value Value::textView(std::string_view text) { return text.empty() ? Value() : Value(text, Kind::Text); }

Value Value::rawView(std::string_view bytes) { return bytes.empty() ? Value() : Value(bytes, Kind::Raw); }

std::string_view Value::bytes() const {
  if (const auto* view = std::get_if<std::string_view>(&data_)) return *view;
  const auto* owned = std::get_if<std::string>(&data_);
  return owned != nullptr ? std::string_view(*owned) : std::string_view();
}

Number toNumber(const Value& value) {
  if (value.isNumber()) return value.number();
  if (!value.isText()) raiseInconsistentTypes();
  const auto number = Number::parse(value.bytes());
  if (!number) raiseInvalidNumber();
  return *number;
}

std::string toText(const Value& value) {
  switch (value.kind()) {
    case Value::Kind::Null:
      break;
    case Value::Kind::Number:
      return value.number().toText();
    case Value::Kind::Date:
      return formatDate(value.date(), kDefaultDateModel);
    case Value::Kind::Text:
      return std::string(value.bytes());
    case Value::Kind::Raw:
      return hexText(value.bytes());
  }
  return {};
}

Date toDate(const Value& value, const Context& context) {
  if (value.isDate()) return value.date();
  if (!value.isText()) raiseInconsistentTypes();
  return parseDate(value.bytes(), kDefaultDateModel, context);
}

std::string toRaw(const Value& value) {
  if (value.isRaw()) return std::string(value.bytes());
  if (!value.isText()) raiseInconsistentTypes();
  const std::string_view text = value.bytes();
  std::string bytes;
  int high = text.size() % 2 == 0 ? -1 : 0;  // an odd count: the first digit stands alone
  for (const char c : text) {
    const int digit = hexDigit(c);
    if (digit < 0) throw FunctionError(1465, "invalid hex number");
    if (high < 0) {
      high = digit;
    } else {
      bytes += static_cast<char>(high * 16 + digit);
      high = -1;
    }
  }
  return bytes;
}

int compareText(std::string_view a, std::string_view b) { return order(a.compare(b)); }

int compareBlankPadded(std::string_view a, std::string_view b) {
  const std::size_t common = std::min(a.size(), b.size());
  const int start = a.substr(0, common).compare(b.substr(0, common));
  if (start != 0) return order(start);
  const std::string_view rest = a.size() > common ? a.substr(common) : b.substr(common);
  for (const char c : rest) {
    if (c != ' ') {
      const bool above = static_cast<unsigned char>(c) > ' ';
      return above == (a.size() > common) ? 1 : -1;
    }
  }
  return 0;
}

int compareAs(Comparison comparison, const Value& a, const Value& b, const Context& context) {
  std::string roomA;
  std::string roomB;
  switch (comparison) {
    case Comparison::Number:
      return compare(toNumber(a), toNumber(b));
    case Comparison::Date: {
      const Date x = toDate(a, context);
      const Date y = toDate(b, context);
      return x < y ? -1 : x > y ? 1 : 0;
    }
    case Comparison::Raw:
      return compareText(toRaw(a), toRaw(b));
    case Comparison::PaddedText:
      return compareBlankPadded(viewText(a, roomA), viewText(b, roomB));
    case Comparison::Text:
    case Comparison::Invalid:
      break;
  }
  return compareText(viewText(a, roomA), viewText(b, roomB));
}

}  // namespace oracle_sql
