// A PostgreSQL server of the tests' own, in a folder of the system's temporary folder.
#pragma once

#include <filesystem>
#include <string>

namespace kestrelix::testing_support {

/// Started once a program, stopped with it. Runs as an ordinary user, which root hands it to.
class PostgresCluster {
 public:
  /// The one server, or null where none can be had; `whyNot` tells then what is missing.
  static PostgresCluster* instance();
  static const std::string& whyNot();

  ~PostgresCluster();

  int port() const { return port_; }
  const std::string& user() const { return user_; }
  const std::string& password() const { return password_; }
  /// A folder that goes with the server; it is the data source KESTREL_PG.
  const std::filesystem::path& folder() const { return folder_; }

  /// A connection string of the server on another port, such as that of a line to it.
  std::string connectionText(int port) const;

  /// Runs SQL as the owner. False if it failed.
  bool run(const std::string& sql) const;
  void stop();
  void start();

 private:
  PostgresCluster(std::filesystem::path programs, std::filesystem::path folder);
  int asOwner(const std::string& command) const;

  std::filesystem::path programs_;
  std::filesystem::path folder_;
  int port_;
  std::string user_ = "PERFSTAT";
  std::string password_ = "a;b=c{d}e'f\"g 秘密";
  bool running_ = false;
};

}  // namespace kestrelix::testing_support
