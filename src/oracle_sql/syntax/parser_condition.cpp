// Values and conditions. A value is never taken for a condition or the other way round; only inside brackets
// the two are told apart after they were read.
#include "oracle_sql/syntax/parser_state.h"

namespace oracle_sql {

Expr* Parser::condition() {
  Expr* e = orTerms();
  requireCondition(*e);
  return e;
}

/// The token behind a value that should have been compared with something.
void Parser::requireCondition(const Expr& e) {
  if (!isCondition(e)) fail(920, "invalid relational operator");
}

void Parser::requireValue(const Expr& e, Place operatorPlace) {
  if (isCondition(e)) fail(933, "SQL command not properly ended", operatorPlace);
  if (e.kind == ExprKind::Row) fail(907, "missing right parenthesis", operatorPlace);
}

Expr* Parser::orTerms() {
  Expr* first = andTerms();
  if (!is(Keyword::Or)) return first;
  requireCondition(*first);
  auto* node = this->node<OrExpr>(first->place);
  node->terms.push_back(first);
  above(*node, first);
  while (accept(Keyword::Or)) {
    Expr* next = andTerms();
    requireCondition(*next);
    node->terms.push_back(next);
    above(*node, next);
  }
  return node;
}

Expr* Parser::andTerms() {
  Expr* first = notTerm();
  if (!is(Keyword::And)) return first;
  requireCondition(*first);
  auto* node = this->node<AndExpr>(first->place);
  node->terms.push_back(first);
  above(*node, first);
  while (accept(Keyword::And)) {
    Expr* next = notTerm();
    requireCondition(*next);
    node->terms.push_back(next);
    above(*node, next);
  }
  return node;
}

Expr* Parser::notTerm() {
  if (!is(Keyword::Not)) return predicate();
  const Deeper deeper(*this);
  auto* node = this->node<NotExpr>(take().place);
  node->operand = notTerm();
  requireCondition(*node->operand);
  above(*node, node->operand);
  return node;
}

/// The list of IN: values, or rows if the left side is one.
void Parser::valueList(const Expr& left, InExpr& node) {
  const bool rows = left.kind == ExprKind::Row;
  do {
    Expr* item = additive(rows);
    if (isCondition(*item)) fail(907, "missing right parenthesis", item->place);
    if (rows != (item->kind == ExprKind::Row)) fail(920, "invalid relational operator", item->place);
    node.list.push_back(item);
    above(node, item);
  } while (accept(Symbol::Comma));
}

Expr* Parser::comparison(Expr* left, CompareOp op) {
  const Place place = take().place;
  auto* node = this->node<Compare>(place);
  node->op = op;
  node->left = left;
  above(*node, left);
  if (left->kind == ExprKind::Row && op != CompareOp::Equal && op != CompareOp::NotEqual)
    fail(1796, "this operator cannot be used with lists", place);
  if ((is(Keyword::Any) || is(Keyword::Some) || is(Keyword::All)) && is(Symbol::LeftParen, 1))
    unsupported("a comparison with ANY, SOME or ALL");
  node->right = additive(left->kind == ExprKind::Row);
  if (left->kind == ExprKind::Row) {
    // (a, b) = ((1, 2)) comes as a row already; (a, b) = (select ..) as a subquery.
    if (node->right->kind != ExprKind::Row && node->right->kind != ExprKind::Subquery)
      fail(920, "invalid relational operator", node->right->place);
  } else {
    requireValue(*node->right, node->right->place);
  }
  above(*node, node->right);
  return node;
}

Expr* Parser::predicate() {
  if (is(Keyword::Exists)) {
    const Deeper deeper(*this);
    auto* node = this->node<Exists>(take().place);
    expectLeftParen();
    if (!isQueryAt(at_)) fail(936, "missing expression");
    node->query = bracketedQuery();
    heighten(*node, queryHeight_ + 1);
    return node;
  }
  if (isWord("LNNVL") && is(Symbol::LeftParen, 1)) {
    const Deeper deeper(*this);
    auto* node = this->node<Lnnvl>(take().place);
    take();
    node->operand = condition();
    above(*node, node->operand);
    expectRightParen();
    return node;
  }
  if (isWord("REGEXP_LIKE") && is(Symbol::LeftParen, 1)) unsupported("function REGEXP_LIKE");
  Expr* left = additive(true);
  if (isCondition(*left)) return left;

  switch (now().symbol) {
    case Symbol::Equal:
      return comparison(left, CompareOp::Equal);
    case Symbol::NotEqual:
      return comparison(left, CompareOp::NotEqual);
    case Symbol::Less:
      return comparison(left, CompareOp::Less);
    case Symbol::LessEqual:
      return comparison(left, CompareOp::LessEqual);
    case Symbol::Greater:
      return comparison(left, CompareOp::Greater);
    case Symbol::GreaterEqual:
      return comparison(left, CompareOp::GreaterEqual);
    default:
      break;
  }

  if (is(Keyword::Is)) {
    auto* node = this->node<IsNull>(take().place);
    requireValue(*left, node->place);
    node->negated = accept(Keyword::Not);
    if (isWord("NAN") || isWord("INFINITE")) unsupported("IS NAN and IS INFINITE");
    if (is(Keyword::Of) || isWord("EMPTY") || isWord("DANGLING")) unsupported("IS with anything but NULL");
    if (!accept(Keyword::Null)) fail(908, "missing NULL keyword");
    node->operand = left;
    above(*node, left);
    return node;
  }

  bool negated = false;
  if (is(Keyword::Not)) {
    if (!is(Keyword::In, 1) && !is(Keyword::Like, 1) && !is(Keyword::Between, 1))
      fail(920, "invalid relational operator");
    take();
    negated = true;
  }
  if (is(Keyword::In)) {
    auto* node = this->node<InExpr>(take().place);
    node->negated = negated;
    node->operand = left;
    above(*node, left);
    const Deeper deeper(*this);
    expectLeftParen();
    if (isQueryAt(at_)) {
      node->query = query();
      heighten(*node, queryHeight_ + 1);
    } else {
      valueList(*left, *node);
    }
    expectRightParen();
    return node;
  }
  if (is(Keyword::Like2) || is(Keyword::Like4) || is(Keyword::Likec)) unsupported("LIKE2, LIKE4 and LIKEC");
  if (is(Keyword::Like)) {
    auto* node = this->node<LikeExpr>(take().place);
    requireValue(*left, node->place);
    node->negated = negated;
    node->operand = left;
    node->pattern = value();
    if (accept(Keyword::Escape)) node->escape = value();
    above(*node, left);
    above(*node, node->pattern);
    above(*node, node->escape);
    return node;
  }
  if (is(Keyword::Between)) {
    auto* node = this->node<Between>(take().place);
    requireValue(*left, node->place);
    node->negated = negated;
    node->operand = left;
    node->low = value();
    expect(Keyword::And, 905, "missing keyword");
    node->high = value();
    above(*node, left);
    above(*node, node->low);
    above(*node, node->high);
    return node;
  }
  return left;
}

}  // namespace oracle_sql
