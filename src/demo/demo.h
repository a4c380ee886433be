// The demo repository: databases of releases 9, 10 and 11 through some days of work.
#pragma once

#include <cstdint>
#include <filesystem>

#include "platform/progress.h"
#include "repository_file/writing/repository_error.h"

namespace kestrelix::demo {

struct DemoOptions {
  int snapshots = 60;  // of each instance, at least 2
  std::uint64_t seed = 1;
  repository_file::Existing existing = repository_file::Existing::Replace;
};

/// Writes the repository, which takes its name when it is whole. The same options give the same bytes.
/// `progress` is told the snapshots written and those to write, and called on while the file is finished.
/// Throws RepositoryError, Cancelled, and std::invalid_argument for fewer than two snapshots or more than a
/// hundred thousand; nothing is left behind then.
void makeDemo(const std::filesystem::path& path, const DemoOptions& options,
              Progress& progress = Progress::none());

}  // namespace kestrelix::demo
