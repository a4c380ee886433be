// Letter case of ASCII text, the same in every locale.
#pragma once

#include <string>
#include <string_view>

namespace kestrelix {

constexpr char asciiUpper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

constexpr char asciiLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

inline std::string asciiUpper(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) c = asciiUpper(c);
  return upper;
}

inline std::string asciiLower(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) c = asciiLower(c);
  return lower;
}

}  // namespace kestrelix
