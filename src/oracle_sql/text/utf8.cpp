#include "oracle_sql/text/utf8.h"

#include <algorithm>
#include <cstring>

namespace oracle_sql::utf8 {
namespace {

bool isContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

struct Range {
  std::uint32_t first;
  std::uint32_t last;
};

constexpr Range kWide[] = {{0x1100, 0x115F}, {0x2E80, 0x303E},   {0x3041, 0x4DBF},  {0x4E00, 0xA4CF},
                           {0xAC00, 0xD7A3}, {0xF900, 0xFAFF},   {0xFE30, 0xFE6F},  {0xFF00, 0xFF60},
                           {0xFFE0, 0xFFE6}, {0x1F300, 0x1FAFF}, {0x20000, 0x3FFFD}};

/// Letters whose small form lies a fixed distance above the capital one.
struct Shift {
  std::uint32_t firstCapital;
  std::uint32_t lastCapital;
  std::uint32_t distance;
};

constexpr Shift kShifts[] = {
    {'A', 'Z', 32},     {0xC0, 0xD6, 32},   {0xD8, 0xDE, 32},     {0x386, 0x386, 38},   {0x388, 0x38A, 37},
    {0x38C, 0x38C, 64}, {0x38E, 0x38F, 63}, {0x391, 0x3A1, 32},   {0x3A3, 0x3AB, 32},   {0x410, 0x42F, 32},
    {0x400, 0x40F, 80}, {0x531, 0x556, 48}, {0x2160, 0x216F, 16}, {0x24B6, 0x24CF, 26}, {0xFF21, 0xFF3A, 32}};

/// Blocks in which a capital and its small letter follow each other: the capital is even, or odd.
bool evenPair(std::uint32_t c) {
  return (c >= 0x100 && c <= 0x137 && c != 0x130 && c != 0x131) || (c >= 0x14A && c <= 0x177) ||
         (c >= 0x1F8 && c <= 0x21F) || (c >= 0x460 && c <= 0x481) || (c >= 0x48A && c <= 0x4BF) ||
         (c >= 0x4D0 && c <= 0x4F9) || (c >= 0x1E00 && c <= 0x1E95) || (c >= 0x1EA0 && c <= 0x1EF9);
}

bool oddPair(std::uint32_t c) {
  return (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E) || (c >= 0x1CD && c <= 0x1DC) ||
         (c >= 0x4C1 && c <= 0x4CE);
}

}  // namespace

std::size_t sizeAt(std::string_view text, std::size_t at) {
  const auto lead = static_cast<unsigned char>(text[at]);
  std::size_t size = lead < 0xC2 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 1;
  if (at + size > text.size()) return 1;
  for (std::size_t i = 1; i < size; ++i) {
    if (!isContinuation(text[at + i])) return 1;
  }
  return size;
}

std::size_t before(std::string_view text, std::size_t at) {
  for (std::size_t back = 2; back <= 4 && back <= at; ++back) {
    if (!isContinuation(text[at - back + 1])) break;
    if (sizeAt(text, at - back) == back) return at - back;
  }
  return at - 1;
}

bool isAscii(std::string_view text) {
  std::size_t at = 0;
  for (; at + 8 <= text.size(); at += 8) {
    std::uint64_t eight = 0;
    std::memcpy(&eight, text.data() + at, 8);
    if ((eight & 0x8080808080808080U) != 0) return false;
  }
  return std::all_of(text.begin() + static_cast<std::ptrdiff_t>(at), text.end(),
                     [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::size_t length(std::string_view text) {
  if (isAscii(text)) return text.size();
  std::size_t count = 0;
  for (std::size_t at = 0; at < text.size(); at += sizeAt(text, at)) ++count;
  return count;
}

std::size_t offset(std::string_view text, std::size_t character) {
  std::size_t at = 0;
  for (; character > 0 && at < text.size(); --character) at += sizeAt(text, at);
  return at;
}

std::uint32_t decode(std::string_view character) {
  const auto lead = static_cast<unsigned char>(character[0]);
  if (character.size() == 1) return lead;
  std::uint32_t code = lead & (0xFFU >> (character.size() + 1));
  for (std::size_t i = 1; i < character.size(); ++i)
    code = code << 6 | (static_cast<unsigned char>(character[i]) & 0x3FU);
  return code;
}

void append(std::string& text, std::uint32_t code) {
  if (code < 0x80) {
    text += static_cast<char>(code);
    return;
  }
  const int more = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
  static constexpr std::uint32_t kLead[] = {0, 0xC0, 0xE0, 0xF0};
  text += static_cast<char>(kLead[more] | code >> (6 * more));
  for (int i = more - 1; i >= 0; --i) text += static_cast<char>(0x80U | (code >> (6 * i) & 0x3FU));
}

int displayWidth(std::uint32_t code) {
  const bool wide = std::any_of(std::begin(kWide), std::end(kWide),
                                [code](const Range& r) { return code >= r.first && code <= r.last; });
  return wide ? 2 : 1;
}

std::uint32_t upper(std::uint32_t c) {
  for (const Shift& shift : kShifts) {
    if (c >= shift.firstCapital + shift.distance && c <= shift.lastCapital + shift.distance)
      return c - shift.distance;
  }
  if (c == 0xFF) return 0x178;
  if (c == 0x3C2) {  // the sigma that ends a word
    return 0x3A3;
  }
  if ((evenPair(c) && c % 2 == 1) || (oddPair(c) && c % 2 == 0)) return c - 1;
  return c;
}

std::uint32_t lower(std::uint32_t c) {
  for (const Shift& shift : kShifts) {
    if (c >= shift.firstCapital && c <= shift.lastCapital) return c + shift.distance;
  }
  if (c == 0x178) return 0xFF;
  if ((evenPair(c) && c % 2 == 0) || (oddPair(c) && c % 2 == 1)) return c + 1;
  return c;
}

bool isAlphanumeric(std::uint32_t c) {
  if (c < 0x80) return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
  return c >= 0xC0 && c != 0xD7 && c != 0xF7 && !(c >= 0x2000 && c <= 0x2BFF) &&
         !(c >= 0x3000 && c <= 0x3020);
}

}  // namespace oracle_sql::utf8
