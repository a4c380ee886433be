#pragma once

#include <filesystem>
#include <string>

namespace kestrelix::bench {

/// What the repository of one instance holds.
struct Extent {
  int snapshots = 1000;   ///< an hour apart
  int statements = 2000;  ///< captured by each snapshot
  std::string version = "11";
};

/// Writes the tables that the SQL rankings read. The counters of every statement grow by amounts that depend
/// on its number alone; one in fifty is reloaded now and then.
void writeRankedRepository(const std::filesystem::path& file, const Extent& extent);

}  // namespace kestrelix::bench
