// Queries, their parts, and the tree that owns them.
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "oracle_sql/syntax/expression.h"
#include "oracle_sql/syntax/grouping.h"

namespace oracle_sql {

struct CatalogueTable;

/// A column that a FROM item, a block or a query gives.
struct OutputColumn {
  std::string_view
      name;  ///< upper case unless quoted; of an expression its text without blanks, in upper case
  Type type;
  Expr* expr = nullptr;  ///< of a SelectBlock: what is computed; else null
};

/// One item of a select list as written: an expression, * or t.*.
struct SelectItem {
  bool star = false;
  std::string_view qualifier;  ///< of t.*
  Expr* expr = nullptr;        ///< null for a star
  std::string_view alias;      ///< empty if not written
  std::string_view text;       ///< of the expression, as written
  Place place;
};

enum class FromKind : std::uint8_t { Table, Derived, Join, Pivot };

/// Base of what stands in FROM. After resolving `columns` are what it offers under its name (empty for a
/// Join).
struct FromItem {
  FromKind kind;
  std::uint16_t height = 1;  ///< of the tree below, 1 for a table
  Place place;
  std::string_view alias;  ///< upper case unless quoted; empty if not written
  List<OutputColumn> columns;

 protected:
  FromItem(FromKind k, std::pmr::memory_resource* m) : kind(k), columns(m) {}
};

struct WithItem;

struct TableItem : FromItem {
  static constexpr FromKind kKind = FromKind::Table;
  explicit TableItem(std::pmr::memory_resource* m) : FromItem(kKind, m) {}
  std::string_view schema;
  std::string_view name;

  // Resolved: exactly one of these, or neither for DUAL.
  const CatalogueTable* table = nullptr;
  const WithItem* with = nullptr;
  bool isDual = false;
};

struct DerivedItem : FromItem {
  static constexpr FromKind kKind = FromKind::Derived;
  explicit DerivedItem(std::pmr::memory_resource* m) : FromItem(kKind, m) {}
  Query* query = nullptr;
};

enum class JoinKind : std::uint8_t { Inner, Left, Right, Full, Cross };

/// A column merged by USING: the left one, the right one in a RIGHT join, the first that is not
/// null in a FULL join. Either side may itself be a merged column of a Join below.
struct MergedColumn {
  std::string_view name;
  Type type;
  const FromItem* leftSource = nullptr;
  int leftColumn = -1;
  const FromItem* rightSource = nullptr;
  int rightColumn = -1;
};

struct JoinItem : FromItem {
  static constexpr FromKind kKind = FromKind::Join;
  explicit JoinItem(std::pmr::memory_resource* m) : FromItem(kKind, m), usingNames(m), merged(m) {}
  JoinKind join = JoinKind::Inner;
  FromItem* left = nullptr;
  FromItem* right = nullptr;
  Expr* on = nullptr;  ///< null for CROSS and USING
  List<std::string_view> usingNames;

  List<MergedColumn> merged;  ///< resolved
};

struct PivotAggregate {
  Call* call = nullptr;
  std::string_view alias;  ///< empty if not written
};

struct PivotValue {
  explicit PivotValue(std::pmr::memory_resource* m) : values(m) {}
  ExprList values;         ///< as many as FOR has columns
  std::string_view alias;  ///< empty if not written
  std::string_view text;   ///< as written
};

/// item PIVOT (aggregates FOR columns IN (values)). Its columns are, in this order, the columns of the source
/// that it does not name (these group), then for each value one for each aggregate.
struct PivotItem : FromItem {
  static constexpr FromKind kKind = FromKind::Pivot;
  explicit PivotItem(std::pmr::memory_resource* m)
      : FromItem(kKind, m), aggregates(m), forColumns(m), values(m), groupColumns(m) {}
  FromItem* source = nullptr;
  List<PivotAggregate> aggregates;
  List<ColumnRef*> forColumns;
  List<PivotValue> values;

