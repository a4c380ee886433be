// What Oracle checks of a block as a whole: its grouping and its (+) marks.
#include <algorithm>

#include "oracle_sql/resolver_state.h"
#include "oracle_sql/walk.h"

namespace oracle_sql {

void Resolver::checkGrouping(SelectBlock& b, const List<OrderItem>* orderBy) const {
  for (const OutputColumn& c : b.columns) grouped(*c.expr, b, 0);
  if (b.having) grouped(*b.having, b, 0);
  if (!orderBy) return;
  for (const OrderItem& item : *orderBy)
    if (item.output < 0) grouped(*item.expr, b, 0);
}

// Every column of the block must stand in an aggregate or belong to an expression of GROUP BY. `level` counts
// the subqueries between the expression and the block.
void Resolver::grouped(const Expr& e, const SelectBlock& b, int level) const {
  for (const Expr* g : b.groupBy)
    if (!b.nestedAggregates && same(*g, e, level)) return;
  if (const auto* c = as<Call>(&e); c && c->role == CallRole::Aggregate) return;
  const auto* c = as<ColumnRef>(&e);
  if ((c && c->source && c->levelsOut == level) || (e.kind == ExprKind::Rownum && level == 0)) {
    if (b.groupBy.empty() || b.nestedAggregates) fail(937, "not a single-group group function", e.place);
    fail(979, "not a GROUP BY expression", e.place);
  }
  forEachOperand(e, [&](const Expr& o) { grouped(o, b, level); });
  if (const Query* q = queryOf(e); q && q->correlated) groupedQuery(*q, b, level + 1);
}

void Resolver::groupedQuery(const Query& q, const SelectBlock& b, int level) const {
  for (const SetTerm& t : q.terms) {
    if (t.query)
      groupedQuery(*t.query, b, level);
    else
      forEachExpr(*t.block, [&](const Expr& e) { grouped(e, b, level); });
  }
}

// Whether both compute the same; columns count by what they are and not by how they are written. The first
// one stands in the block itself, the second one `level` subqueries inside it.
bool Resolver::same(const Expr& a, const Expr& b, int level) {
  if (a.kind != b.kind) return false;
  switch (a.kind) {
    case ExprKind::Number:
      return as<NumberLiteral>(&a)->text == as<NumberLiteral>(&b)->text;
    case ExprKind::String:
      return as<StringLiteral>(&a)->value == as<StringLiteral>(&b)->value;
    case ExprKind::DateLiteral:
      return as<DateLiteral>(&a)->value == as<DateLiteral>(&b)->value;
    case ExprKind::Bind:
      return as<BindExpr>(&a)->name == as<BindExpr>(&b)->name;
    case ExprKind::Column: {
      const auto& c = *as<ColumnRef>(&a);
      const auto& d = *as<ColumnRef>(&b);
      return c.source == d.source && c.column == d.column && c.output == d.output &&
             c.levelsOut + level == d.levelsOut;
    }
    case ExprKind::Negate:
      if (as<Negate>(&a)->plus != as<Negate>(&b)->plus) return false;
      break;
    case ExprKind::Arithmetic:
      if (as<Arithmetic>(&a)->op != as<Arithmetic>(&b)->op) return false;
      break;
    case ExprKind::Compare: {
      const auto& c = *as<Compare>(&a);
      const auto& d = *as<Compare>(&b);
      if (c.op != d.op || c.quantifier != d.quantifier) return false;
      break;
    }
    case ExprKind::Case: {
      const auto& c = *as<CaseExpr>(&a);
      const auto& d = *as<CaseExpr>(&b);
      if (!c.operand != !d.operand || c.whens.size() != d.whens.size()) return false;
      break;
    }
    case ExprKind::Call: {
      const auto& c = *as<Call>(&a);
      const auto& d = *as<Call>(&b);
      if (c.name != d.name || c.package != d.package || c.option != d.option || c.star != d.star ||
          c.distinct != d.distinct || c.nulls != d.nulls || c.args.size() != d.args.size())
        return false;
      // Two windows or sort lists are never taken for one.
      if (c.over || d.over || c.keep || d.keep || !c.withinGroup.empty() || !d.withinGroup.empty())
        return &a == &b;
      break;
    }
    case ExprKind::Cast: {
      const auto& c = *as<CastExpr>(&a);
      const auto& d = *as<CastExpr>(&b);
      if (c.target != d.target || c.precision != d.precision || c.scale != d.scale ||
          c.integer != d.integer || c.binaryDigits != d.binaryDigits)
        return false;
      break;
    }
    case ExprKind::Between:
      if (as<Between>(&a)->negated != as<Between>(&b)->negated) return false;
      break;
    case ExprKind::In:
      if (as<InExpr>(&a)->negated != as<InExpr>(&b)->negated) return false;
      break;
    case ExprKind::Like:
      if (as<LikeExpr>(&a)->negated != as<LikeExpr>(&b)->negated) return false;
      break;
    case ExprKind::IsNull:
      if (as<IsNull>(&a)->negated != as<IsNull>(&b)->negated) return false;
      break;
    default:
      break;
  }
  if (queryOf(a) || queryOf(b)) return &a == &b;
  std::vector<const Expr*> left;
  std::vector<const Expr*> right;
  forEachOperand(a, [&](const Expr& o) { left.push_back(&o); });
  forEachOperand(b, [&](const Expr& o) { right.push_back(&o); });
  return left.size() == right.size() &&
         std::equal(left.begin(), left.end(), right.begin(),
                    [&](const Expr* x, const Expr* y) { return same(*x, *y, level); });
}

namespace {

// The FROM items that a condition names with and without (+).
struct Marks {
  std::vector<const FromItem*> marked;
  std::vector<const FromItem*> plain;
  Place place;
  const Expr* query = nullptr;
};

void add(std::vector<const FromItem*>& list, const FromItem* f) {
  if (std::find(list.begin(), list.end(), f) == list.end()) list.push_back(f);
}

void collect(const Expr& e, Marks& marks) {
  if (const auto* c = as<ColumnRef>(&e); c && c->levelsOut == 0) {
    if (c->outerMark) marks.place = c->place;
    add(c->outerMark ? marks.marked : marks.plain, c->source);
  }
  if (queryOf(e)) marks.query = &e;
  forEachOperand(e, [&](const Expr& o) { collect(o, marks); });
}

void checkTerm(const Expr& term, std::vector<std::pair<const FromItem*, const FromItem*>>& edges, bool& any) {
  if (const auto* both = as<AndExpr>(&term)) {
    for (const Expr* t : both->terms) checkTerm(*t, edges, any);
    return;
  }
  Marks marks;
  collect(term, marks);
  if (marks.marked.empty()) return;
  any = true;
  const auto* in = as<InExpr>(&term);
  if (term.kind == ExprKind::Or || (in && in->list.size() > 1))
    throw SqlError::wrong(1719, "outer join operator (+) not allowed in operand of OR or IN", marks.place);
  if (marks.query)
    throw SqlError::wrong(1799, "a column may not be outer-joined to a subquery", marks.query->place);
  if (marks.marked.size() > 1)
    throw SqlError::wrong(1468, "a predicate may reference only one outer-joined table", marks.place);
  for (const FromItem* p : marks.plain) {
    const std::pair<const FromItem*, const FromItem*> edge{marks.marked.front(), p};
    if (std::find(edges.begin(), edges.end(), std::pair{edge.second, edge.first}) != edges.end())
      throw SqlError::wrong(1416, "two tables cannot be outer-joined to each other", marks.place);
    edges.push_back(edge);
  }
}

}  // namespace

void Resolver::checkOuterMarks(SelectBlock& b) const {
  std::vector<std::pair<const FromItem*, const FromItem*>> edges;
  checkTerm(*b.where, edges, b.outerMarks);
  if (!b.outerMarks) return;
  for (const FromItem* f : b.from)
    if (f->kind == FromKind::Join)
      fail(25156, "old style outer join (+) cannot be used with ANSI joins", b.where->place);
}

}  // namespace oracle_sql
