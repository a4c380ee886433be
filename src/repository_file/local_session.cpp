#include "repository_file/local_session.h"

#include "repository_file/local_database.h"

namespace kestrelix::repository_file {

std::unique_ptr<Database> LocalFileSession::OpenDatabase(const std::string& /*name*/,
                                                         const std::string& connect, long /*options*/) {
  auto database = std::make_unique<LocalDatabase>(file_);
  database->logOn(splitConnect(connect));
  return database;
}

std::unique_ptr<Session> localSession(const std::filesystem::path& file) {
  return std::make_unique<LocalFileSession>(file);
}

}  // namespace kestrelix::repository_file
