#include "platform/code_page.h"

#include <iconv.h>

#include <bitset>
#include <cstdint>
#include <string>

namespace kestrelix {
namespace {

constexpr char32_t kPlaneSize = 0x10000;

/// Which characters of the basic plane take two bytes in code page 932.
class DoubleByteCharacters {
 public:
  DoubleByteCharacters() {
    const iconv_t converter = iconv_open("CP932", "UTF-16LE");
    if (converter == reinterpret_cast<iconv_t>(-1)) return;
    for (char32_t c = 0x80; c < kPlaneSize; ++c) {
      char in[2] = {static_cast<char>(c & 0xFF), static_cast<char>(c >> 8)};
      char out[8];
      char* source = in;
      char* target = out;
      std::size_t left = sizeof in;
      std::size_t room = sizeof out;
      if (iconv(converter, &source, &left, &target, &room) != static_cast<std::size_t>(-1))
        doubled_[c] = sizeof out - room == 2;
      else
        iconv(converter, nullptr, nullptr, nullptr, nullptr);
    }
    iconv_close(converter);
  }

  bool contains(char32_t c) const { return c < kPlaneSize && doubled_[c]; }

 private:
  std::bitset<kPlaneSize> doubled_;
};

/// The code point at `at`, which moves behind it. A malformed byte stands for itself.
char32_t nextCodePoint(std::string_view text, std::size_t& at) {
  const auto lead = static_cast<std::uint8_t>(text[at++]);
  const int extra = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
  if (extra == 0 || at + static_cast<std::size_t>(extra) > text.size()) return lead;
  char32_t c = lead & (0x3Fu >> extra);
  for (int i = 0; i < extra; ++i) {
    const auto next = static_cast<std::uint8_t>(text[at + static_cast<std::size_t>(i)]);
    if ((next & 0xC0) != 0x80) return lead;
    c = (c << 6) | (next & 0x3Fu);
  }
  at += static_cast<std::size_t>(extra);
  return c;
}

}  // namespace

std::size_t codePageLength(std::string_view utf8) {
  std::size_t bytes = 0;
  for (std::size_t at = 0; at < utf8.size();) {
    if (static_cast<unsigned char>(utf8[at]) < 0x80) {
      ++at;
      ++bytes;
      continue;
    }
    static const DoubleByteCharacters doubled;
    bytes += doubled.contains(nextCodePoint(utf8, at)) ? 2 : 1;
  }
  return bytes;
}

std::size_t characterCount(std::string_view utf8) {
  std::size_t characters = 0;
  for (std::size_t at = 0; at < utf8.size(); ++characters) nextCodePoint(utf8, at);
  return characters;
}

}  // namespace kestrelix
