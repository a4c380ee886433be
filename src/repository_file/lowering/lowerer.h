// What the rules of the lowering share: the one entry to lower what stands inside a node, and what has been
// found out about the statement on the way.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "oracle_sql/syntax/error.h"
#include "oracle_sql/syntax/tree.h"
#include "repository_file/lowering/lowering.h"
#include "repository_file/lowering/sqlite_tree.h"

namespace kestrelix::repository_file {

/// A whole number divided by a power of ten, which is exact: another division may be joined to it.
struct ExactQuotient {
  const lite::Expr* dividend = nullptr;  ///< null for any other expression
  std::int64_t divisor = 1;
  double largest = 0;  ///< no absolute value of the dividend is above
};

/// A value in SQLite's terms, with what is known of it. A condition has no kind.
struct Value {
  const lite::Expr* node = nullptr;
  sql::TypeKind kind = sql::TypeKind::Null;
  NumberFacts number = {};
  bool cheap = false;    ///< a name or a literal: may be computed more than once
  bool present = false;  ///< never NULL
  ExactQuotient quotient = {};
};

/// A column of a FROM item under the name that SQLite knows it by.
struct SourceColumn {
  std::string_view name;
  sql::TypeKind kind = sql::TypeKind::Null;
  NumberFacts number = {};
};

/// A FROM item under its alias, which is unique in the whole statement: so no inner name can hide an outer
/// one.
struct Source {
  std::string_view alias;
  std::vector<SourceColumn> columns;
};

/// A subquery that a block has been put into, so that ROWNUM is counted before the block groups or sorts. The
/// block's own expressions then read these columns, which are found while they are lowered.
struct Wrap {
  std::string_view alias;
  std::unordered_set<const sql::FromItem*> sources;
  std::map<std::pair<const sql::FromItem*, int>, std::string_view> exports;
};

/// A column of a block whose rows matter only where it has that value.
struct KeyTest {
  const sql::ColumnRef* column;
  const sql::Expr* value;  ///< a bind or a literal
  sql::Place place;
};

/// Which columns of a block's select list are read by the blocks around it.
using UsedColumns = std::unordered_map<const sql::SelectBlock*, std::vector<bool>>;

/// A lowered query with the facts of its columns.
struct LoweredQuery {
  lite::Query* query = nullptr;
  std::vector<SourceColumn> columns;
  std::vector<Value> outputs;  ///< of a block: its select list, in words that hold inside the block
};

/// Sets a variable for as long as it lives itself.
template <class T>
class Within {
 public:
  Within(T& variable, T value) : variable_(variable), before_(std::exchange(variable, std::move(value))) {}
  ~Within() { variable_ = std::move(before_); }
  Within(const Within&) = delete;

 private:
  T& variable_;
  T before_;
};

class Lowerer : public lite::Builder {
 public:
  Lowerer(const sql::Tree& tree, const LoweringFacts& known) : facts(known), tree_(tree) {}

  LoweredStatement statement();

  /// A value or a condition, by the first rule that takes it.
  Value lower(const sql::Expr& expr);
  LoweredQuery lower(const sql::Query& query);
  /// The block with the order of the query that it alone makes up (`order` may be null).
  LoweredQuery lower(const sql::SelectBlock& block, const sql::List<sql::OrderItem>* order);
  /// A FROM item with its alias, made known to the expressions that follow: one source, or those of a join.
  lite::From lower(const sql::FromItem& item);
  const lite::Expr* condition(const sql::Expr& expr) { return lower(expr).node; }
  /// Lowered and brought to the type.
  Value lowerAs(const sql::Expr& expr, sql::TypeKind target) {
    return converted(lower(expr), target, expr.place);
  }

  /// The column of a FROM item, from where it can be read.
  Value column(const sql::FromItem* item, int index);
  Value column(std::string_view source, const SourceColumn& column);
  void define(const sql::FromItem* item, Source source) { sources_[item] = std::move(source); }
  std::string_view uniqueAlias(std::string_view wish);
  int newRownumCounter() { return result_.rownumCounters++; }
  void addFrameBind(std::string_view bind) { result_.frameBinds.emplace_back(bind); }

  /// A value of the function `name` of the language with these arguments, failing at `place`.
  Value function(std::string_view name, std::span<const Value> arguments, sql::Type type, sql::Place place);
  /// `value` brought to the type, as Oracle converts it by itself.
  Value converted(Value value, sql::TypeKind target, sql::Place place);

  const lite::Expr* place(sql::Place place) { return integer(place.offset); }
  const lite::Expr* allOf(lite::Nodes conditions) { return operation(lite::Operator::And, conditions); }

  const LoweringFacts& facts;
  /// The values that stand for expressions whose results are taken from an inner block, by node.
  std::unordered_map<const sql::Expr*, Value> replacements;
  /// The tests that a block takes from the blocks around it.
  std::unordered_map<const sql::SelectBlock*, std::vector<KeyTest>> keyTests;
  UsedColumns usedColumns;
  /// Of the block that is being lowered, and of those around it.
  std::vector<Wrap*> wraps;
  /// ROWNUM in the block that is being lowered; null where it cannot stand.
  const lite::Expr* rownum = nullptr;
  /// A column of the block that is being lowered which ties an aggregate to it; null where none needs it.
  const lite::Expr* anchor = nullptr;
  /// The rows that the aggregate which is being lowered takes; null for all.
  const lite::Expr* filter = nullptr;
  /// The select list that names in ORDER BY may stand for, while that is lowered; else null.
  const std::vector<Value>* outputs = nullptr;

 private:
  const sql::Tree& tree_;
  LoweredStatement result_;
  std::vector<lite::Named> named_;  ///< in front of the statement
  std::unordered_map<const void*, Source> sources_;
  std::unordered_map<const sql::WithItem*, lite::Query*> repeated_;  ///< queries that stand at each use
  std::unordered_set<std::string> aliases_;
};

/// The facts of a value that is one of several; NULL adds none.
class CommonFacts {
 public:
  void add(const Value& value);
  /// What all the values have in common.
  NumberFacts facts() const { return any_ ? facts_ : NumberFacts{}; }

 private:
  NumberFacts facts_;
  bool any_ = false;
};

}  // namespace kestrelix::repository_file
