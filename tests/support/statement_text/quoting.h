// How literals, names and types of a statement are written.
#pragma once

#include <string>
#include <string_view>

#include "oracle_sql/syntax/tree.h"

namespace oracle_sql {

/// The type of a CAST, as in NUMBER(10,2).
std::string castSpelling(const CastExpr& cast);
/// A text literal.
std::string quotedText(std::string_view value);
/// The name, in double quotes if it would not be read as that name without them.
std::string quotedIfNeeded(std::string_view name);

}  // namespace oracle_sql
