#include "oracle_sql/spelled_number.h"

#include <string_view>

namespace oracle_sql {
namespace {

constexpr std::string_view kSmall[] = {"ZERO",    "ONE",     "TWO",       "THREE",    "FOUR",
                                       "FIVE",    "SIX",     "SEVEN",     "EIGHT",    "NINE",
                                       "TEN",     "ELEVEN",  "TWELVE",    "THIRTEEN", "FOURTEEN",
                                       "FIFTEEN", "SIXTEEN", "SEVENTEEN", "EIGHTEEN", "NINETEEN"};
constexpr std::string_view kTens[] = {"",      "",      "TWENTY",  "THIRTY", "FORTY",
                                      "FIFTY", "SIXTY", "SEVENTY", "EIGHTY", "NINETY"};

struct Irregular {
  std::string_view cardinal;
  std::string_view ordinal;
};

constexpr Irregular kIrregular[] = {{"ONE", "FIRST"},     {"TWO", "SECOND"},   {"THREE", "THIRD"},
                                    {"FIVE", "FIFTH"},    {"EIGHT", "EIGHTH"}, {"NINE", "NINTH"},
                                    {"TWELVE", "TWELFTH"}};

void appendWord(std::string& text, std::string_view word) {
  if (!text.empty()) {
    text += ' ';
  }
  text += word;
}

std::string belowHundred(std::int64_t number) {
  if (number < 20) {
    return std::string(kSmall[number]);
  }
  std::string text(kTens[number / 10]);
  if (number % 10 != 0) {
    text += '-';
    text += kSmall[number % 10];
  }
  return text;
}

}  // namespace

std::string spelledNumber(std::int64_t number) {
  if (number == 0) {
    return "ZERO";
  }
  struct Scale {
    std::int64_t size;
    std::string_view name;
  };
  static constexpr Scale kScales[] = {{1000000, "MILLION"}, {1000, "THOUSAND"}, {100, "HUNDRED"}};
  std::string text;
  for (const Scale& scale : kScales) {
    if (number >= scale.size) {
      appendWord(text, spelledNumber(number / scale.size));
      appendWord(text, scale.name);
      number %= scale.size;
    }
  }
  if (number != 0) {
    appendWord(text, belowHundred(number));
  }
  return text;
}

std::string spelledOrdinal(std::int64_t number) {
  std::string text = spelledNumber(number);
  const std::size_t at = text.find_last_of(" -");
  const std::size_t last = at == std::string::npos ? 0 : at + 1;
  for (const Irregular& irregular : kIrregular) {
    if (text.compare(last, std::string::npos, irregular.cardinal) == 0) {
      return text.replace(last, std::string::npos, irregular.ordinal);
    }
  }
  if (text.back() == 'Y') {
    return text.replace(text.size() - 1, 1, "IETH");
  }
  return text + "TH";
}

std::string ordinalSuffix(std::int64_t number) {
  const std::int64_t rest = number % 100;
  if (rest >= 11 && rest <= 13) {
    return "TH";
  }
  switch (rest % 10) {
    case 1:
      return "ST";
    case 2:
      return "ND";
    case 3:
      return "RD";
    default:
      return "TH";
  }
}

std::string spelledYear(int year) {
  if (year < 1000 || year % 1000 < 10) {
    return spelledNumber(year);
  }
  std::string text = spelledNumber(year / 100);
  appendWord(text, year % 100 == 0 ? "HUNDRED" : belowHundred(year % 100));
  return text;
}

}  // namespace oracle_sql
