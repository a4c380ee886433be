#pragma once

#include <cstddef>
#include <string_view>

namespace kestrelix {

/// Bytes that a UTF-8 text takes in code page 932: ASCII and half-width katakana 1, other Japanese 2; a
/// character that the code page lacks counts 1, as the one replacement character that would stand for it. A
/// byte that is no UTF-8 counts 1.
std::size_t codePageLength(std::string_view utf8);

/// Columns that the text takes in a fixed-pitch Japanese font: the same count.
inline std::size_t displayColumns(std::string_view utf8) { return codePageLength(utf8); }

/// Characters (code points) of a UTF-8 text.
std::size_t characterCount(std::string_view utf8);

}  // namespace kestrelix
