// What a figure is: so that its alignment, a comparison of two intervals and its explanation need not guess.
#pragma once

#include <string_view>

namespace kestrelix {

enum class Kind {
  Key,      ///< tells which row it is: an event, a segment, a hash value
  Text,     ///< says something of the row: a module, a comment
  Count,    ///< what came about in the interval: a number of times, or time and amounts added up
  Rate,     ///< a count a second
  Ratio,    ///< a count for each of another: a transaction, an execution, a sort
  Share,    ///< a part of a whole, in percent
  Average,  ///< time or size for each event
  Level,    ///< a state at a snapshot, or a setting: sessions, a pool's size
  Time,     ///< a point in time
};

/// The units that figures come in. An empty unit is a plain number of things.
namespace unit {
inline constexpr std::string_view none = "";
inline constexpr std::string_view number = "#";  ///< of a key: it is a number itself
inline constexpr std::string_view percent = "%";
inline constexpr std::string_view thousands = "thousands";
inline constexpr std::string_view microseconds = "us";
inline constexpr std::string_view milliseconds = "ms";
inline constexpr std::string_view centiseconds = "cs";
inline constexpr std::string_view seconds = "s";
inline constexpr std::string_view minutes = "min";
inline constexpr std::string_view hours = "h";
inline constexpr std::string_view bytes = "bytes";
inline constexpr std::string_view kilobytes = "KB";
inline constexpr std::string_view megabytes = "MB";
inline constexpr std::string_view blocks = "blocks";
}  // namespace unit

struct Measure {
  Kind kind = Kind::Text;
  std::string_view unit = unit::none;

  /// Figures stand right, so that sizes can be compared down a column; all else left.
  bool isFigure() const {
    return (kind != Kind::Key && kind != Kind::Text && kind != Kind::Time) || unit == unit::number;
  }
  bool operator==(const Measure&) const = default;
};

}  // namespace kestrelix
