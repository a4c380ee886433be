// Text in UTF-8, character by character.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace oracle_sql::utf8 {

// A stray byte counts as a character of its own, so that every text can be walked.

/// Bytes of the character that begins at `at`, which is inside the text.
std::size_t sizeAt(std::string_view text, std::size_t at);
/// Where the character before `at` begins; `at` is above 0.
std::size_t before(std::string_view text, std::size_t at);
bool isAscii(std::string_view text);
std::size_t length(std::string_view text);
/// The byte where the character with that index from 0 begins; the size of the text behind its end.
std::size_t offset(std::string_view text, std::size_t character);

std::uint32_t decode(std::string_view character);
void append(std::string& text, std::uint32_t codePoint);

/// Columns on a screen: 2 for the wide characters of East Asia, else 1.
int displayWidth(std::uint32_t codePoint);

std::uint32_t upper(std::uint32_t codePoint);
std::uint32_t lower(std::uint32_t codePoint);
bool isAlphanumeric(std::uint32_t codePoint);

}  // namespace oracle_sql::utf8
