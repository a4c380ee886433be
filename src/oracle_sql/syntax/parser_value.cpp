// Values: operators, literals, brackets and CASE.
#include "oracle_sql/syntax/parser_state.h"

namespace oracle_sql {

Expr* Parser::value() { return additive(false); }

/// Left to right; || binds as + and - do.
Expr* Parser::additive(bool conditionAllowed) {
  Expr* left = multiplicative(conditionAllowed);
  while (is(Symbol::Plus) || is(Symbol::Minus) || is(Symbol::Concat)) {
    if (isCondition(*left)) return left;
    const Token& op = take();
    requireValue(*left, op.place);
    Expr* right = multiplicative(false);
    Expr* made = nullptr;
    if (op.symbol == Symbol::Concat) {
      auto* node = this->node<Concat>(op.place);
      node->left = left;
      node->right = right;
      made = node;
    } else {
      auto* node = this->node<Arithmetic>(op.place);
      node->op = op.symbol == Symbol::Plus ? ArithmeticOp::Add : ArithmeticOp::Subtract;
      node->left = left;
      node->right = right;
      made = node;
    }
    above(*made, left);
    above(*made, right);
    left = made;
  }
  return left;
}

Expr* Parser::multiplicative(bool conditionAllowed) {
  Expr* left = factor(conditionAllowed);
  while (is(Symbol::Star) || is(Symbol::Slash)) {
    if (isCondition(*left)) return left;
    const Token& op = take();
    requireValue(*left, op.place);
    auto* node = this->node<Arithmetic>(op.place);
    node->op = op.symbol == Symbol::Star ? ArithmeticOp::Multiply : ArithmeticOp::Divide;
    node->left = left;
    node->right = factor(false);
    above(*node, left);
    above(*node, node->right);
    left = node;
  }
  return left;
}

Expr* Parser::factor(bool conditionAllowed) {
  if (is(Keyword::Prior)) unsupported("PRIOR");
  if (!is(Symbol::Plus) && !is(Symbol::Minus)) return primary(conditionAllowed);
  const Deeper deeper(*this);
  auto* node = this->node<Negate>(now().place);
  node->plus = take().symbol == Symbol::Plus;
  node->operand = factor(false);
  above(*node, node->operand);
  return node;
}

Expr* Parser::primary(bool conditionAllowed) {
  const Deeper deeper(*this);
  const Token& token = now();
  switch (token.kind) {
    case TokenKind::Number: {
      auto* node = this->node<NumberLiteral>(take().place);
      node->text = token.text;
      return node;
    }
    case TokenKind::String: {
      auto* node = this->node<StringLiteral>(take().place);
      node->value = tree_.copy(stringValue(token));
      return node;
    }
    case TokenKind::Bind: {
      auto* node = this->node<BindExpr>(take().place);
      node->name = nameOf(token);
      if (now().kind == TokenKind::Bind) unsupported("an indicator variable");
      return node;
    }
    case TokenKind::Symbol:
      if (is(Symbol::LeftParen)) return bracketed(conditionAllowed);
      break;
    case TokenKind::QuotedName:
      return nameOrCall();
    case TokenKind::Name: {
      bool taken = false;
      Expr* e = keywordPrimary(taken);
      if (taken) return e;
      if (!token.reserved) return nameOrCall();
      break;
    }
    case TokenKind::Hint:
    case TokenKind::End:
      break;
  }
  fail(936, "missing expression");
}

/// Expressions that start with a keyword.
Expr* Parser::keywordPrimary(bool& taken) {
  taken = true;
  const Place place = now().place;
  const bool opens = is(Symbol::LeftParen, 1);
  switch (now().keyword) {
    case Keyword::Null:
      take();
      return node<NullLiteral>(place);
    case Keyword::Case:
      return caseExpression();
    case Keyword::When:
    case Keyword::End:
      fail(936, "missing expression");
    case Keyword::Rownum:
      take();
      return node<RownumExpr>(place);
    case Keyword::Level:
      for (std::size_t ahead = 1; now(ahead).kind != TokenKind::End; ++ahead)
        if (is(Keyword::Connect, ahead)) unsupported("LEVEL of CONNECT BY");
      fail(1788, "CONNECT BY clause required in this query block");
    case Keyword::Sysdate:
    case Keyword::User:
    case Keyword::Uid: {
      auto* c = node<Call>(place);
      c->name = nameOf(take());
      c->bare = true;
      return c;
    }
    case Keyword::Date: {
      if (now(1).kind != TokenKind::String) break;
      take();
      auto* d = node<DateLiteral>(place);
      d->value = tree_.copy(stringValue(take()));
      return d;
    }
    case Keyword::Timestamp:
      if (now(1).kind == TokenKind::String) unsupported("a TIMESTAMP");
      break;
    case Keyword::Interval:
      if (now(1).kind == TokenKind::String) unsupported("an INTERVAL");
      break;
    case Keyword::Cast:
      if (opens) return cast();
      break;
    case Keyword::Trim:
      if (opens) return trim();
      break;
    case Keyword::Extract:
      if (opens) return extract();
      break;
    default:
      if (isWord("ROWID")) unsupported("ROWID");
      if (isWord("CURSOR") && opens && isQueryAt(at_ + 2)) unsupported("CURSOR(...)");
      if (isWord("MULTISET") && opens) unsupported("MULTISET");
      break;
  }
  taken = false;
  return nullptr;
}

/// A subquery, a value, and where a condition may stand a condition or a row.
Expr* Parser::bracketed(bool conditionAllowed) {
  const Place place = take().place;
  if (isQueryAt(at_)) {
    auto* node = this->node<SubqueryExpr>(place);
    node->query = bracketedQuery();
    heighten(*node, queryHeight_ + 1);
    return node;
  }
  Expr* e = conditionAllowed ? orTerms() : value();
  if (conditionAllowed && !isCondition(*e) && is(Symbol::Comma)) {
    auto* row = node<RowExpr>(place);
    row->items.push_back(e);
    above(*row, e);
    while (accept(Symbol::Comma)) {
      row->items.push_back(value());
      above(*row, row->items.back());
    }
    e = row;
  }
  expectRightParen();
  // (date - date) DAY TO SECOND
  if ((isWord("DAY") || isWord("YEAR")) && (is(Keyword::To, 1) || is(Symbol::LeftParen, 1)))
    unsupported("an INTERVAL");
  return e;
}

Expr* Parser::caseExpression() {
  auto* c = node<CaseExpr>(take().place);
  if (!is(Keyword::When)) {
    c->operand = value();
    above(*c, c->operand);
  }
  while (accept(Keyword::When)) {
    CaseWhen w;
    w.when = c->operand ? value() : condition();
    expect(Keyword::Then, 905, "missing keyword");
    w.then = value();
    above(*c, w.when);
    above(*c, w.then);
    c->whens.push_back(w);
  }
  if (c->whens.empty()) fail(905, "missing keyword");
  if (accept(Keyword::Else)) {
    c->otherwise = value();
    above(*c, c->otherwise);
  }
  expect(Keyword::End, 905, "missing keyword");
  return c;
}

}  // namespace oracle_sql
