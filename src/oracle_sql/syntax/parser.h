// From text to tree.
#pragma once

#include <string_view>

#include "oracle_sql/syntax/error.h"
#include "oracle_sql/syntax/tree.h"

namespace oracle_sql {

/// The tree of one query, names as written and nothing resolved. Anything but a query is refused. Throws
/// SqlError.
Tree parse(std::string_view statement);

}  // namespace oracle_sql
