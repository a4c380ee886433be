#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

namespace oracle_sql {

// The match parameters of the REGEXP_ functions.
struct RegexOptions {
  bool ignoreCase = false;     // i
  bool dotTakesLines = false;  // n: . also matches a line end
  bool manyLines = false;      // m: ^ and $ also match at line ends
  bool extended = false;       // x: blanks of the pattern do not count
};

// Characters between brackets, of a class, or all others.
struct RegexSet {
  struct Range {
    std::uint32_t first;
    std::uint32_t last;
  };
  std::vector<Range> ranges;
  std::vector<bool (*)(std::uint32_t)> classes;
  bool negated = false;

  bool contains(std::uint32_t character, bool ignoreCase) const;
};

enum class RegexOp : std::uint8_t {
  Character,      // a: the code point
  Any,            // .
  Set,            // a: which of the sets
  TextBegin,      // \A, and ^ without m
  TextEnd,        // \z, and $ without m
  LastLineEnd,    // \Z: also before a line end that ends the text
  LineBegin,      // ^ with m
  LineEnd,        // $ with m
  BackReference,  // a: the group
  Save,           // a: the slot that takes the position
  Progress,       // goes on at b if the position has not left that of slot a
  Split,          // goes on at a, later at b
  Jump,           // a
  Match
};

struct RegexInstruction {
  RegexOp op;
  std::uint32_t a = 0;
  std::uint32_t b = 0;
};

// A regular expression of the language: POSIX's extended ones with back references and Perl's \d \w \s \A \Z
// \z and lazy repetition. Of alternatives the first that leads to a match counts.
class Regex {
 public:
  static constexpr std::size_t kGroups = 10;  // the whole match and \1 to \9
  static constexpr std::size_t kUnset = static_cast<std::size_t>(-1);

  // In bytes of the text; kUnset where a group took no part.
  struct Span {
    std::size_t begin = kUnset;
    std::size_t end = kUnset;
  };
  using Groups = std::array<Span, kGroups>;

  Regex() = default;
  // ORA-12723 to ORA-12733 for a pattern that is none.
  Regex(std::string_view pattern, RegexOptions options);

  // The first match that begins at the byte `from` or behind it. ORA-12723 for one that takes too long.
  bool search(std::string_view text, std::size_t from, Groups& groups) const;

 private:
  std::vector<RegexInstruction> program_;
  std::vector<RegexSet> sets_;
  std::size_t slots_ = 0;
  RegexOptions options_;
};

}  // namespace oracle_sql