  List<int> groupColumns;  ///< resolved: indexes in source->columns
};

/// One grouping of a GROUP BY: a bit for each of its expressions, the first one's the lowest.
using GroupingSet = std::uint64_t;

struct SelectBlock {
  explicit SelectBlock(std::pmr::memory_resource* m)
      : items(m), from(m), groupBy(m), grouping(m), columns(m), groupingSets(m) {}
  Place place;
  std::string_view hint;  ///< the comment as written, or empty
  bool distinct = false;
  List<SelectItem> items;
  List<FromItem*> from;
  Expr* where = nullptr;
  ExprList groupBy;              ///< all expressions, also those in ROLLUP and its like
  List<GroupingTerm*> grouping;  ///< GROUP BY as written if it has ROLLUP or (); else empty
  Expr* having = nullptr;

  // Resolved.
  List<OutputColumn> columns;      ///< the select list with stars replaced by the columns they stand for
  List<GroupingSet> groupingSets;  ///< the groupings that `grouping` asks for; equal ones may come twice
  bool grouped = false;            ///< GROUP BY or an aggregate
  bool windowed = false;           ///< a window function in the select list or in ORDER BY
  bool nestedAggregates = false;   ///< as in SUM(AVG(x)): one row over the groups
  bool usesRownum = false;
  bool outerMarks = false;  ///< (+) in WHERE
};

enum class SetOp : std::uint8_t { None, Union, UnionAll, Intersect, Minus };

/// One branch of a compound query: a block, or a query in brackets.
struct SetTerm {
  SetOp op = SetOp::None;  ///< how it joins what stands left of it; None for the first
  SelectBlock* block = nullptr;
  Query* query = nullptr;
  Place place;
};

struct WithItem {
  explicit WithItem(std::pmr::memory_resource* m) : columnNames(m) {}
  Place place;
  std::string_view name;
  List<std::string_view> columnNames;  ///< empty if not written
  Query* query = nullptr;
  List<OutputColumn>* columns = nullptr;  ///< resolved: those of the query under the names of the list
  int uses = 0;                           ///< resolved: times it is named
};

/// WITH items, branches joined left to right at one precedence, and the order of the whole. The columns are
/// those of the first branch by name and the common types of all.
struct Query {
  explicit Query(std::pmr::memory_resource* m) : with(m), terms(m), orderBy(m), columns(m) {}
  Place place;
  List<WithItem*> with;
  List<SetTerm> terms;
  List<OrderItem> orderBy;

  // Resolved.
  List<OutputColumn> columns;
  bool correlated = false;  ///< names a column of a query around it

  /// The block of a query that is just one, else null.
  SelectBlock* single() const { return terms.size() == 1 ? terms.front().block : nullptr; }
};

template <class T>
T* as(FromItem* f) {
  return f && f->kind == T::kKind ? static_cast<T*>(f) : nullptr;
}
template <class T>
const T* as(const FromItem* f) {
  return f && f->kind == T::kKind ? static_cast<const T*>(f) : nullptr;
}

/// A statement with every node of it. Nodes are made by make(), also by those who rewrite the tree.
class Tree {
 public:
  explicit Tree(std::string_view statement)
      : memory_(std::make_unique<std::pmr::monotonic_buffer_resource>(16 * 1024)),
        statement_(copy(statement)) {}

  /// The text that all names and places point into.
  std::string_view statement() const { return statement_; }
  Query* query() const { return query_; }
  void setQuery(Query* query) { query_ = query; }

  std::pmr::memory_resource* memory() const { return memory_.get(); }
  /// The text, kept as long as the tree.
  std::string_view copy(std::string_view text);
  /// A new node of the tree.
  template <class T>
  T* make() {
    void* place = memory_->allocate(sizeof(T), alignof(T));
    if constexpr (std::is_constructible_v<T, std::pmr::memory_resource*>)
      return new (place) T(memory_.get());
    else
      return new (place) T();
  }

 private:
  std::unique_ptr<std::pmr::monotonic_buffer_resource> memory_;
  std::string_view statement_;
  Query* query_ = nullptr;
};

}  // namespace oracle_sql
