// Reproducible chance: the same seed gives the same numbers on every machine, which the standard library's
// distributions do not promise.
#pragma once

#include <cstdint>
#include <string_view>

namespace kestrelix::demo {

/// The splitmix64 generator with what whole numbers need.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}

  std::uint64_t next() {
    state_ += 0x9E3779B97F4A7C15u;
    std::uint64_t z = state_;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
    return z ^ (z >> 31);
  }
  /// From `low` to `high`, both included; `low` where it is not below `high`.
  std::int64_t between(std::int64_t low, std::int64_t high) {
    if (low >= high) return low;
    return low + static_cast<std::int64_t>(next() % static_cast<std::uint64_t>(high - low + 1));
  }
  /// `value` give or take `permille` thousandths of it; never below 0 for a value that is not.
  std::int64_t around(std::int64_t value, int permille) {
    const std::int64_t spread = value / 1000 * permille + value % 1000 * permille / 1000;
    return between(value - spread, value + spread);
  }
  bool chance(int permille) { return between(1, 1000) <= permille; }
  /// A generator of its own, so that one topic's appetite for numbers leaves the others alone.
  Random fork() { return Random(next()); }

 private:
  std::uint64_t state_;
};

/// A 64-bit hash of a text (FNV-1a, mixed once more): identifiers that look like a server's.
constexpr std::uint64_t textHash(std::string_view text) {
  std::uint64_t hash = 0xCBF29CE484222325u;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3u;
  hash = (hash ^ (hash >> 33)) * 0xFF51AFD7ED558CCDu;
  return hash ^ (hash >> 29);
}

/// `value` * `numerator` / `denominator` without overflow on the way for factors below a million.
constexpr std::int64_t scaled(std::int64_t value, std::int64_t numerator, std::int64_t denominator) {
  return value / denominator * numerator + value % denominator * numerator / denominator;
}

}  // namespace kestrelix::demo
