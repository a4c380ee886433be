// The tree as indented lines: one member for each kind of node, spread over dump*.cpp.
#pragma once

#include <initializer_list>
#include <string>
#include <utility>

#include "oracle_sql/syntax/tree.h"

namespace oracle_sql {

class Dump {
 public:
  /// With `resolved` the lines tell what resolving has found too.
  explicit Dump(bool resolved) : resolved_(resolved) {}

  std::string take() { return std::move(out_); }

  void query(const Query& q);
  void expr(const Expr& e);

 private:
  class Indent {
   public:
    explicit Indent(Dump& d) : dump_(d) { ++dump_.depth_; }
    ~Indent() { --dump_.depth_; }
    Indent(const Indent&) = delete;
    Indent& operator=(const Indent&) = delete;

   private:
    Dump& dump_;
  };

  // dump.cpp: queries and blocks
  void block(const SelectBlock& b);
  void groupings(const List<GroupingTerm*>& terms);
  void grouping(GroupingSet set, std::size_t keys);
  void columns(const List<OutputColumn>& list);
  void from(const FromItem& f);
  void join(const JoinItem& j);
  void pivot(const PivotItem& p, const std::string& alias);
  void order(const char* title, const List<OrderItem>& items);

  // dump_expression.cpp
  static std::string typeText(Type type);
  void head(const Expr& e, const std::string& text);
  void below(std::initializer_list<const Expr*> parts);
  void below(const ExprList& parts);
  void below(const Query* q);
  void part(const char* name, const Expr* e);
  void column(const ColumnRef& c);
  void call(const Call& c);
  void bound(const FrameBound& b);

  void line(const std::string& text) { out_ += std::string(depth_ * 2, ' ') + text + '\n'; }

  bool resolved_;
  std::size_t depth_ = 0;
  std::string out_;
};

}  // namespace oracle_sql
