// From tree to text: one member for each kind of node, spread over printer*.cpp.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "oracle_sql/syntax/spelling.h"
#include "oracle_sql/syntax/tree.h"
#include "support/statement_text/quoting.h"

namespace oracle_sql {

class Printer {
 public:
  /// How tightly a construct binds; brackets go around what binds less than its place asks for.
  enum Level { kOr = 1, kAnd, kNot, kPredicate, kAdditive, kMultiplicative, kUnary, kPrimary };

  std::string take() { return std::move(out_); }

  void query(const Query& q);
  void expr(const Expr& e, Level least = kOr);

 private:
  // printer.cpp: queries and blocks
  void bracketed(const Query& q);
  void name(std::string_view n) { out_ += quotedIfNeeded(n); }
  void names(const List<std::string_view>& list);
  void list(const ExprList& items);
  void block(const SelectBlock& b);
  void groupings(const List<GroupingTerm*>& terms);
  void item(const SelectItem& s);
  void alias(const char* lead, std::string_view a);
  void from(const FromItem& f);
  void join(const JoinItem& j);
  void pivot(const PivotItem& p);
  void order(const List<OrderItem>& items);

  // printer_expression.cpp
  static Level levelOf(const Expr& e);
  void binary(const Expr& left, Level leftLeast, std::string_view op, const Expr& right, Level rightLeast);
  void terms(const ExprList& list, const char* op, Level least);
  void bare(const Expr& e);
  void caseExpr(const CaseExpr& c);

  // printer_call.cpp
  static bool plainCallName(const Call& c);
  void call(const Call& c);
  void window(const Window& w);
  void bound(const FrameBound& b);

  std::string out_;
};

}  // namespace oracle_sql
