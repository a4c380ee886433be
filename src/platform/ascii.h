// Letter case of ASCII text, the same in every locale.
#pragma once

#include <string>
#include <string_view>

namespace kestrelix {

constexpr char asciiUpper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

inline std::string asciiUpper(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) c = asciiUpper(c);
  return upper;
}

}  // namespace kestrelix
