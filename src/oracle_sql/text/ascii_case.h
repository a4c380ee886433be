// The letters and digits of ASCII, whatever the locale.
#pragma once

#include <string>
#include <string_view>

namespace oracle_sql {

/// Case of ASCII letters only, whatever the locale; other bytes stay.
constexpr char asciiUpper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }
constexpr char asciiLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
constexpr bool isAsciiDigit(char c) { return c >= '0' && c <= '9'; }
constexpr bool isAsciiLetter(char c) { return asciiUpper(c) >= 'A' && asciiUpper(c) <= 'Z'; }

inline std::string asciiUpper(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) c = asciiUpper(c);
  return upper;
}

/// Whether `text` begins with `prefix`, which is upper case, in any case.
constexpr bool startsWithAnyCase(std::string_view text, std::string_view prefix) {
  if (text.size() < prefix.size()) return false;
  for (std::size_t i = 0; i < prefix.size(); ++i) {
    if (asciiUpper(text[i]) != prefix[i]) return false;
  }
  return true;
}

}  // namespace oracle_sql
