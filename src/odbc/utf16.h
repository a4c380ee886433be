#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrelix::odbc {

/// UTF-8 as the two-byte units that ODBC's wide texts are made of, with a 0 at the end. A malformed byte
/// becomes the replacement character.
std::vector<unsigned short> toUtf16(std::string_view utf8);
/// The other way round; a lone surrogate becomes the replacement character.
std::string toUtf8(std::span<const unsigned short> utf16);

}  // namespace kestrelix::odbc
