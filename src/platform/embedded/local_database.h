// The embedded back end: a repository in one local file, behind the interface of platform/database.h.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "platform/database.h"
#include "platform/embedded/result_rows.h"

namespace kestrelix::embedded {

/// An open repository file. One thread.
class LocalDatabase final : public Database {
 public:
  /// Opens the file without asking for its account. Throws DatabaseError.
  explicit LocalDatabase(const std::filesystem::path& path);
  ~LocalDatabase() override;

  std::unique_ptr<Dynaset> DbCreateDynaset(const std::string& sql, long options) override;

  /// The same with fields by their place.
  std::unique_ptr<ResultRows> run(const std::string& sql);
  /// Throws DatabaseError ORA-01017 for a user or password that is not the file's.
  void logOn(const Credentials& credentials);
  /// What SQLite is asked to run for the statement with the binds that stand in parameters().
  std::string loweredText(const std::string& sql);

 private:
  class Engine;
  std::unique_ptr<Engine> engine_;
};

}  // namespace kestrelix::embedded
