// What the programs have in common: where they lie, and which back end the name of a database leads to.
#pragma once

#include <filesystem>
#include <memory>

#include "odbc/odbc_session.h"
#include "repository_file/local_session.h"
#include "shell/BackEndChain.h"

namespace kestrelix {

/// The folder of the program that runs.
inline std::filesystem::path programFolder() {
  return std::filesystem::read_symlink("/proc/self/exe").parent_path();
}

/// The databases that ODBC leads to.
inline BackEnd odbcDatabases() {
  return [](const std::string& name) -> std::unique_ptr<Session> {
    if (odbc::leadsTo(name).empty()) return nullptr;
    return std::make_unique<odbc::OdbcSession>();
  };
}

/// A local repository of the name comes first, then what ODBC knows.
inline std::unique_ptr<Session> anySession(const std::filesystem::path& folder) {
  return std::make_unique<BackEndChain>(
      std::vector<BackEnd>{localRepositories(folder, repository_file::localSession), odbcDatabases()});
}

}  // namespace kestrelix
