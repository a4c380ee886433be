// The recursive-descent parser: one member for each rule of the grammar, spread over parser*.cpp.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "oracle_sql/syntax/error.h"
#include "oracle_sql/syntax/token.h"
#include "oracle_sql/syntax/tree.h"

namespace oracle_sql {

class Parser {
 public:
  Parser(Tree& tree, std::vector<Token> tokens);

  /// The whole statement.
  Query* statement();

 private:
  // parser.cpp: queries and blocks
  Query* query();
  void withClause(Query& q);
  SetTerm term();
  bool setOperator(SetOp& op);
  SelectBlock* block();
  void selectList(SelectBlock& b);
  SelectItem selectItem();
  void orderBy(List<OrderItem>& items);
  OrderItem orderItem();
  bool isQueryAt(std::size_t at) const;
  Query* bracketedQuery();

  // parser_grouping.cpp: GROUP BY
  void groupBy(SelectBlock& b);
  GroupingTerm* groupingTerm(SelectBlock& b);
  GroupingTerm* groupingKeys(SelectBlock& b);

  // parser_from.cpp: FROM
  void fromClause(SelectBlock& b);
  FromItem* joined();
  FromItem* joinsOf(FromItem* left);
  bool joinStart(std::size_t ahead = 0) const;
  bool joinOperator(JoinKind& kind);
  FromItem* fromPrimary();
  FromItem* table();
  FromItem* pivot(FromItem* source);
  bool tableAliasFollows() const;

  // parser_condition.cpp and parser_value.cpp
  Expr* condition();
  Expr* value();
  Expr* orTerms();
  Expr* andTerms();
  Expr* notTerm();
  Expr* predicate();
  Expr* comparison(Expr* left, CompareOp op);
  void valueList(const Expr& left, InExpr& node);
  Expr* additive(bool conditionAllowed);
  Expr* multiplicative(bool conditionAllowed);
  Expr* factor(bool conditionAllowed);
  Expr* primary(bool conditionAllowed);
  Expr* bracketed(bool conditionAllowed);
  Expr* caseExpression();
  Expr* keywordPrimary(bool& taken);
  void requireCondition(const Expr& e);
  void requireValue(const Expr& e, Place operatorPlace);

  // parser_call.cpp: names and calls
  Expr* nameOrCall();
  Expr* call(std::string_view package, std::string_view name, Place place);
  Expr* trim();
  Expr* extract();
  Expr* cast();
  void castType(CastExpr& c);
  bool nullTreatment(Call& c);
  void keepClause(Call& c);
  void overClause(Call& c);
  void frame(Window& w);
  FrameBound frameBound();

  // Tokens.
  const Token& now(std::size_t ahead = 0) const { return tokens_[std::min(at_ + ahead, tokens_.size() - 1)]; }
  const Token& take() { return tokens_[at_ + 1 < tokens_.size() ? at_++ : at_]; }
  bool is(Keyword k, std::size_t ahead = 0) const {
    return now(ahead).kind == TokenKind::Name && now(ahead).keyword == k;
  }
  bool is(Symbol s, std::size_t ahead = 0) const {
    return now(ahead).kind == TokenKind::Symbol && now(ahead).symbol == s;
  }
  bool isWord(std::string_view upperCase, std::size_t ahead = 0) const;
  template <class T>
  bool accept(T what) {
    if (!is(what)) return false;
    ++at_;
    return true;
  }
  template <class T>
  void expect(T what, int oraCode, const char* message) {
    if (!accept(what)) fail(oraCode, message);
  }
  void expectRightParen() { expect(Symbol::RightParen, 907, "missing right parenthesis"); }
  void expectLeftParen() { expect(Symbol::LeftParen, 906, "missing left parenthesis"); }
  /// A name that is quoted or not reserved.
  bool isName(std::size_t ahead = 0) const {
    return now(ahead).kind == TokenKind::QuotedName ||
           (now(ahead).kind == TokenKind::Name && !now(ahead).reserved);
  }
  /// The name as Oracle stores it.
  std::string_view nameOf(const Token& token);
  std::string_view takeName(int oraCode, const char* message);

  [[noreturn]] void fail(int oraCode, const char* message) const { fail(oraCode, message, now().place); }
  [[noreturn]] static void fail(int oraCode, const char* message, Place place) {
    throw SqlError::wrong(oraCode, message, place);
  }
  [[noreturn]] void unsupported(const char* construct) const {
    throw SqlError::unsupported(construct, now().place);
  }

  // Nodes.
  template <class T>
  T* node(Place place) {
    T* made = tree_.make<T>();
    made->place = place;
    tallest_ = std::max<int>(tallest_, 1);
    return made;
  }
  /// Sets the height of a node above its operand.
  void above(Expr& node, const Expr* operand) {
    if (operand) heighten(node, operand->height + 1);
  }
  template <class Node>
  void heighten(Node& node, int height) {
    if (height > kMaxHeight) tooDeep();
    if (height > node.height) node.height = static_cast<std::uint16_t>(height);
    tallest_ = std::max<int>(tallest_, height);
  }

  /// Counts what is open inside each other.
  class Deeper {
   public:
    explicit Deeper(Parser& p) : parser_(p) {
      if (++parser_.nesting_ > kMaxNesting) parser_.tooDeep();
    }
    ~Deeper() { --parser_.nesting_; }
    Deeper(const Deeper&) = delete;
    Deeper& operator=(const Deeper&) = delete;

   private:
    Parser& parser_;
  };
  [[noreturn]] void tooDeep() const;

  Tree& tree_;
  std::vector<Token> tokens_;
  std::vector<std::uint32_t> closing_;  ///< for each "(" its ")", for others 0
  std::size_t at_ = 0;
  int nesting_ = 0;
  int tallest_ = 0;      ///< height of the tallest expression of the query that is being read
  int queryHeight_ = 0;  ///< height of the query that was read last
};

}  // namespace oracle_sql
