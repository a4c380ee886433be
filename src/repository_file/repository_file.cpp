#include "repository_file/repository_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>

#include "platform/database.h"

namespace kestrelix::repository_file {
namespace {

constexpr std::size_t kHeaderSize = 100;
constexpr std::string_view kMagic{"SQLite format 3\0", 16};

[[noreturn]] void refuse(const std::filesystem::path& path, const std::string& why) {
  throw DatabaseError("08001", 0, path.string() + ": " + why);
}

std::uint32_t bigEndian(const unsigned char* bytes, int count) {
  std::uint32_t value = 0;
  for (int i = 0; i < count; ++i) value = value << 8 | bytes[i];
  return value;
}

// The head of the file is read by hand first, so that each way to be wrong has its own plain words.
void checkHeader(const std::filesystem::path& path) {
  std::error_code error;
  if (std::filesystem::is_directory(path, error)) refuse(path, "is a directory, not a repository");
  if (std::filesystem::exists(path, error) && !std::filesystem::is_regular_file(path, error))
    refuse(path, "is no plain file");
  const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0) refuse(path, std::string("cannot be opened: ") + std::strerror(errno));
  std::array<unsigned char, kHeaderSize> header{};
  const auto read = ::read(file, header.data(), header.size());
  ::close(file);
  if (read < 0) refuse(path, std::string("cannot be read: ") + std::strerror(errno));
  if (read == 0) refuse(path, "is empty, not a repository");
  if (static_cast<std::size_t>(read) < header.size() ||
      std::memcmp(header.data(), kMagic.data(), kMagic.size()) != 0)
    refuse(path, "is not a repository");
  if (bigEndian(header.data() + 68, 4) != kApplicationId) refuse(path, "is not a repository of this program");
  const auto layout = bigEndian(header.data() + 60, 4);
  if (layout != kLayoutVersion)
    refuse(path, "has the layout " + std::to_string(layout) + ", and this program reads " +
                     std::to_string(kLayoutVersion));
  const std::uint64_t pageSize =
      bigEndian(header.data() + 16, 2) == 1 ? 65536 : bigEndian(header.data() + 16, 2);
  const std::uint64_t expected = pageSize * bigEndian(header.data() + 28, 4);
  const auto size = std::filesystem::file_size(path, error);
  if (error || size < expected)
    refuse(path,
           "is cut off: " + std::to_string(error ? 0 : size) + " of " + std::to_string(expected) + " bytes");
}

std::string uriOf(const std::filesystem::path& path) {
  static constexpr char kHex[] = "0123456789ABCDEF";
  std::string uri = "file:";
  const std::string absolute = std::filesystem::absolute(path).string();
  for (const char c : absolute) {
    const auto byte = static_cast<unsigned char>(c);
    const bool plain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
                       c == '/' || c == '.' || c == '-' || c == '_';
    if (plain)
      uri += c;
    else
      uri += {'%', kHex[byte >> 4], kHex[byte & 15]};
  }
  // The file is renamed into place whole and never changed, so no lock and no journal is looked for.
  return uri + "?mode=ro&immutable=1";
}

/// A column that the file tells of and no longer has, as TABLE.COLUMN; empty if there is none.
std::string missingColumn(sqlite3* connection) {
  const auto lost = prepare(connection,
                            "SELECT upper(table_name || '.' || column_name) FROM \"kestrelix$column\" EXCEPT "
                            "SELECT upper(held.name || '.' || own.name) FROM sqlite_schema AS held, "
                            "pragma_table_info(held.name) AS own WHERE held.type = 'table' LIMIT 1");
  return step(lost.get()) ? columnText(lost.get(), 0) : std::string();
}

}  // namespace

ConnectionHandle openRepositoryFile(const std::filesystem::path& path) {
  checkHeader(path);
  // SQLite counts its memory under a lock unless it is told not to before it starts.
  static const int unused = sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
  static_cast<void>(unused);
  sqlite3* raw = nullptr;
  const int result = sqlite3_open_v2(uriOf(path).c_str(), &raw,
                                     SQLITE_OPEN_READONLY | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX, nullptr);
  ConnectionHandle connection(raw);
  if (result != SQLITE_OK) refuse(path, std::string("cannot be opened: ") + sqlite3_errstr(result));

  sqlite3_db_config(raw, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  sqlite3_db_config(raw, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  // A quoted name that is unknown must be an error and never turn into a text.
  sqlite3_db_config(raw, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  sqlite3_limit(raw, SQLITE_LIMIT_ATTACHED, 0);
  std::string lost;
  try {
    step(prepare(raw, "PRAGMA query_only = 1").get());
    step(prepare(raw, "PRAGMA cache_size = -65536").get());
    step(prepare(raw, "PRAGMA temp_store = 2").get());
    step(prepare(raw,
                 "SELECT (SELECT max(position) FROM \"kestrelix$column\"), (SELECT max(value) FROM "
                 "\"kestrelix$setting\")")
             .get());
    lost = missingColumn(raw);
  } catch (const DatabaseError& error) {
    refuse(path, std::string("is damaged: ") + error.what());
  }
  if (!lost.empty()) refuse(path, "is damaged: it has no column " + lost);
  return connection;
}

}  // namespace kestrelix::repository_file
