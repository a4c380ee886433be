#include "odbc/plain_number.h"

#include <algorithm>
#include <charconv>

#include "platform/numeric_text.h"

namespace kestrelix::odbc {

std::string plainNumber(std::string_view text) {
  std::string number(trimBlanks(text));
  std::replace(number.begin(), number.end(), ',', '.');
  if (!isNumericText(number)) return std::string(text);

  const bool negative = number.front() == '-';
  if (negative || number.front() == '+') number.erase(0, 1);
  int exponent = 0;
  if (const auto e = number.find_first_of("eE"); e != std::string::npos) {
    const std::size_t digits = e + (number[e + 1] == '+' ? 2 : 1);
    std::from_chars(number.data() + digits, number.data() + number.size(), exponent);
    number.resize(e);
  }
  // All digits, and how many of them stand before the point.
  auto point = static_cast<long>(std::min(number.find('.'), number.size()));
  std::erase(number, '.');
  point += std::clamp(exponent, -1000, 1000);
  if (point <= 0) number.insert(0, static_cast<std::size_t>(1 - point), '0'), point = 1;
  if (point > static_cast<long>(number.size()))
    number.append(static_cast<std::size_t>(point) - number.size(), '0');

  std::string whole = number.substr(0, static_cast<std::size_t>(point));
  std::string fraction = number.substr(static_cast<std::size_t>(point));
  whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size() - 1));
  fraction.erase(fraction.find_last_not_of('0') + 1);
  const bool zero = whole == "0" && fraction.empty();
  return (negative && !zero ? "-" : "") + whole + (fraction.empty() ? "" : "." + fraction);
}

}  // namespace kestrelix::odbc
