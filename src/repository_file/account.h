// The account that a repository file has, as a server would have it.
#pragma once

#include <sqlite3.h>

#include "platform/database.h"

namespace kestrelix::repository_file {

/// Throws DatabaseError ORA-01017 unless the file's account has this user (without regard to case) and
/// password.
void checkAccount(sqlite3* connection, const Credentials& credentials);

}  // namespace kestrelix::repository_file
