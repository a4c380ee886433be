// The file that a repository is written into until it is whole.
#pragma once

#include <filesystem>
#include <string>

#include "repository_file/writing/repository_error.h"

namespace kestrelix::repository_file {

/// "FILE: cannot be written: WHY".
std::string unwritable(const std::filesystem::path& file, const std::string& why);

/// "TARGET.unfinished-PID": where this process writes the file that becomes `target`.
std::filesystem::path unfinishedName(const std::filesystem::path& target);

/// A new file beside its target, under its unfinishedName(). It is removed with this object unless it has
/// taken its target's name by then. Such files that a killed process has left for the same target are cleared
/// away first. Failures are RepositoryError.
class UnfinishedFile {
 public:
  /// Makes the empty file.
  explicit UnfinishedFile(std::filesystem::path target);
  UnfinishedFile(UnfinishedFile&&) = delete;
  ~UnfinishedFile();

  const std::filesystem::path& target() const { return target_; }
  const std::filesystem::path& path() const { return path_; }

  /// Brings the file to disk and gives it its target's name. With Existing::Keep a file that has the name
  /// stays, and that is a failure.
  void takeName(Existing existing);

 private:
  std::filesystem::path target_;
  std::filesystem::path path_;
};

}  // namespace kestrelix::repository_file
