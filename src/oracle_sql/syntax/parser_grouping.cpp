// GROUP BY.
#include "oracle_sql/syntax/parser_state.h"

namespace oracle_sql {

void Parser::groupBy(SelectBlock& b) {
  take();
  expect(Keyword::By, 924, "missing BY keyword");
  bool several = false;
  do {
    b.grouping.push_back(groupingTerm(b));
    several = several || b.grouping.back()->rollup || b.grouping.back()->keys.empty();
  } while (accept(Symbol::Comma));
  if (!several) b.grouping.clear();
  // All rows are one group, as GROUP BY NULL says it.
  if (b.groupBy.empty()) b.groupBy.push_back(node<NullLiteral>(b.grouping.front()->place));
}

GroupingTerm* Parser::groupingTerm(SelectBlock& b) {
  if (is(Keyword::Cube) && is(Symbol::LeftParen, 1)) unsupported("CUBE");
  if (is(Keyword::Grouping) && is(Keyword::Sets, 1)) unsupported("GROUPING SETS");
  if (!is(Keyword::Rollup) || !is(Symbol::LeftParen, 1)) return groupingKeys(b);
  auto* term = tree_.make<GroupingTerm>();
  term->place = take().place;
  term->rollup = true;
  expectLeftParen();
  do term->terms.push_back(groupingKeys(b));
  while (accept(Symbol::Comma));
  expectRightParen();
  return term;
}

/// An expression, several in brackets, or none.
GroupingTerm* Parser::groupingKeys(SelectBlock& b) {
  auto* term = tree_.make<GroupingTerm>();
  term->place = now().place;
  if (is(Symbol::LeftParen) && is(Symbol::RightParen, 1)) {
    at_ += 2;
    return term;
  }
  Expr* e = additive(true);
  if (auto* row = as<RowExpr>(e)) {
    term->keys = row->items;
  } else {
    requireValue(*e, e->place);
    term->keys.push_back(e);
  }
  for (Expr* key : term->keys) b.groupBy.push_back(key);
  return term;
}

}  // namespace oracle_sql
