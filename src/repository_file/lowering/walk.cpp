#include "repository_file/lowering/walk.h"

#include "oracle_sql/syntax/walk.h"

namespace kestrelix::repository_file {

void walkExpressions(const sql::Expr& expr, const std::function<void(const sql::Expr&)>& visit) {
  visit(expr);
  sql::forEachOperand(expr, [&](const sql::Expr& operand) { walkExpressions(operand, visit); });
}

bool namesRownum(const sql::Expr& expr) {
  bool found = false;
  walkExpressions(expr, [&](const sql::Expr& e) { found = found || e.kind == sql::ExprKind::Rownum; });
  return found;
}

bool isLiteral(const sql::Expr& expr) {
  return expr.kind == sql::ExprKind::Null || expr.kind == sql::ExprKind::Number ||
         expr.kind == sql::ExprKind::String || expr.kind == sql::ExprKind::DateLiteral;
}

bool isRowFree(const sql::Expr& expr) {
  bool free = true;
  walkExpressions(expr, [&](const sql::Expr& e) {
    const auto* call = sql::as<sql::Call>(&e);
    if (e.kind == sql::ExprKind::Column || e.kind == sql::ExprKind::Rownum || sql::queryOf(e) ||
        (call && call->role != sql::CallRole::Scalar))
      free = false;
  });
  return free;
}

}  // namespace kestrelix::repository_file
