// Whether two expressions compute the same.
#pragma once

#include "oracle_sql/syntax/node.h"

namespace oracle_sql {

/// Whether two resolved expressions compute the same; columns count by what they are and not by how they are
/// written. The first one stands in a block itself, the second one `level` subqueries inside it.
bool sameExpression(const Expr& a, const Expr& b, int level = 0);

}  // namespace oracle_sql
