// GROUP BY: the groupings that it asks for, what may stand beside it, and the functions that tell of it.
#include "oracle_sql/meaning/resolver_state.h"
#include "oracle_sql/meaning/same_expression.h"
#include "oracle_sql/syntax/walk.h"

namespace oracle_sql {

namespace {

/// Several ROLLUPs multiply.
constexpr std::size_t kMaxGroupings = 256;
/// Expressions of one GROUP BY with several groupings: a bit each.
constexpr std::size_t kMaxGroupingKeys = 60;

using Sets = std::vector<GroupingSet>;

/// The place in GROUP BY of the first expression that is the same; its size if there is none.
std::size_t keyOf(const Expr& e, const SelectBlock& b) {
  std::size_t i = 0;
  while (i < b.groupBy.size() && !sameExpression(*b.groupBy[i], e)) ++i;
  return i;
}

/// Each grouping of the one with each of the other.
Sets crossed(const Sets& left, const Sets& right, Place place) {
  if (left.size() * right.size() > kMaxGroupings)
    throw SqlError::unsupported("more than " + std::to_string(kMaxGroupings) + " groupings at once", place);
  Sets sets;
  for (const GroupingSet a : left)
    for (const GroupingSet b : right) sets.push_back(a | b);
  return sets;
}

GroupingSet setOf(const ExprList& keys, const SelectBlock& b) {
  GroupingSet set = 0;
  for (const Expr* key : keys) set |= GroupingSet{1} << keyOf(*key, b);
  return set;
}

Sets setsOf(const GroupingTerm& term, const SelectBlock& b) {
  if (!term.rollup) return {setOf(term.keys, b)};
  Sets sets{0};
  for (const GroupingTerm* t : term.terms) sets.insert(sets.begin(), sets.front() | setOf(t->keys, b));
  return sets;
}

}  // namespace

void Resolver::groupings(SelectBlock& b) const {
  if (b.grouping.empty()) return;
  if (b.groupBy.size() > kMaxGroupingKeys)
    throw SqlError::unsupported("ROLLUP of more than " + std::to_string(kMaxGroupingKeys) + " expressions",
                                b.grouping.front()->place);
  Sets sets{0};
  for (const GroupingTerm* term : b.grouping) sets = crossed(sets, setsOf(*term, b), term->place);
  b.groupingSets.assign(sets.begin(), sets.end());
}

bool Resolver::tellsOfGrouping(const Call& c) { return c.package.empty() && c.name == "GROUPING"; }

Type Resolver::groupingFunction(Call& c, const Env& env) {
  if (c.over || c.keep || !c.withinGroup.empty() || c.nulls != NullTreatment::Default)
    fail(923, "FROM keyword not found where expected", c.place);
  if (c.star) fail(936, "missing expression", c.place);
  if (c.distinct) fail(30482, "DISTINCT option not allowed for this function", c.place);
  countArguments(c, 1, 1);
  if (!env.aggregates) fail(934, "group function is not allowed here", c.place);
  const SelectBlock* b = env.scope->block;
  if (!b || b->grouping.empty()) throw SqlError::unsupported("GROUPING without ROLLUP", c.place);
  if (env.aggregateDepth > 0) throw SqlError::unsupported("GROUPING inside an aggregate", c.place);
  c.role = CallRole::Grouping;
  Env inside = env;
  inside.aggregates = inside.windows = false;
  Expr*& arg = c.args.front();
  value(*arg, inside);
  // In ORDER BY a name of the select list is what stands there.
  if (const auto* name = as<ColumnRef>(arg); name && !name->source && name->output >= 0)
    arg = b->columns[static_cast<std::size_t>(name->output)].expr;
  if (keyOf(*arg, *b) == b->groupBy.size()) fail(979, "not a GROUP BY expression", arg->place);
  return {TypeKind::Number, true};
}

void Resolver::checkGrouping(SelectBlock& b, const List<OrderItem>* orderBy) const {
  const bool nested = b.nestedAggregates;
  for (const OutputColumn& c : b.columns) grouped(*c.expr, b, 0, nested);
  if (b.having) grouped(*b.having, b, 0, false);
  if (!orderBy) return;
  for (const OrderItem& item : *orderBy)
    if (item.output < 0) grouped(*item.expr, b, 0, nested);
}

/// Every column of the block must stand in an aggregate or belong to an expression of GROUP BY; `overGroups`
/// in an aggregate over the groups, as in SUM(AVG(x)), and there stand as said. `level` counts the subqueries
/// between the expression and the block.
void Resolver::grouped(const Expr& e, const SelectBlock& b, int level, bool overGroups) const {
  if (!overGroups)
    for (const Expr* g : b.groupBy)
      if (sameExpression(*g, e, level)) return;
  const auto* call = as<Call>(&e);
  if (call && level == 0 && call->role == CallRole::Grouping) return;
  if (call && level == 0 && call->role == CallRole::Aggregate) {
    if (overGroups) forEachOperand(e, [&](const Expr& o) { grouped(o, b, level, false); });
    return;
  }
  const auto* c = as<ColumnRef>(&e);
  if ((c && c->source && c->levelsOut == level) || (e.kind == ExprKind::Rownum && level == 0)) {
    if (b.groupBy.empty() || overGroups) fail(937, "not a single-group group function", e.place);
    fail(979, "not a GROUP BY expression", e.place);
  }
  forEachOperand(e, [&](const Expr& o) { grouped(o, b, level, overGroups); });
  if (const Query* q = queryOf(e); q && q->correlated) groupedQuery(*q, b, level + 1, overGroups);
}

void Resolver::groupedQuery(const Query& q, const SelectBlock& b, int level, bool overGroups) const {
  for (const SetTerm& t : q.terms) {
    if (t.query)
      groupedQuery(*t.query, b, level, overGroups);
    else
      forEachExpr(*t.block, [&](const Expr& e) { grouped(e, b, level, overGroups); });
  }
}

}  // namespace oracle_sql
