// Connections to local repository files, by file or by name.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "platform/database.h"

namespace kestrelix::embedded {

/// Opens the repositories of a folder: the database NAME is the file NAME.sqlite in it.
class LocalSession final : public Session {
 public:
  explicit LocalSession(std::filesystem::path folder) : folder_(std::move(folder)) {}

  /// Whether the folder has a repository of that name.
  bool has(const std::string& name) const;
  std::unique_ptr<Database> OpenDatabase(const std::string& name, const std::string& connect,
                                         long options) override;

 private:
  std::filesystem::path fileOf(const std::string& name) const;

  std::filesystem::path folder_;
};

/// Opens one repository file, whatever name is asked for.
class LocalFileSession final : public Session {
 public:
  explicit LocalFileSession(std::filesystem::path file) : file_(std::move(file)) {}

  std::unique_ptr<Database> OpenDatabase(const std::string& name, const std::string& connect,
                                         long options) override;

 private:
  std::filesystem::path file_;
};

/// A session over the one file.
std::unique_ptr<Session> localSession(const std::filesystem::path& file);

}  // namespace kestrelix::embedded
