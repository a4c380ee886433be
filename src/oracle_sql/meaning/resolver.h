// From names to columns, functions and types.
#pragma once

#include <functional>
#include <optional>
#include <string_view>

#include "oracle_sql/meaning/catalogue.h"
#include "oracle_sql/syntax/error.h"
#include "oracle_sql/syntax/tree.h"

namespace oracle_sql {

/// The type of the bind of that name (upper case), or nothing where there is none (ORA-01008).
using BindTypes = std::function<std::optional<TypeKind>(std::string_view name)>;

/// Every bind a number: for checking statements without running them.
inline std::optional<TypeKind> allNumbers(std::string_view) { return TypeKind::Number; }

/// Resolves every name by Oracle's scoping rules, checks what Oracle checks before it runs a statement, and
/// fills in the "resolved" members of the tree. No conversions are inserted: types tell where they are
/// needed. The catalogue must outlive the tree. Throws SqlError.
void resolve(Tree& tree, const Catalogue& catalogue, const BindTypes& binds);

}  // namespace oracle_sql
