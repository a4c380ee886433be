// Walks over the expressions of a statement.
#pragma once

#include <functional>

#include "oracle_sql/tree.h"
#include "platform/embedded/names.h"

namespace kestrelix::embedded {

/// Calls `visit` for the expression and every expression in it, the expressions of subqueries included only
/// when `intoSubqueries`. From above to below, in the order of the text.
void walkExpressions(const sql::Expr& expr, const std::function<void(const sql::Expr&)>& visit,
                     bool intoSubqueries = false);
/// The same for every expression of a query.
void walkExpressions(const sql::Query& query, const std::function<void(const sql::Expr&)>& visit);

/// Whether ROWNUM of the expression's own block stands in it.
bool namesRownum(const sql::Expr& expr);
/// Whether the value is the same for every row: no column, ROWNUM, subquery or aggregate.
bool isRowFree(const sql::Expr& expr);

}  // namespace kestrelix::embedded
