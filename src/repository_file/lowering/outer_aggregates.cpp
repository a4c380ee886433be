// An aggregate belongs to the block that it stands in, even if it names nothing but columns of the blocks
// around. SQLite takes such a one for theirs, unless it names something of its own block as well.
#include "oracle_sql/syntax/walk.h"
#include "repository_file/lowering/block.h"
#include "repository_file/lowering/builders.h"
#include "repository_file/lowering/walk.h"

namespace kestrelix::repository_file {
namespace {

/// The columns that an aggregate names.
struct Named {
  bool own = false;
  bool outer = false;
};

void look(const sql::Expr& expr, int level, Named& named);

void lookInside(const sql::Query& query, int level, Named& named) {
  for (const auto& term : query.terms) {
    if (term.query) lookInside(*term.query, level, named);
    if (term.block) sql::forEachExpr(*term.block, [&](const sql::Expr& expr) { look(expr, level, named); });
  }
}

/// `level` counts the subqueries between the aggregate and the expression.
void look(const sql::Expr& expr, int level, Named& named) {
  if (const auto* column = sql::as<sql::ColumnRef>(&expr); column && column->source) {
    named.own = named.own || column->levelsOut == level;
    named.outer = named.outer || column->levelsOut > level;
  }
  if (const sql::Query* inner = sql::queryOf(expr)) lookInside(*inner, level + 1, named);
  sql::forEachOperand(expr, [&](const sql::Expr& operand) { look(operand, level, named); });
}

}  // namespace

bool namesOnlyOuter(const sql::Call& call) {
  Named named;
  sql::forEachOperand(call, [&](const sql::Expr& operand) { look(operand, 0, named); });
  return named.outer && !named.own;
}

const lite::Expr* addAnchor(Lowerer& to, BlockParts& parts) {
  const sql::SelectBlock& block = parts.block;
  if (!block.grouped) return nullptr;
  bool wanted = false;
  const auto visit = [&](const sql::Expr& expr) {
    const auto* call = sql::as<sql::Call>(&expr);
    wanted = wanted || (call && call->role == sql::CallRole::Aggregate && namesOnlyOuter(*call));
  };
  for (const auto& column : block.columns) walkExpressions(*column.expr, visit);
  if (block.having) walkExpressions(*block.having, visit);
  if (parts.order)
    for (const auto& item : *parts.order) walkExpressions(*item.expr, visit);
  if (!wanted) return nullptr;
  const std::string_view alias = to.uniqueAlias("OWN");
  parts.from.push_back(to.source(alias, to.oneRow(to.integer(1), "row")));
  return to.name(alias, "row");
}

}  // namespace kestrelix::repository_file
