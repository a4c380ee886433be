// SQLite's SQL as a tree: the rules of the lowering build it, the printer writes it. A node may stand in
// several places. Nodes live in the memory of their Builder and are never destroyed one by one.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory_resource>
#include <span>
#include <string_view>
#include <vector>

namespace kestrelix::repository_file::lite {

template <class T>
using List = std::pmr::vector<T>;
using Memory = std::pmr::memory_resource;

/// Of the 127 arguments that SQLite hands to a function, those that one is given.
inline constexpr std::size_t kMostArguments = 100;

enum class Kind : std::uint8_t {
  Null,
  Star,  ///< of a select list and of count(*)
  Integer,
  Blob,
  Text,
  Parameter,
  Column,
  Operation,
  Call,
  Coalesce,
  Row,
  Case,
  In,
  Subquery,
  Exists,
};

struct Query;

struct Expr {
  Kind kind;
};
using Exprs = List<const Expr*>;

struct Integer : Expr {
  static constexpr Kind kKind = Kind::Integer;
  std::int64_t value;
};

/// A text, the bytes of a blob, or a parameter by the name of its bind.
struct Literal : Expr {
  std::string_view value;
};

struct Column : Expr {
  std::string_view source;  ///< empty where the name alone is clear
  std::string_view name;
};

enum class Operator : std::uint8_t {
  // before its operand
  Not,
  Minus,
  // behind its operand
  IsNull,
  IsNotNull,
  IsNotTrue,
  // between two operands or, where that changes nothing, more
  Or,
  And,
  Is,
  Equal,
  NotEqual,
  Less,
  LessEqual,
  Greater,
  GreaterEqual,
  Add,
  Subtract,
  Multiply,
  Concat,
};

struct Operation : Expr {
  static constexpr Kind kKind = Kind::Operation;
  Operator op;
  Exprs operands;
};

struct Order {
  const Expr* key;
  bool descending;
  bool nullsFirst;
};

struct Bound {
  const Expr* offset;  ///< null without one
  std::string_view words;
};

struct Window {
  Exprs partitionBy;
  List<Order> orderBy;
  std::string_view unit;  ///< ROWS or RANGE; empty without a frame
  Bound start{};
  Bound end{};  ///< without words: the current row
};

struct Call : Expr {
  std::string_view name;
  Exprs args;
  bool distinct = false;
  const Expr* filter = nullptr;
  const Window* over = nullptr;
};

/// COALESCE of values, or a row of them.
struct Values : Expr {
  Exprs values;
};

struct Arm {
  const Expr* when;
  const Expr* then;
};

struct Case : Expr {
  static constexpr Kind kKind = Kind::Case;
  const Expr* operand;  ///< null for the searched form
  List<Arm> arms;
  const Expr* otherwise = nullptr;  ///< null without ELSE
};

/// operand IN (query) or, where that is null, operand IN (values).
struct In : Expr {
  bool negated;
  const Expr* operand;
  Exprs values;
  const Query* query;
};

/// A query as a value, or EXISTS of it.
struct Subquery : Expr {
  const Query* query;
};

struct Item {
  const Expr* expr;
  std::string_view name;  ///< empty without AS
};

/// What stands in FROM: a table, a query, or joins in brackets. Moved only: the lists of a copy would lie
/// outside the memory of the tree.
struct Source {
  explicit Source(Memory* m) : joins(m), on(m) {}
  Source(Source&&) = default;
  Source& operator=(Source&&) = default;
  std::string_view joinedBy;  ///< as LEFT JOIN; empty for a comma
  std::string_view table;
  Query* query = nullptr;
  List<Source> joins;
  std::string_view alias;  ///< empty without one
  Exprs on;
};
using From = List<Source>;

struct Select {
  bool distinct = false;
  List<Item> items;
  From from;
  Exprs where;
  Exprs groupBy;
  const Expr* having = nullptr;
};

struct Branch {
  std::string_view joinedBy;  ///< as UNION ALL; empty for the first
  Select* select;
};

struct Named {
  std::string_view name;
  const Query* query;
};

struct Query {
  List<Named> with;
  List<Branch> branches;
  List<Order> orderBy;
  const Expr* limit = nullptr;
  bool standsAlone = false;  ///< names nothing of the queries around it
};

template <class T>
const T* as(const Expr* e) {
  return e->kind == T::kKind ? static_cast<const T*>(e) : nullptr;
}

/// Nodes for a builder, in braces or from a list.
struct Nodes : std::span<const Expr* const> {
  Nodes(std::initializer_list<const Expr*> nodes) : span(nodes.begin(), nodes.size()) {}
  Nodes(const std::vector<const Expr*>& nodes) : span(nodes) {}
};

/// Makes nodes.
class Builder {
 public:
  const Expr* null() { return make(Expr{Kind::Null}); }
  const Expr* star() { return make(Expr{Kind::Star}); }
  const Expr* integer(std::int64_t value) { return make(Integer{{Kind::Integer}, value}); }
  const Expr* blob(std::string_view bytes) { return make(Literal{{Kind::Blob}, bytes}); }
  const Expr* text(std::string_view value) { return make(Literal{{Kind::Text}, value}); }
  const Expr* parameter(std::string_view bind) { return make(Literal{{Kind::Parameter}, bind}); }
  const Expr* name(std::string_view source, std::string_view name) {
    return make(Column{{Kind::Column}, source, name});
  }
  /// With one operand, of an operator that stands between two, that operand.
  const Expr* operation(Operator op, Nodes operands);
  /// `expr`, or NOT of it.
  const Expr* negatedIf(bool negated, const Expr* expr) {
    return negated ? operation(Operator::Not, {expr}) : expr;
  }
  Call* call(std::string_view name, Nodes args) { return make(Call{{Kind::Call}, name, list(args)}); }
  const Expr* coalesce(Nodes values) { return make(Values{{Kind::Coalesce}, list(values)}); }
  const Expr* row(Nodes items) { return make(Values{{Kind::Row}, list(items)}); }
  Case* choice(const Expr* operand = nullptr) {
    return make(Case{{Kind::Case}, operand, List<Arm>(memory())});
  }
  /// ... ELSE `otherwise`, whose own arms follow where both are searched CASEs.
  static void close(Case& choice, const Expr* otherwise);
  const Expr* in(const Expr* operand, bool negated, Nodes values, const Query* query = nullptr) {
    return make(In{{Kind::In}, negated, operand, list(values), query});
  }
  const Expr* subquery(const Query* query) { return make(Subquery{{Kind::Subquery}, query}); }
  const Expr* exists(const Query* query) { return make(Subquery{{Kind::Exists}, query}); }

  Window* window() { return make(Window{Exprs(memory()), List<Order>(memory())}); }
  Select* select();
  /// A query of one SELECT, or of none yet.
  Query* query(Select* select = nullptr);
  /// SELECT `expr` AS `name`, of no table.
  Query* oneRow(const Expr* expr, std::string_view name);
  Source source(std::string_view alias, Query* query);
  Source bracketed(From joins);

  Memory* memory() { return &memory_; }
  /// The text, kept as long as the nodes.
  std::string_view keep(std::string_view text);

 private:
  template <class T>
  T* make(T node) {
    return new (memory_.allocate(sizeof(T), alignof(T))) T(std::move(node));
  }
  Exprs list(Nodes nodes) { return {nodes.begin(), nodes.end(), memory()}; }

  std::pmr::monotonic_buffer_resource memory_{16 * 1024};
};

}  // namespace kestrelix::repository_file::lite
