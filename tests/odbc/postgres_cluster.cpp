#include "odbc/postgres_cluster.h"

#include "odbc/data_sources.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <memory>
#include <stdexcept>

namespace kestrelix::testing_support {
namespace {

namespace fs = std::filesystem;

std::string missing;

/// The newest installed server's programs.
fs::path serverPrograms() {
  fs::path found;
  std::error_code none;
  for (const auto& entry : fs::directory_iterator("/usr/lib/postgresql", none))
    if (fs::exists(entry.path() / "bin/initdb") && entry.path() > found) found = entry.path();
  return found.empty() ? found : found / "bin";
}

fs::path driver() { return odbcDriver("psqlodbcw.so"); }

int freePort() {
  const int listener = socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t length = sizeof address;
  if (bind(listener, reinterpret_cast<sockaddr*>(&address), length) != 0 ||
      getsockname(listener, reinterpret_cast<sockaddr*>(&address), &length) != 0)
    throw std::runtime_error("no free port");
  close(listener);
  return ntohs(address.sin_port);
}

std::string quoted(const std::string& word) {
  std::string text = "'";
  for (const char c : word) text += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return text + "'";
}

}  // namespace

PostgresCluster* PostgresCluster::instance() {
  static const std::unique_ptr<PostgresCluster> cluster = []() -> std::unique_ptr<PostgresCluster> {
    const fs::path programs = serverPrograms();
    if (programs.empty()) missing = "no PostgreSQL server is installed";
    if (driver().empty()) missing = "no ODBC driver for PostgreSQL is installed";
    if (!missing.empty()) return nullptr;
    try {
      std::string folder = (fs::temp_directory_path() / "kestrelix-pg-XXXXXX").string();
      if (mkdtemp(folder.data()) == nullptr) throw std::runtime_error("no temporary folder");
      return std::unique_ptr<PostgresCluster>(new PostgresCluster(programs, folder));
    } catch (const std::exception& error) {
      missing = std::string("the PostgreSQL server doesn't start: ") + error.what();
      return nullptr;
    }
  }();
  return cluster.get();
}

const std::string& PostgresCluster::whyNot() { return missing; }

int PostgresCluster::asOwner(const std::string& command) const {
  const std::string quiet = command + " >>" + (folder_ / "log").string() + " 2>&1";
  const std::string whole = geteuid() == 0 ? "cd / && runuser -u postgres -- sh -c " + quoted(quiet) : quiet;
  return std::system(whole.c_str());
}

PostgresCluster::PostgresCluster(fs::path programs, fs::path folder)
    : programs_(std::move(programs)), folder_(std::move(folder)), port_(freePort()) {
  std::ofstream(folder_ / "password") << password_ << '\n';
  addDataSource("KESTREL_PG",
                "Driver = " + driver().string() +
                    "\nServername = 127.0.0.1\nPort = " + std::to_string(port_) +
                    "\nDatabase = postgres\nSSLmode = disable\nUseServerSidePrepare = 0\n"
                    "BoolsAsChar = 0\nMaxVarcharSize = 4000\nTextAsLongVarchar = 0\nUnknownSizes = 2\n");
  std::ofstream(folder_ / "log") << "";
  fs::permissions(folder_, fs::perms::all);
  for (const char* file : {"password", "log"}) fs::permissions(folder_ / file, fs::perms::all);
  if (asOwner((programs_ / "initdb").string() + " -D " + (folder_ / "data").string() +
              " -U PERFSTAT -A scram-sha-256 --pwfile=" + (folder_ / "password").string() +
              " -E UTF8 --locale=C.UTF-8 --no-sync") != 0)
    throw std::runtime_error("initdb failed");
  start();
}

void PostgresCluster::start() {
  if (asOwner((programs_ / "pg_ctl").string() + " -w -D " + (folder_ / "data").string() + " -o " +
              quoted("-p " + std::to_string(port_) + " -k " + folder_.string() +
                     " -c listen_addresses=127.0.0.1 -c fsync=off -c shared_buffers=16MB") +
              " start") != 0)
    throw std::runtime_error("pg_ctl start failed");
  running_ = true;
}

void PostgresCluster::stop() {
  if (running_)
    asOwner((programs_ / "pg_ctl").string() + " -w -m immediate -D " + (folder_ / "data").string() + " stop");
  running_ = false;
}

PostgresCluster::~PostgresCluster() {
  stop();
  std::error_code ignored;
  fs::remove_all(folder_, ignored);
}

std::string PostgresCluster::connectionText(int port) const {
  std::string password = password_;
  for (std::size_t at = 0; (at = password.find('}', at)) != std::string::npos; at += 2)
    password.insert(at, 1, '}');
  return "DSN=KESTREL_PG;Port=" + std::to_string(port) + ";UID=" + user_ + ";PWD={" + password + "}";
}

bool PostgresCluster::run(const std::string& sql) const {
  const fs::path file = folder_ / "statements.sql";
  std::ofstream(file) << sql;
  fs::permissions(file, fs::perms::all);
  return asOwner("PGPASSWORD=\"$(cat " + (folder_ / "password").string() + ")\" " +
                 (programs_ / "psql").string() + " -v ON_ERROR_STOP=1 -q -h 127.0.0.1 -p " +
                 std::to_string(port_) + " -U PERFSTAT -d postgres -f " + file.string()) == 0;
}

}  // namespace kestrelix::testing_support
