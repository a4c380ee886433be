// The repository in a file: a repository in one local file, behind the interface of platform/database.h.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/database.h"
#include "platform/result_rows.h"

namespace kestrelix::repository_file {

/// Takes the names of the columns and a row of a result, a NULL without a value.
using RowSink = std::function<void(const std::vector<std::string>& names,
                                   std::span<const std::optional<std::string>> row)>;

/// An open repository file.
class LocalDatabase final : public Database {
 public:
  /// Opens the file without asking for its account. Throws DatabaseError.
  explicit LocalDatabase(const std::filesystem::path& path);
  ~LocalDatabase() override;

  std::unique_ptr<Dynaset> DbCreateDynaset(const std::string& sql, long options) override;
  void cancel() override;

  /// The same with fields by their place.
  std::unique_ptr<ResultRows> run(const std::string& sql);
  /// Hands over the rows one by one and holds none; gives the names of the columns. An error comes behind the
  /// rows before it.
  std::vector<std::string> stream(const std::string& sql, const RowSink& sink);
  /// Throws DatabaseError ORA-01017 for a user or password that is not the file's.
  void logOn(const Credentials& credentials);
  /// What SQLite is asked to run for the statement with the binds that stand in parameters().
  std::string loweredText(const std::string& sql);

 private:
  class Engine;
  std::unique_ptr<Engine> engine_;
};

}  // namespace kestrelix::repository_file
