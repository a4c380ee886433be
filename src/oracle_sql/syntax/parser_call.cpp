// Names, calls and what may follow a call.
#include <charconv>

#include "oracle_sql/syntax/parser_state.h"

namespace oracle_sql {

Expr* Parser::nameOrCall() {
  const Place place = now().place;
  std::string_view parts[3];
  std::size_t count = 0;
  parts[count++] = nameOf(take());
  while (count < 3 && is(Symbol::Dot)) {
    take();
    if (isWord("ROWID")) unsupported("ROWID");
    parts[count++] = takeName(1747, "invalid user.table.column, table.column, or column specification");
  }
  if (is(Symbol::Dot)) unsupported("a name of more than three parts");
  if (is(Symbol::At)) unsupported("a database link");
  const bool outerMark = is(Symbol::LeftParen) && is(Symbol::Plus, 1) && is(Symbol::RightParen, 2);
  if (is(Symbol::LeftParen) && !outerMark) {
    if (count == 3) unsupported("a function qualified with a schema and a package");
    return count == 2 ? call(parts[0], parts[1], place) : call({}, parts[0], place);
  }
  auto* column = node<ColumnRef>(place);
  column->name = parts[count - 1];
  if (count > 1) column->qualifier = parts[count - 2];
  if (count > 2) column->schema = parts[0];
  if (outerMark) {
    column->outerMark = true;
    at_ += 3;
  }
  return column;
}

Expr* Parser::call(std::string_view package, std::string_view name, Place place) {
  auto* c = node<Call>(place);
  c->package = package;
  c->name = name;
  take();
  if (accept(Symbol::Star)) {
    c->star = true;
  } else if (!is(Symbol::RightParen)) {
    if (accept(Keyword::Distinct) || accept(Keyword::Unique))
      c->distinct = true;
    else
      accept(Keyword::All);
    do {
      if (isName() && is(Symbol::Arrow, 1)) unsupported("arguments by name");
      c->args.push_back(value());
      above(*c, c->args.back());
      nullTreatment(*c);
    } while (accept(Symbol::Comma));
  }
  expectRightParen();
  if (is(Keyword::From) && (is(Keyword::First, 1) || is(Keyword::Last, 1)) &&
      (is(Keyword::Over, 2) || is(Keyword::Ignore, 2) || is(Keyword::Respect, 2))) {
    if (is(Keyword::Last, 1)) unsupported("FROM LAST");
    at_ += 2;
  }
  nullTreatment(*c);
  if (is(Keyword::Keep) && is(Symbol::LeftParen, 1)) keepClause(*c);
  if (is(Keyword::Within) && is(Keyword::Group, 1)) {
    at_ += 2;
    expectLeftParen();
    if (!is(Keyword::Order)) fail(30491, "missing ORDER BY clause");
    orderBy(c->withinGroup);
    for (const OrderItem& item : c->withinGroup) above(*c, item.expr);
    expectRightParen();
  }
  if (is(Keyword::Over) && is(Symbol::LeftParen, 1)) overClause(*c);
  return c;
}

bool Parser::nullTreatment(Call& c) {
  if (!(is(Keyword::Ignore) || is(Keyword::Respect)) || !is(Keyword::Nulls, 1)) return false;
  c.nulls = take().keyword == Keyword::Ignore ? NullTreatment::Ignore : NullTreatment::Respect;
  take();
  return true;
}

void Parser::keepClause(Call& c) {
  at_ += 2;
  c.keep = tree_.make<Keep>();
  expect(Keyword::DenseRank, 905, "missing keyword");
  if (accept(Keyword::Last))
    c.keep->last = true;
  else
    expect(Keyword::First, 905, "missing keyword");
  if (!is(Keyword::Order)) fail(905, "missing keyword");
  orderBy(c.keep->orderBy);
  for (const OrderItem& item : c.keep->orderBy) above(c, item.expr);
  expectRightParen();
}

void Parser::overClause(Call& c) {
  at_ += 2;
  c.over = tree_.make<Window>();
  if (accept(Keyword::Partition)) {
    expect(Keyword::By, 924, "missing BY keyword");
    do {
      Expr* e = additive(true);
      if (auto* row = as<RowExpr>(e)) {
        for (Expr* item : row->items) c.over->partitionBy.push_back(item);
      } else {
        requireValue(*e, e->place);
        c.over->partitionBy.push_back(e);
      }
      above(c, e);
    } while (accept(Symbol::Comma));
  }
  if (is(Keyword::Order)) {
    orderBy(c.over->orderBy);
    for (const OrderItem& item : c.over->orderBy) above(c, item.expr);
  }
  if (is(Keyword::Rows) || is(Keyword::Range)) {
    if (c.over->orderBy.empty()) fail(30485, "missing ORDER BY expression in the window specification");
    frame(*c.over);
    above(c, c.over->start.offset);
    above(c, c.over->end.offset);
  }
  expectRightParen();
}

void Parser::frame(Window& w) {
  w.unit = take().keyword == Keyword::Rows ? FrameUnit::Rows : FrameUnit::Range;
  w.between = accept(Keyword::Between);
  w.start = frameBound();
  if (w.between) {
    expect(Keyword::And, 905, "missing keyword");
    w.end = frameBound();
  }
  if (w.start.kind == BoundKind::UnboundedFollowing || w.end.kind == BoundKind::UnboundedPreceding ||
      w.start.kind > w.end.kind)
    fail(30488, "argument should be a function of expressions in PARTITION BY");
}

FrameBound Parser::frameBound() {
  FrameBound bound;
  if (accept(Keyword::Current)) {
    expect(Keyword::Row, 905, "missing keyword");
    return bound;
  }
  const bool unbounded = accept(Keyword::Unbounded);
  if (!unbounded) bound.offset = value();
  if (accept(Keyword::Preceding))
    bound.kind = unbounded ? BoundKind::UnboundedPreceding : BoundKind::Preceding;
  else if (accept(Keyword::Following))
    bound.kind = unbounded ? BoundKind::UnboundedFollowing : BoundKind::Following;
  else
    fail(905, "missing keyword");
  return bound;
}

/// TRIM([LEADING|TRAILING|BOTH] [x] FROM y) and TRIM(y).
Expr* Parser::trim() {
  auto* c = node<Call>(now().place);
  c->name = "TRIM";
  at_ += 2;
  if ((is(Keyword::Leading) || is(Keyword::Trailing) || is(Keyword::Both)) && !is(Symbol::RightParen, 1) &&
      !is(Symbol::Dot, 1))
    c->option = nameOf(take());
  Expr* first = nullptr;
  if (!is(Keyword::From))
    first = value();
  else if (c->option.empty())
    fail(936, "missing expression");
  if (accept(Keyword::From)) {
    c->args.push_back(value());
    if (c->option.empty()) c->option = "BOTH";
    if (first) c->args.push_back(first);
  } else {
    if (!c->option.empty()) fail(905, "missing keyword");
    c->args.push_back(first);
  }
  for (const Expr* arg : c->args) above(*c, arg);
  expectRightParen();
  return c;
}

Expr* Parser::extract() {
  auto* c = node<Call>(now().place);
  c->name = "EXTRACT";
  at_ += 2;
  if (now().kind != TokenKind::Name) fail(907, "missing right parenthesis");
  c->option = nameOf(take());
  expect(Keyword::From, 907, "missing right parenthesis");
  c->args.push_back(value());
  above(*c, c->args[0]);
  expectRightParen();
  return c;
}

Expr* Parser::cast() {
  auto* c = node<CastExpr>(now().place);
  at_ += 2;
  if (isWord("MULTISET")) unsupported("CAST of MULTISET");
  c->operand = value();
  above(*c, c->operand);
  expect(Keyword::As, 905, "missing keyword");
  castType(*c);
  expectRightParen();
  return c;
}

void Parser::castType(CastExpr& c) {
  const auto number = [&](int low, int high, int code, const char* message) {
    const bool minus = accept(Symbol::Minus);
    int n = 0;
    const std::string_view text = now().text;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), n);
    if (now().kind != TokenKind::Number || failure != std::errc() || end != text.data() + text.size())
      fail(907, "missing right parenthesis");
    if (minus) n = -n;
    if (n < low || n > high) fail(code, message);
    take();
    return n;
  };
  const auto length = [&](int longest) {
    if (now().text == "0") fail(1723, "zero-length columns are not allowed");
    return number(1, longest, 910, "specified length too long for its datatype");
  };
  const auto precision = [&](int highest) {
    return number(1, highest, 1727, "numeric precision specifier is out of range (1 to 38)");
  };
  const auto isAny = [&](std::initializer_list<std::string_view> words) {
    return std::any_of(words.begin(), words.end(), [&](std::string_view w) { return isWord(w); });
  };
  if (isAny({"INTEGER", "INT", "SMALLINT"})) {
    take();
    c.target = TypeKind::Number;
    c.integer = true;
    return;
  }
  if (isAny({"NUMBER", "DECIMAL", "NUMERIC", "DEC"})) {
    const bool plain = isWord("NUMBER");
    take();
    c.target = TypeKind::Number;
    if (accept(Symbol::LeftParen)) {
      c.precision = accept(Symbol::Star) ? 38 : precision(38);
      if (accept(Symbol::Comma))
        c.scale = number(-84, 127, 1728, "numeric scale specifier is out of range (-84 to 127)");
      expectRightParen();
    } else {
      c.integer = !plain;
    }
    return;
  }
  if (isAny({"FLOAT", "REAL"}) || (isWord("DOUBLE") && isWord("PRECISION", 1)))
    throw SqlError::unsupported("CAST to " + std::string(nameOf(now())), now().place);
  if (isAny({"VARCHAR2", "VARCHAR", "CHAR", "CHARACTER"})) {
    const bool fixed = isAny({"CHAR", "CHARACTER"});
    take();
    c.target = fixed ? TypeKind::Char : TypeKind::Varchar2;
    if (!accept(Symbol::LeftParen)) {
      if (!fixed) fail(906, "missing left parenthesis");
      c.precision = 1;
      return;
    }
    c.precision = length(fixed ? 2000 : 4000);
    if (isWord("CHAR")) {
      take();
      c.inChars = true;
    } else if (isWord("BYTE")) {
      take();
    }
    expectRightParen();
    return;
  }
  if (isWord("RAW")) {
    take();
    c.target = TypeKind::Raw;
    expectLeftParen();
    c.precision = length(2000);
    expectRightParen();
    return;
  }
  if (isWord("DATE")) {
    take();
    c.target = TypeKind::Date;
    return;
  }
  if (now().kind != TokenKind::Name) fail(902, "invalid datatype");
  throw SqlError::unsupported("CAST to " + std::string(nameOf(now())), now().place);
}

}  // namespace oracle_sql
