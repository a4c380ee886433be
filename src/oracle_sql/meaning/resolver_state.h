// The resolver: one member for each construct, spread over resolver*.cpp.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "oracle_sql/meaning/resolver.h"
#include "oracle_sql/meaning/set_functions.h"

namespace oracle_sql {

class Resolver {
 public:
  Resolver(Tree& tree, const Catalogue& catalogue, const BindTypes& binds)
      : tree_(tree), catalogue_(catalogue), binds_(binds) {}

  void statement();

 private:
  /// The WITH items that a query sees.
  struct WithScope {
    const WithScope* outer;
    const List<WithItem*>* items;
    std::size_t visible;  ///< those before this one
  };

  /// The FROM items that the names of a block see, and the blocks around it.
  struct Scope {
    const Scope* outer = nullptr;
    const WithScope* with = nullptr;
    SelectBlock* block = nullptr;  ///< null inside PIVOT
    std::vector<FromItem*> items;
    std::size_t queries = 0;  ///< active queries when the block began
  };

  /// Where an expression stands.
  struct Env {
    const Scope* scope;
    bool aggregates = false;  ///< allowed
    bool windows = false;     ///< allowed
    int aggregateDepth = 0;   ///< calls of aggregates around
    bool having = false;      ///< in HAVING
    bool joins = false;       ///< in ON
    bool outerMarks = false;  ///< (+) allowed
    bool aliases = false;     ///< names of the select list are seen first
  };

  struct Found {
    const FromItem* source = nullptr;
    int column = -1;
    int matches = 0;
  };

  // resolver.cpp
  void query(Query& q, const Scope* outer, const WithScope* with);
  void withItems(Query& q, WithScope& own);
  void block(SelectBlock& b, const Scope* outer, const WithScope* with, List<OrderItem>* orderBy);
  void selectList(SelectBlock& b, const Scope& scope);
  void star(SelectBlock& b, const Scope& scope, const SelectItem& item);
  void combineTerms(Query& q);
  void orderCombined(Query& q);
  void orderBlock(SelectBlock& b, const Scope& scope, List<OrderItem>& items);
  int position(const Expr& e, std::size_t columns) const;
  int outputNamed(const List<OutputColumn>& columns, const ColumnRef& c) const;
  std::string_view columnName(const SelectItem& item);

  // resolver_from.cpp
  void from(FromItem& f, const Scope* outer, const WithScope* with, SelectBlock& b);
  void table(TableItem& t, const WithScope* with);
  void join(JoinItem& j, const Scope* outer, const WithScope* with, SelectBlock& b);
  void merge(JoinItem& j, std::string_view name, Place place);
  void pivot(PivotItem& p, const WithScope* with);
  void expose(FromItem& f, const List<OutputColumn>& columns);
  void visible(const FromItem& f, std::vector<Found>& list) const;

  // resolver_names.cpp
  void column(ColumnRef& c, const Env& env);
  void search(const FromItem& f, std::string_view name, Found& found) const;
  const FromItem* leafNamed(const FromItem& f, const ColumnRef& c, int& leaves,
                            const JoinItem*& merged) const;
  static const OutputColumn& columnAt(const Found& found, OutputColumn& room);
  [[noreturn]] static void unknownName(const ColumnRef& c);

  // resolver_expression.cpp
  Type value(Expr& e, const Env& env);
  void condition(Expr& e, const Env& env);
  Type resolved(Expr& e, const Env& env);
  Type caseType(CaseExpr& c, const Env& env);
  Type arithmeticType(const Arithmetic& a, Type left, Type right) const;
  [[noreturn]] static void inconsistent(Type expected, Type got, Place place);
  void comparable(Type left, Type right, Place place) const;
  void listAgainst(const Expr& left, const ExprList& list, const Env& env);
  void compareRows(const Expr& left, const Expr& right) const;
  void subqueryAgainst(const Expr& operand, Query& q, const Env& env, Place place);
  void subquery(Query& q, const Env& env);
  void checkDate(const DateLiteral& d) const;

  // resolver_calls.cpp
  Type call(Call& c, const Env& env);
  Type setFunction(Call& c, const SetFunction& f, const Env& env);
  Type scalarCall(Call& c, const Env& env);
  void checkArguments(const Call& c) const;
  Type setFunctionType(const Call& c, const SetFunction& f) const;
  void window(Call& c, const SetFunction& f, const Env& env);
  void checkConstancy(const Call& c, const Env& env) const;
  void countArguments(const Call& c, int low, int high) const;

  // resolver_grouping.cpp
  void groupings(SelectBlock& b) const;
  static bool tellsOfGrouping(const Call& c);
  Type groupingFunction(Call& c, const Env& env);
  void checkGrouping(SelectBlock& b, const List<OrderItem>* orderBy) const;
  void grouped(const Expr& e, const SelectBlock& b, int level, bool overGroups) const;
  void groupedQuery(const Query& q, const SelectBlock& b, int level, bool overGroups) const;

  // resolver_checks.cpp
  void checkOuterMarks(SelectBlock& b) const;

  [[noreturn]] static void fail(int oraCode, const std::string& message, Place place) {
    throw SqlError::wrong(oraCode, message, place);
  }

  Tree& tree_;
  const Catalogue& catalogue_;
  const BindTypes& binds_;
  std::vector<Query*> active_;  ///< from the statement inwards
};

}  // namespace oracle_sql
