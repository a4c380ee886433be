// A month of hourly snapshots to measure on.
#pragma once

#include <filesystem>

namespace kestrelix::bench {

inline constexpr int kDbid = 3121750462 % 2000000000;
inline constexpr int kInstance = 1;
inline constexpr int kSnapshots = 701;
/// The last snapshots, which have statements and parameters.
inline constexpr int kFullSnapshots = 100;

/// Two files of the same rows that go with the object: a repository, and a copy for SQL written by hand,
/// where every number is SQLite's own.
class BenchRepository {
 public:
  BenchRepository();
  BenchRepository(const BenchRepository&) = delete;
  ~BenchRepository();

  std::filesystem::path repository() const { return folder_ / "repository.sqlite"; }
  std::filesystem::path native() const { return folder_ / "native.sqlite"; }

 private:
  std::filesystem::path folder_;
};

}  // namespace kestrelix::bench
