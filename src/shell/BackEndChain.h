#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/database.h"

namespace kestrelix {

/// Gives a session of the back end that `name` leads to, or null where the name isn't one of its own.
using BackEnd = std::function<std::unique_ptr<Session>(const std::string& name)>;

/// A session that finds out by the TNS name which back end is meant: the first that knows the name opens it.
/// A name that none knows fails as one that a server's client can't resolve.
class BackEndChain : public Session {
 public:
  explicit BackEndChain(std::vector<BackEnd> backEnds) : backEnds_(std::move(backEnds)) {}

  std::unique_ptr<Database> OpenDatabase(const std::string& name, const std::string& connect,
                                         long options) override;

 private:
  std::vector<BackEnd> backEnds_;
  std::unique_ptr<Session> opened_;
};

/// The repository file of that name: repository/NAME.sqlite in the program's folder. Empty if it isn't there,
/// and for a name that could lead out of that folder.
std::filesystem::path localRepository(const std::filesystem::path& programFolder, const std::string& name);
/// The repository files of a program, by name.
BackEnd localRepositories(const std::filesystem::path& programFolder,
                          std::function<std::unique_ptr<Session>(const std::filesystem::path& file)> open);

}  // namespace kestrelix
