#pragma once

#include <unistd.h>

#include <filesystem>
#include <stdexcept>
#include <string>

namespace kestrelix::testing_support {

/// A folder of its own that goes with the object.
class TestFolder {
 public:
  TestFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "kestrelix-test-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no folder for the test");
    path_ = pattern;
  }
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;
  ~TestFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  std::filesystem::path operator/(const std::string& name) const { return path_ / name; }
  operator const std::filesystem::path&() const { return path_; }
  const std::filesystem::path& path() const { return path_; }
  std::string string() const { return path_.string(); }
  /// The files and folders in it.
  std::ptrdiff_t files() const { return std::distance(std::filesystem::directory_iterator(path_), {}); }

 private:
  std::filesystem::path path_;
};

}  // namespace kestrelix::testing_support
