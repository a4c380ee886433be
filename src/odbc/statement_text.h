#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kestrelix::odbc {

/// A statement as ODBC takes it: a question mark for every use of a bind, and the binds' names in upper case
/// in the order of their uses.
struct MarkedStatement {
  std::string text;
  std::vector<std::string> binds;
};

/// Rewrites ":NAME" to "?", but not inside texts, quoted names and comments. Fails with DatabaseError for
/// anything but a query: no word that changes data may stand in it.
MarkedStatement markBinds(std::string_view statement);

}  // namespace kestrelix::odbc
