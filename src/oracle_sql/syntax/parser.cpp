#include "oracle_sql/syntax/parser.h"

#include "oracle_sql/syntax/parser_state.h"
#include "oracle_sql/text/ascii_case.h"

namespace oracle_sql {

Tree parse(std::string_view statement) {
  if (statement.size() > kMaxStatementBytes)
    throw SqlError::wrong(0, "the statement is longer than " + std::to_string(kMaxStatementBytes) + " bytes",
                          {});
  Tree tree(statement);
  Parser parser(tree, tokenize(tree.statement()));
  tree.setQuery(parser.statement());
  return tree;
}

Parser::Parser(Tree& tree, std::vector<Token> tokens) : tree_(tree), tokens_(std::move(tokens)) {
  closing_.resize(tokens_.size());
  std::vector<std::uint32_t> open;
  for (std::uint32_t i = 0; i < tokens_.size(); ++i) {
    if (tokens_[i].symbol == Symbol::LeftParen) {
      open.push_back(i);
    } else if (tokens_[i].symbol == Symbol::RightParen && !open.empty()) {
      closing_[open.back()] = i;
      open.pop_back();
    }
  }
}

bool Parser::isWord(std::string_view upperCase, std::size_t ahead) const {
  const Token& token = now(ahead);
  if (token.kind != TokenKind::Name || token.text.size() != upperCase.size()) return false;
  return startsWithAnyCase(token.text, upperCase);
}

std::string_view Parser::nameOf(const Token& token) {
  std::string_view text = token.text;
  if (token.kind == TokenKind::QuotedName || token.kind == TokenKind::Bind) text.remove_prefix(1);
  if (token.kind == TokenKind::QuotedName) {
    text.remove_suffix(1);
    return text;
  }
  bool lower = false;
  for (char c : text) lower = lower || (c >= 'a' && c <= 'z');
  if (!lower) return text;
  return tree_.copy(asciiUpper(text));
}

std::string_view Parser::takeName(int oraCode, const char* message) {
  if (!isName()) fail(oraCode, message);
  return nameOf(take());
}

void Parser::tooDeep() const { throw SqlError::wrong(0, "the statement is nested too deeply", now().place); }

Query* Parser::statement() {
  if (now().kind == TokenKind::End) fail(900, "invalid SQL statement");
  if (now().kind == TokenKind::Name && startsOtherStatement(now().text))
    throw SqlError::unsupported(std::string(nameOf(now())) + ": only queries run here", now().place);
  if (!is(Keyword::Select) && !is(Keyword::With) && !is(Symbol::LeftParen))
    fail(900, "invalid SQL statement");
  Query* q = query();
  if (is(Keyword::For)) unsupported("FOR UPDATE: only queries that lock nothing run here");
  if (now().kind != TokenKind::End) fail(933, "SQL command not properly ended");
  return q;
}

/// True if a query starts at that token, which may be "(". Inside brackets it is one only if what follows the
/// closing one goes on as a query does: ((select 1 from dual) + 1) is a value.
bool Parser::isQueryAt(std::size_t at) const {
  for (; tokens_[at].symbol == Symbol::LeftParen; ++at) {
    if (closing_[at] == 0) return false;
    const Token& behind = tokens_[closing_[at] + 1];
    const bool goesOn = behind.kind == TokenKind::End || behind.symbol == Symbol::RightParen ||
                        behind.keyword == Keyword::Union || behind.keyword == Keyword::Minus ||
                        behind.keyword == Keyword::Intersect || behind.keyword == Keyword::Order;
    if (!goesOn) return false;
  }
  return tokens_[at].keyword == Keyword::Select || tokens_[at].keyword == Keyword::With;
}

/// "(" has been taken.
Query* Parser::bracketedQuery() {
  Query* q = query();
  expectRightParen();
  return q;
}

Query* Parser::query() {
  const Deeper deeper(*this);
  const int outerTallest = std::exchange(tallest_, 0);
  auto* q = tree_.make<Query>();
  q->place = now().place;
  if (is(Keyword::With)) withClause(*q);
  SetOp op = SetOp::None;
  do {
    SetTerm next = term();
    next.op = op;
    q->terms.push_back(next);
  } while (setOperator(op));
  if (is(Keyword::Order)) orderBy(q->orderBy);
  // Brackets around a whole query say nothing.
  if (q->terms.size() == 1 && q->terms[0].query && q->with.empty() && q->orderBy.empty())
    q = q->terms[0].query;
  queryHeight_ = tallest_ + 1;
  if (queryHeight_ > kMaxHeight) tooDeep();
  tallest_ = std::max(outerTallest, queryHeight_);
  return q;
}

void Parser::withClause(Query& q) {
  take();
  do {
    auto* item = tree_.make<WithItem>();
    item->place = now().place;
    if (isWord("FUNCTION") || isWord("PROCEDURE")) unsupported("a function declared in WITH");
    item->name = takeName(903, "invalid table name");
    if (accept(Symbol::LeftParen)) {
      do item->columnNames.push_back(takeName(904, "invalid identifier"));
      while (accept(Symbol::Comma));
      expectRightParen();
    }
    expect(Keyword::As, 905, "missing keyword");
    expectLeftParen();
    item->query = bracketedQuery();
    if (isWord("SEARCH") || isWord("CYCLE")) unsupported("SEARCH and CYCLE of a recursive WITH");
    q.with.push_back(item);
  } while (accept(Symbol::Comma));
}

bool Parser::setOperator(SetOp& op) {
  if (accept(Keyword::Union))
    op = accept(Keyword::All) ? SetOp::UnionAll : SetOp::Union;
  else if (accept(Keyword::Minus))
    op = SetOp::Minus;
  else if (accept(Keyword::Intersect))
    op = SetOp::Intersect;
  else
    return false;
  return true;
}

SetTerm Parser::term() {
  SetTerm t;
  t.place = now().place;
  if (is(Keyword::Select))
    t.block = block();
  else if (accept(Symbol::LeftParen)) {
    if (!isQueryAt(at_)) fail(928, "missing SELECT keyword");
    t.query = bracketedQuery();
  } else
    fail(928, "missing SELECT keyword");
  return t;
}

SelectBlock* Parser::block() {
  auto* b = tree_.make<SelectBlock>();
  b->place = take().place;
  if (now().kind == TokenKind::Hint) b->hint = take().text;
  if (accept(Keyword::Distinct) || accept(Keyword::Unique))
    b->distinct = true;
  else
    accept(Keyword::All);
  selectList(*b);
  expect(Keyword::From, 923, "FROM keyword not found where expected");
  fromClause(*b);
  if (accept(Keyword::Where)) b->where = condition();
  if (is(Keyword::Start) || is(Keyword::Connect)) unsupported("CONNECT BY");
  while (true) {
    if (is(Keyword::Group) && b->groupBy.empty()) {
      groupBy(*b);
    } else if (is(Keyword::Having) && !b->having) {
      take();
      b->having = condition();
    } else {
      break;
    }
  }
  if (is(Keyword::Model)) unsupported("MODEL");
  if (is(Keyword::Offset) || is(Keyword::Fetch)) fail(933, "SQL command not properly ended");
  return b;
}

void Parser::selectList(SelectBlock& b) {
  if (is(Symbol::Star)) {
    SelectItem item;
    item.star = true;
    item.place = take().place;
    b.items.push_back(item);
    if (is(Symbol::Comma)) fail(923, "FROM keyword not found where expected");
    return;
  }
  do b.items.push_back(selectItem());
  while (accept(Symbol::Comma));
}

SelectItem Parser::selectItem() {
  SelectItem item;
  item.place = now().place;
  if (isName() && is(Symbol::Dot, 1) && is(Symbol::Star, 2)) {
    item.star = true;
    item.qualifier = nameOf(take());
    at_ += 2;
    return item;
  }
  if (isName() && is(Symbol::Dot, 1) && isName(2) && is(Symbol::Dot, 3) && is(Symbol::Star, 4))
    unsupported("schema.table.*; the table alone does");
  item.expr = value();
  const std::uint32_t end = tokens_[at_ - 1].end();
  item.text = tree_.statement().substr(item.place.offset, end - item.place.offset);
  if (accept(Keyword::As))
    item.alias = takeName(923, "FROM keyword not found where expected");
  else if (isName())
    item.alias = nameOf(take());
  return item;
}

void Parser::orderBy(List<OrderItem>& items) {
  take();
  if (is(Keyword::Siblings)) unsupported("ORDER SIBLINGS BY");
  expect(Keyword::By, 924, "missing BY keyword");
  do items.push_back(orderItem());
  while (accept(Symbol::Comma));
}

OrderItem Parser::orderItem() {
  OrderItem item;
  item.place = now().place;
  item.expr = value();
  if (accept(Keyword::Desc))
    item.descending = true;
  else
    accept(Keyword::Asc);
  if (accept(Keyword::Nulls)) {
    if (accept(Keyword::First))
      item.nulls = NullsOrder::First;
    else if (accept(Keyword::Last))
      item.nulls = NullsOrder::Last;
    else
      fail(905, "missing keyword");
  }
  return item;
}

}  // namespace oracle_sql
