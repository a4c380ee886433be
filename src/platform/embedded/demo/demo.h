// The demo repository: databases of releases 9, 10 and 11 through some days of work.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>

namespace kestrelix::embedded::demo {

struct DemoOptions {
  int snapshots = 60;  // of each instance, at least 2
  std::uint64_t seed = 1;
};

/// Writes the repository, over any file of that name when it is whole. The same options give the same bytes.
/// `progress` is told the snapshots written and those to write. Throws RepositoryError, and
/// std::invalid_argument for fewer than two snapshots or more than a hundred thousand.
void makeDemo(const std::filesystem::path& path, const DemoOptions& options,
              const std::function<void(std::int64_t, std::int64_t)>& progress = {});

}  // namespace kestrelix::embedded::demo
