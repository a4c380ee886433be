// What Oracle checks of the (+) marks of a block.
#include <algorithm>

#include "oracle_sql/meaning/resolver_state.h"
#include "oracle_sql/syntax/walk.h"

namespace oracle_sql {

namespace {

/// The FROM items that a condition names with and without (+).
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
