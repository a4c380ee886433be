// Small repository files for tests.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "conformance/back_end.h"

namespace kestrelix::embedded {

/// A folder of its own that goes with the object.
class TestFolder {
 public:
  TestFolder();
  TestFolder(const TestFolder&) = delete;
  ~TestFolder();

  std::filesystem::path operator/(const std::string& name) const { return path_ / name; }
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

/// Writes a repository with these tables; the account is PERFSTAT / perfstat.
void writeRepository(const std::filesystem::path& file, const std::vector<conformance::TestTable>& tables);

}  // namespace kestrelix::embedded
