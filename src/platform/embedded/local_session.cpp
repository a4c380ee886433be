#include "platform/embedded/local_session.h"

#include "platform/embedded/local_database.h"

namespace kestrelix::embedded {

std::unique_ptr<Database> LocalFileSession::OpenDatabase(const std::string& /*name*/,
                                                         const std::string& connect, long /*options*/) {
  auto database = std::make_unique<LocalDatabase>(file_);
  database->logOn(splitConnect(connect));
  return database;
}

std::unique_ptr<Session> localSession(const std::filesystem::path& file) {
  return std::make_unique<LocalFileSession>(file);
}

}  // namespace kestrelix::embedded
