// SUM(AVG(x)) with GROUP BY: the inner aggregates are those of the groups, the outer ones fold the groups to
// one row.
#include "platform/embedded/lowering/rules.h"
#include "platform/embedded/lowering/walk.h"

namespace kestrelix::embedded {
namespace {

bool isAggregate(const sql::Expr& expr) {
  const auto* call = sql::as<sql::Call>(&expr);
  return call && call->role == sql::CallRole::Aggregate;
}

/// The aggregates that stand inside another one, in the order of the text.
std::vector<const sql::Call*> innerAggregates(const sql::SelectBlock& block) {
  std::vector<const sql::Call*> inner;
  for (const auto& column : block.columns)
    walkExpressions(*column.expr, [&](const sql::Expr& outer) {
      if (!isAggregate(outer)) return;
      for (const sql::Expr* argument : sql::as<sql::Call>(&outer)->args)
        walkExpressions(*argument, [&](const sql::Expr& e) {
          if (isAggregate(e)) inner.push_back(sql::as<sql::Call>(&e));
        });
    });
  return inner;
}

}  // namespace

bool hasNestedAggregates(const sql::SelectBlock& block) {
  return block.grouped && !block.groupBy.empty() && !innerAggregates(block).empty();
}

QueryText lowerNestedAggregates(Emitter& emitter, const sql::SelectBlock& block, const BlockParts& parts,
                                const sql::List<sql::OrderItem>* order) {
  if (order && !order->empty())
    throw sql::SqlError::unsupported("ORDER BY beside nested aggregates", block.place);
  const std::string alias = emitter.uniqueAlias("GROUPS");
  std::string list;
  for (const sql::Call* call : innerAggregates(block)) {
    Piece piece = emitter.expression(*call);
    const std::string name = "a" + std::to_string(emitter.replacements().size() + 1);
    list += (list.empty() ? "" : ", ") + piece.text + " AS " + quoted(name);
    piece.text = quoted(alias) + "." + quoted(name);
    piece.atom = true;
    emitter.replacements()[call] = piece;
  }
  // Outside the aggregates only the keys of the groups can stand, and those are the same expressions.
  std::string where;
  for (const sql::Expr* term : parts.conjuncts)
    where += (where.empty() ? " WHERE " : " AND ") + emitter.condition(*term);
  std::string keys;
  for (const sql::Expr* key : block.groupBy)
    keys += (keys.empty() ? "" : ", ") + ("+" + bracketed(emitter.expression(*key)));
  std::string groups = "SELECT " + list + " FROM " + parts.from + where + " GROUP BY " + keys;
  if (block.having) groups += " HAVING " + emitter.condition(*block.having);

  QueryText result;
  std::string outer;
  for (const auto& column : block.columns) {
    const Piece piece = emitter.expression(*column.expr);
    const std::string name(column.name);
    outer += (outer.empty() ? "" : ", ") + piece.text + " AS " + quoted(name);
    result.columns.push_back({name, column.type.kind, piece.number});
  }
  result.text = std::string("SELECT ") + (block.distinct ? "DISTINCT " : "") + outer + " FROM (" + groups +
                ") AS " + quoted(alias);
  return result;
}

}  // namespace kestrelix::embedded
