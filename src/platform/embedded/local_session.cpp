#include "platform/embedded/local_session.h"

#include "platform/embedded/local_database.h"

namespace kestrelix::embedded {
namespace {

std::unique_ptr<Database> open(const std::filesystem::path& file, const std::string& connect) {
  auto database = std::make_unique<LocalDatabase>(file);
  database->logOn(splitConnect(connect));
  return database;
}

}  // namespace

// A name that leads out of the folder is no name of a database.
std::filesystem::path LocalSession::fileOf(const std::string& name) const {
  if (name.empty() || name.find_first_of(std::string_view("/\0", 2)) != std::string::npos) return {};
  return folder_ / (name + ".sqlite");
}

bool LocalSession::has(const std::string& name) const {
  const auto file = fileOf(name);
  std::error_code error;
  return !file.empty() && std::filesystem::exists(file, error);
}

std::unique_ptr<Database> LocalSession::OpenDatabase(const std::string& name, const std::string& connect,
                                                     long /*options*/) {
  if (!has(name))
    throw DatabaseError("08001", 12154, "ORA-12154: could not resolve the connect identifier '" + name + "'");
  return open(fileOf(name), connect);
}

std::unique_ptr<Database> LocalFileSession::OpenDatabase(const std::string& /*name*/,
                                                         const std::string& connect, long /*options*/) {
  return open(file_, connect);
}

std::unique_ptr<Session> localSession(const std::filesystem::path& file) {
  return std::make_unique<LocalFileSession>(file);
}

}  // namespace kestrelix::embedded
