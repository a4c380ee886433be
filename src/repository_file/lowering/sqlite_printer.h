// The text of a tree for SQLite: the one place that knows its brackets and how much it takes at once.
#pragma once

#include <string>
#include <string_view>

#include "repository_file/lowering/sqlite_tree.h"

namespace kestrelix::repository_file::lite {

struct Printed {
  std::string text;
  /// SQLite takes less of something than stands in the text, as far as can be told from outside.
  bool nearBounds = false;
};

/// The statement. Throws SqlError, of kind Unsupported for an expression that grows without bounds.
Printed print(const Query& statement);

/// A name as SQLite's quoted identifier.
std::string quoted(std::string_view name);
/// The parameter that stands for a bind variable, and the variable that a parameter stands for.
std::string parameterOf(std::string_view bind);
std::string bindOf(std::string_view parameter);

}  // namespace kestrelix::repository_file::lite
