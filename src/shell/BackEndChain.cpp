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

BackEnd localRepositories(const std::filesystem::path& programFolder,
                          std::function<std::unique_ptr<Session>(const std::filesystem::path& file)> open) {
  return [folder = programFolder / "repository", open = std::move(open)](const std::string& name) {
    const bool plain = !name.empty() && name.front() != '.' &&
                       name.find_first_of(std::string_view("/\0", 2)) == std::string::npos;
    const std::filesystem::path file = folder / (name + ".sqlite");
    std::error_code unreadable;
    if (!plain || !std::filesystem::is_regular_file(file, unreadable)) return std::unique_ptr<Session>();
    return open(file);
  };
}

}  // namespace kestrelix
