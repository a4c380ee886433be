// FROM: tables, inline views, joins and PIVOT.
#include "oracle_sql/syntax/parser_state.h"

namespace oracle_sql {

void Parser::fromClause(SelectBlock& b) {
  do b.from.push_back(joined());
  while (accept(Symbol::Comma));
}

FromItem* Parser::joined() { return joinsOf(fromPrimary()); }

bool Parser::joinStart(std::size_t ahead) const {
  if (is(Keyword::Join, ahead)) return true;
  if (is(Keyword::Inner, ahead) || is(Keyword::Cross, ahead)) return is(Keyword::Join, ahead + 1);
  if (is(Keyword::Left, ahead) || is(Keyword::Right, ahead) || is(Keyword::Full, ahead))
    return is(Keyword::Join, ahead + 1) || (is(Keyword::Outer, ahead + 1) && is(Keyword::Join, ahead + 2));
  if (is(Keyword::Natural, ahead) && !is(Keyword::Natural, ahead + 1) && joinStart(ahead + 1))
    throw SqlError::unsupported("NATURAL JOIN", now(ahead).place);
  return false;
}

/// Takes the words up to JOIN if they are there.
bool Parser::joinOperator(JoinKind& kind) {
  if (!joinStart()) return false;
  kind = JoinKind::Inner;
  if (accept(Keyword::Cross))
    kind = JoinKind::Cross;
  else if (accept(Keyword::Left))
    kind = JoinKind::Left;
  else if (accept(Keyword::Right))
    kind = JoinKind::Right;
  else if (accept(Keyword::Full))
    kind = JoinKind::Full;
  else
    accept(Keyword::Inner);
  accept(Keyword::Outer);
  take();
  return true;
}

FromItem* Parser::joinsOf(FromItem* left) {
  JoinKind kind = JoinKind::Inner;
  Place place = now().place;
  while (joinOperator(kind)) {
    auto* join = tree_.make<JoinItem>();
    join->place = place;
    join->join = kind;
    join->left = left;
    join->right = fromPrimary();
    if (kind != JoinKind::Cross) {
      // a JOIN b JOIN c ON .. ON ..: the inner pair first.
      if (joinStart()) {
        const Deeper deeper(*this);
        join->right = joinsOf(join->right);
      }
      if (accept(Keyword::On)) {
        join->on = condition();
      } else if (accept(Keyword::Using)) {
        expectLeftParen();
        do join->usingNames.push_back(takeName(904, "invalid identifier"));
        while (accept(Symbol::Comma));
        expectRightParen();
      } else {
        fail(905, "missing keyword");
      }
    }
    heighten(*join, std::max(left->height, join->right->height) + 1);
    left = join;
    place = now().place;
    // The ON of an outer pair follows.
    if (is(Keyword::On) || (is(Keyword::Using) && is(Symbol::LeftParen, 1))) break;
  }
  return left;
}

bool Parser::tableAliasFollows() const {
  if (!isName()) return false;
  if (now().kind == TokenKind::QuotedName) return true;
  if (joinStart()) return false;
  switch (now().keyword) {
    case Keyword::Pivot:
    case Keyword::Unpivot:
      return !is(Symbol::LeftParen, 1) && !isWord("XML", 1) && !isWord("INCLUDE", 1);
    case Keyword::Using:
    case Keyword::Partition:
      return !is(Symbol::LeftParen, 1);
    case Keyword::Model:
      return now(1).kind != TokenKind::Name;
    case Keyword::Offset:
      return now(1).kind != TokenKind::Number && now(1).kind != TokenKind::Bind;
    case Keyword::Fetch:
      return !is(Keyword::First, 1) && !isWord("NEXT", 1);
    default:
      return true;
  }
}

FromItem* Parser::fromPrimary() {
  FromItem* item = nullptr;
  const Place place = now().place;
  if (is(Symbol::LeftParen)) {
    const Deeper deeper(*this);
    take();
    if (isQueryAt(at_)) {
      auto* derived = tree_.make<DerivedItem>();
      derived->query = bracketedQuery();
      heighten(*derived, queryHeight_ + 1);
      item = derived;
    } else {
      item = joined();
      expectRightParen();
      if (item->kind == FromKind::Join) return item;
    }
  } else {
    item = table();
  }
  item->place = place;
  if (item->alias.empty() && tableAliasFollows()) item->alias = nameOf(take());
  while (true) {
    if (is(Keyword::Unpivot)) unsupported("UNPIVOT");
    if (!is(Keyword::Pivot)) break;
    item = pivot(item);
    if (tableAliasFollows()) item->alias = nameOf(take());
  }
  if (isWord("MATCH_RECOGNIZE")) unsupported("MATCH_RECOGNIZE");
  return item;
}

FromItem* Parser::table() {
  if (is(Keyword::Table) && is(Symbol::LeftParen, 1)) unsupported("TABLE(...), a collection as a table");
  if (is(Keyword::Lateral) && is(Symbol::LeftParen, 1)) unsupported("LATERAL");
  if (isWord("ONLY") && is(Symbol::LeftParen, 1)) unsupported("ONLY");
  if (isWord("XMLTABLE") && is(Symbol::LeftParen, 1)) unsupported("XMLTABLE");
  auto* t = tree_.make<TableItem>();
  t->name = takeName(903, "invalid table name");
  if (accept(Symbol::Dot)) {
    t->schema = t->name;
    t->name = takeName(903, "invalid table name");
  }
  if (is(Symbol::At)) unsupported("a database link");
  if (is(Keyword::Sample) && (is(Symbol::LeftParen, 1) || isWord("BLOCK", 1))) unsupported("SAMPLE");
  if (is(Keyword::Partition) && is(Symbol::LeftParen, 1)) unsupported("PARTITION (...) of a table");
  if (is(Keyword::As) && is(Keyword::Of, 1)) unsupported("AS OF, a query of the past");
  if (is(Keyword::Versions) && is(Keyword::Between, 1)) unsupported("VERSIONS BETWEEN, a query of the past");
  return t;
}

FromItem* Parser::pivot(FromItem* source) {
  const Deeper deeper(*this);
  auto* p = tree_.make<PivotItem>();
  p->place = take().place;
  p->source = source;
  heighten(*p, source->height + 1);
  if (isWord("XML")) unsupported("PIVOT XML");
  expectLeftParen();
  do {
    PivotAggregate a;
    const Place place = now().place;
    a.call = as<Call>(value());
    if (!a.call) fail(56902, "expect aggregate function inside pivot operation", place);
    if (accept(Keyword::As))
      a.alias = takeName(905, "missing keyword");
    else if (isName())
      a.alias = nameOf(take());
    p->aggregates.push_back(a);
  } while (accept(Symbol::Comma));
  expect(Keyword::For, 905, "missing keyword");
  const auto forColumn = [&] {
    auto* c = node<ColumnRef>(now().place);
    c->name = takeName(904, "invalid identifier");
    p->forColumns.push_back(c);
  };
  if (accept(Symbol::LeftParen)) {
    do forColumn();
    while (accept(Symbol::Comma));
    expectRightParen();
  } else {
    forColumn();
  }
  expect(Keyword::In, 905, "missing keyword");
  expectLeftParen();
  if (isQueryAt(at_) || is(Keyword::Any)) unsupported("PIVOT with a subquery or ANY in its list");
  do {
    PivotValue v(tree_.memory());
    const std::uint32_t begin = now().place.offset;
    const Place place = now().place;
    Expr* e = additive(true);
    if (auto* row = as<RowExpr>(e))
      v.values = row->items;
    else
      v.values.push_back(e);
    for (const Expr* item : v.values) requireValue(*item, item->place);
    if (v.values.size() != p->forColumns.size())
      fail(56901, "the list of PIVOT has not as many values as FOR has columns", place);
    v.text = tree_.statement().substr(begin, tokens_[at_ - 1].end() - begin);
    if (accept(Keyword::As))
      v.alias = takeName(905, "missing keyword");
    else if (isName())
      v.alias = nameOf(take());
    p->values.push_back(std::move(v));
  } while (accept(Symbol::Comma));
  expectRightParen();
  expectRightParen();
  return p;
}

}  // namespace oracle_sql
