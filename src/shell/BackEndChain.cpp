#include "shell/BackEndChain.h"

namespace kestrelix {

std::unique_ptr<Database> BackEndChain::OpenDatabase(const std::string& name, const std::string& connect,
                                                     long options) {
  for (const BackEnd& backEnd : backEnds_) {
    std::unique_ptr<Session> session = backEnd(name);
    if (!session) continue;
    opened_ = std::move(session);
    return opened_->OpenDatabase(name, connect, options);
  }
  throw DatabaseError("08001", 12154, "could not resolve the connect identifier '" + name + "'");
}

std::filesystem::path localRepository(const std::filesystem::path& programFolder, const std::string& name) {
  if (name.empty() || name.front() == '.' ||
      name.find_first_of(std::string_view("/\0", 2)) != std::string::npos)
    return {};
  std::filesystem::path file = programFolder / "repository" / (name + ".sqlite");
  std::error_code unreadable;
  return std::filesystem::is_regular_file(file, unreadable) ? file : std::filesystem::path();
}

BackEnd localRepositories(const std::filesystem::path& programFolder,
                          std::function<std::unique_ptr<Session>(const std::filesystem::path& file)> open) {
  return [programFolder, open = std::move(open)](const std::string& name) {
    const auto file = localRepository(programFolder, name);
    return file.empty() ? nullptr : open(file);
  };
}

}  // namespace kestrelix
