#include "odbc/utf16.h"

#include <cstdint>

namespace kestrelix::odbc {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

/// The code point at `at`, which moves behind it.
char32_t decode(std::string_view text, std::size_t& at) {
  const auto lead = static_cast<std::uint8_t>(text[at++]);
  if (lead < 0x80) return lead;
  const std::size_t extra = lead >= 0xF0 && lead < 0xF8 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC2 ? 1 : 0;
  if (extra == 0 || lead >= 0xF8 || at + extra > text.size()) return kReplacement;
  char32_t c = lead & (0x3Fu >> extra);
  for (std::size_t i = 0; i < extra; ++i) {
    const auto next = static_cast<std::uint8_t>(text[at + i]);
    if ((next & 0xC0) != 0x80) return kReplacement;
    c = (c << 6) | (next & 0x3Fu);
  }
  at += extra;
  return c > 0x10FFFF || (c >= 0xD800 && c < 0xE000) ? kReplacement : c;
}

void encode(char32_t c, std::string& text) {
  if (c < 0x80) {
    text += static_cast<char>(c);
  } else if (c < 0x800) {
    text += static_cast<char>(0xC0 | (c >> 6));
    text += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    text += static_cast<char>(0xE0 | (c >> 12));
    text += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    text += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    text += static_cast<char>(0xF0 | (c >> 18));
    text += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    text += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    text += static_cast<char>(0x80 | (c & 0x3F));
  }
}

}  // namespace

std::vector<unsigned short> toUtf16(std::string_view utf8) {
  std::vector<unsigned short> units;
  units.reserve(utf8.size() + 1);
  for (std::size_t at = 0; at < utf8.size();) {
    const char32_t c = decode(utf8, at);
    if (c < 0x10000) {
      units.push_back(static_cast<unsigned short>(c));
    } else {
      units.push_back(static_cast<unsigned short>(0xD800 + ((c - 0x10000) >> 10)));
      units.push_back(static_cast<unsigned short>(0xDC00 + ((c - 0x10000) & 0x3FF)));
    }
  }
  units.push_back(0);
  return units;
}

std::string toUtf8(std::span<const unsigned short> utf16) {
  std::string text;
  text.reserve(utf16.size());
  for (std::size_t i = 0; i < utf16.size(); ++i) {
    char32_t c = utf16[i];
    if (c >= 0xD800 && c < 0xDC00 && i + 1 < utf16.size() && utf16[i + 1] >= 0xDC00 && utf16[i + 1] < 0xE000)
      c = 0x10000 + ((c - 0xD800) << 10) + (utf16[++i] - 0xDC00u);
    else if (c >= 0xD800 && c < 0xE000)
      c = kReplacement;
    encode(c, text);
  }
  return text;
}

}  // namespace kestrelix::odbc
