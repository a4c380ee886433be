// Questions about whole expressions.
#pragma once

#include <functional>

#include "oracle_sql/syntax/tree.h"
#include "repository_file/names.h"

namespace kestrelix::repository_file {

/// Calls `visit` for the expression and every expression in it, subqueries apart, from above to below.
void walkExpressions(const sql::Expr& expr, const std::function<void(const sql::Expr&)>& visit);

/// Whether ROWNUM of the expression's own block stands in it.
bool namesRownum(const sql::Expr& expr);
bool isLiteral(const sql::Expr& expr);
/// Whether the value is the same for every row: no column, ROWNUM, subquery or aggregate.
bool isRowFree(const sql::Expr& expr);

}  // namespace kestrelix::repository_file
