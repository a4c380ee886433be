#pragma once

#include <string_view>

namespace kestrelix {

/// A set of Oracle major versions.
using Versions = unsigned;
inline constexpr Versions V9 = 1;
inline constexpr Versions V10 = 2;
inline constexpr Versions V11 = 4;
inline constexpr Versions V10_11 = V10 | V11;
inline constexpr Versions V9_10 = V9 | V10;
inline constexpr Versions kAllVersions = V9 | V10 | V11;

/// The version of "9", "10" or "11"; the empty set for any other text.
constexpr Versions versionOf(std::string_view text) {
  return text == "9" ? V9 : text == "10" ? V10 : text == "11" ? V11 : 0;
}

}  // namespace kestrelix
