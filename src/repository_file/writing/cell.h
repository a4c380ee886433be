// One value on its way into a repository file, in the form that the file stores.
#pragma once

#include <array>
#include <concepts>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

#include "statspack/release.h"

namespace kestrelix::repository_file {

/// A text that its column's type does not take; what() says why, without the value.
class BadValue : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// NULL, a whole number (also a DATE, in seconds since 1970), a text, or bytes (a RAW, or a NUMBER that is
/// not whole). Texts and raw bytes are looked at and not kept: they must outlive the insert.
class Cell {
 public:
  enum class Kind : std::uint8_t { Null, Integer, Text, Raw, Number };

  Cell() = default;
  Cell(std::integral auto value) : kind_(Kind::Integer), integer_(static_cast<std::int64_t>(value)) {}
  /// The empty text is NULL.
  Cell(std::string_view text) : kind_(text.empty() ? Kind::Null : Kind::Text), view_(text) {}
  Cell(const std::string& text) : Cell(std::string_view(text)) {}
  Cell(const char* text) : Cell(std::string_view(text)) {}

  /// `unscaled` / 10^`scale`, exactly; `scale` from 0 to 18.
  static Cell decimal(std::int64_t unscaled, int scale);
  static Cell raw(std::string_view bytes);
  /// A field of a file: NUMBER in plain or exponent form, DATE as YYYY-MM-DD HH24:MI:SS (the time may be
  /// missing), RAW in hex digits, text as it is; the empty field is NULL. `scratch` keeps what the cell looks
  /// at. Throws BadValue.
  static Cell fromText(statspack::Type type, std::string_view text, std::string& scratch);

  Kind kind() const { return kind_; }
  std::int64_t integer() const { return integer_; }
  std::string_view view() const {
    return kind_ == Kind::Number ? std::string_view(number_.data(), numberSize_) : view_;
  }

 private:
  static Cell numberFromText(std::string_view text);

  Kind kind_ = Kind::Null;
  std::uint8_t numberSize_ = 0;
  std::array<char, 21> number_{};
  std::int64_t integer_ = 0;
  std::string_view view_;
};

/// Seconds from 1970-01-01 00:00:00 to a wall clock time written as YYYY-MM-DD HH24:MI:SS or YYYY-MM-DD.
/// Throws BadValue for any other form and for days and times that do not exist.
std::int64_t secondsOfDate(std::string_view text);

}  // namespace kestrelix::repository_file
