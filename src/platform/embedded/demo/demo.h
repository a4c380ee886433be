// The demo repository: databases of releases 9, 10 and 11 through some days of work.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>

#include "platform/embedded/writing/repository_error.h"

namespace kestrelix::embedded::demo {

struct DemoOptions {
  int snapshots = 60;  // of each instance, at least 2
  std::uint64_t seed = 1;
  Existing existing = Existing::Replace;
};

/// Writes the repository, which takes its name when it is whole. The same options give the same bytes.
/// `progress` is told the snapshots written and those to write, and called on while the file is finished;
/// what it throws passes, and nothing is left behind. Throws RepositoryError, and std::invalid_argument for
/// fewer than two snapshots or more than a hundred thousand.
void makeDemo(const std::filesystem::path& path, const DemoOptions& options,
              const std::function<void(std::int64_t, std::int64_t)>& progress = {});

}  // namespace kestrelix::embedded::demo
