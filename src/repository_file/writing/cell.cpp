#include "repository_file/writing/cell.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <optional>

#include "oracle_sql/number/number.h"

namespace kestrelix::repository_file {

namespace {

using oracle_sql::Number;

int hexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  throw BadValue("not a RAW in hex digits");
}

std::string bytesOfHex(std::string_view hex) {
  if (hex.size() % 2 != 0) throw BadValue("a RAW of half a byte");
  std::string bytes;
  for (std::size_t i = 0; i < hex.size(); i += 2)
    bytes += static_cast<char>(hexDigit(hex[i]) * 16 + hexDigit(hex[i + 1]));
  return bytes;
}

// The digits of a date field of fixed width, within its bounds.
int dateField(std::string_view text, std::size_t at, std::size_t width, int low, int high) {
  int value = -1;
  const char* first = text.data() + at;
  const auto [end, error] = std::from_chars(first, first + width, value);
  if (error != std::errc() || end != first + width || value < low || value > high)
    throw BadValue("not a date as YYYY-MM-DD HH24:MI:SS");
  return value;
}

}  // namespace

std::int64_t secondsOfDate(std::string_view text) {
  const bool timed = text.size() == 19;
  const auto is = [&](std::size_t at, char c) { return text[at] == c; };
  if ((!timed && text.size() != 10) || !is(4, '-') || !is(7, '-') ||
      (timed && (!is(10, ' ') || !is(13, ':') || !is(16, ':'))))
    throw BadValue("not a date as YYYY-MM-DD HH24:MI:SS");
  const std::chrono::year_month_day day{
      std::chrono::year(dateField(text, 0, 4, 1, 9999)),
      std::chrono::month(static_cast<unsigned>(dateField(text, 5, 2, 1, 12))),
      std::chrono::day(static_cast<unsigned>(dateField(text, 8, 2, 1, 31)))};
  if (!day.ok()) throw BadValue("a day that does not exist");
  std::int64_t seconds = std::chrono::sys_days(day).time_since_epoch().count() * std::int64_t{86400};
  if (timed)
    seconds += dateField(text, 11, 2, 0, 23) * 3600 + dateField(text, 14, 2, 0, 59) * 60 +
               dateField(text, 17, 2, 0, 59);
  return seconds;
}

Cell Cell::raw(std::string_view bytes) {
  Cell cell;
  cell.kind_ = bytes.empty() ? Kind::Null : Kind::Raw;
  cell.view_ = bytes;
  return cell;
}

Cell Cell::decimal(std::int64_t unscaled, int scale) {
  if (scale == 0) return Cell(unscaled);
  return numberFromText(std::to_string(unscaled) + "E-" + std::to_string(scale));
}

Cell Cell::numberFromText(std::string_view text) {
  std::int64_t whole = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), whole);
  if (error == std::errc() && end == text.data() + text.size()) return Cell(whole);
  std::optional<Number> number;
  try {
    number = Number::parse(text);
  } catch (const std::exception&) {
    throw BadValue("a number too large for a NUMBER");
  }
  if (!number) throw BadValue("not a number");
  if (const auto fits = number->toInt64()) return Cell(*fits);
  Cell cell;
  cell.kind_ = Kind::Number;
  std::array<std::uint8_t, Number::kMaxBytes> bytes{};
  cell.numberSize_ = static_cast<std::uint8_t>(number->toBytes(bytes));
  std::copy_n(bytes.begin(), cell.numberSize_, cell.number_.begin());
  return cell;
}

Cell Cell::fromText(statspack::Type type, std::string_view text, std::string& scratch) {
  if (text.empty()) return {};
  switch (type) {
    case statspack::Type::Number:
      return numberFromText(text);
    case statspack::Type::Date:
      return Cell(secondsOfDate(text));
    case statspack::Type::Raw:
      scratch = bytesOfHex(text);
      return raw(scratch);
    case statspack::Type::Varchar2:
    case statspack::Type::Char:
      break;
  }
  return Cell(text);
}

}  // namespace kestrelix::repository_file
