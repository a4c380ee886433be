// Connections to local repository files.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "platform/database.h"

namespace kestrelix::repository_file {

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

}  // namespace kestrelix::repository_file
