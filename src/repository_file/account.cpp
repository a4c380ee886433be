#include "repository_file/account.h"

#include <sodium.h>

#include "platform/ascii.h"
#include "repository_file/sqlite_handle.h"
#include "repository_file/writing/password_hash.h"

namespace kestrelix::repository_file {
namespace {

void startSodium() {
  if (sodium_init() < 0) throw DatabaseError("HY000", 0, "the cryptographic library does not start");
}

std::string setting(sqlite3* connection, const char* name) {
  const auto statement = prepare(connection, "SELECT value FROM \"kestrelix$setting\" WHERE name = ?1");
  sqlite3_bind_text(statement.get(), 1, name, -1, SQLITE_STATIC);
  return step(statement.get()) ? columnText(statement.get(), 0) : std::string();
}

}  // namespace

void checkAccount(sqlite3* connection, const Credentials& credentials) {
  startSodium();
  const std::string hash = setting(connection, "password_hash");
  // A file that comes from elsewhere could name a cost of hours and of all the memory.
  if (crypto_pwhash_str_needs_rehash(hash.c_str(), kHashRounds, kHashKilobytes * 1024) != 0)
    throw DatabaseError("08001", 0, "the repository's password hash is not of this program's form");
  const bool rightUser = !credentials.user.empty() && !credentials.password.empty() &&
                         asciiUpper(credentials.user) == asciiUpper(setting(connection, "user_name"));
  if (!rightUser ||
      crypto_pwhash_str_verify(hash.c_str(), credentials.password.data(), credentials.password.size()) != 0)
    throw DatabaseError("28000", 1017, "ORA-01017: invalid username/password; logon denied");
}

}  // namespace kestrelix::repository_file
