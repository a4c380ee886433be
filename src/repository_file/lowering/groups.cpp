// A block whose groups are rows themselves: an aggregate over aggregates, as in SUM(AVG(x)), folds them once
// more, ROLLUP lays the groups of several groupings over each other. An inner query makes the groups with
// their keys and aggregates; the block's own expressions read those.
#include <algorithm>
#include <functional>
#include <map>

#include "oracle_sql/meaning/same_expression.h"
#include "oracle_sql/syntax/walk.h"
#include "repository_file/lowering/block.h"
#include "repository_file/lowering/builders.h"
#include "repository_file/lowering/walk.h"

namespace kestrelix::repository_file {
namespace {

bool isAggregate(const sql::Expr& expr) {
  const auto* call = sql::as<sql::Call>(&expr);
  return call && call->role == sql::CallRole::Aggregate;
}

bool hasAggregateBelow(const sql::Expr& expr) {
  bool found = false;
  walkExpressions(expr, [&](const sql::Expr& e) { found = found || (&e != &expr && isAggregate(e)); });
  return found;
}

/// The columns of the inner query.
class Groups {
 public:
  Groups(Lowerer& to, const sql::SelectBlock& block)
      : to_(to), block_(block), alias_(to.uniqueAlias("GROUPS")) {
    for (const sql::Expr* key : block.groupBy) keys_.push_back(to.lower(*key));
  }

  /// Finds what `expr` takes from the groups; `folds` if its aggregates are over the groups.
  void collect(const sql::Expr& expr, bool folds) {
    const auto* call = sql::as<sql::Call>(&expr);
    if (call && call->role == sql::CallRole::Grouping) return addMark(*call);
    if (isAggregate(expr)) {
      if (!folds) return addAggregate(expr);
      if (!hasAggregateBelow(expr))
        throw sql::SqlError::unsupported("an aggregate beside one over the groups", expr.place);
      folds = false;
    } else if (!folds) {
      for (std::size_t i = 0; i < keys_.size(); ++i)
        if (sql::sameExpression(*block_.groupBy[i], expr)) return read(expr, keys_[i], keyName(i));
    }
    sql::forEachOperand(expr, [&](const sql::Expr& operand) { collect(operand, folds); });
  }

  /// From here on what was collected stands for columns of the groups.
  void readThem() {
    for (const auto& [expr, value] : read_) to_.replacements[expr] = value;
  }

  /// The keys that are columns, for the subqueries of the block.
  Wrap wrap(Wrap sources) {
    sources.alias = alias_;
    for (std::size_t i = 0; i < keys_.size(); ++i) {
      const auto* column = sql::as<sql::ColumnRef>(block_.groupBy[i]);
      if (column && column->levelsOut == 0)
        sources.exports.try_emplace({column->source, column->column}, keyName(i));
    }
    return sources;
  }

  /// The query in FROM: all groupings of the rows, each of a SELECT that `rows` begins.
  lite::Source item(const std::function<lite::Select*()>& rows) {
    sql::List<sql::GroupingSet> sets = block_.groupingSets;
    if (block_.grouping.empty()) sets.push_back(~sql::GroupingSet{0});
    lite::Query* query = to_.query();
    for (const sql::GroupingSet set : sets) {
      lite::Select* select = rows();
      group(*select, set);
      query->branches.push_back({query->branches.empty() ? "" : "UNION ALL", select});
    }
    return to_.source(alias_, query);
  }

 private:
  static bool contains(sql::GroupingSet set, std::size_t key) { return key >= 64 || (set >> key & 1) != 0; }

  std::string_view keyName(std::size_t i) { return named('k', i + 1); }
  std::string_view named(char letter, std::size_t number) {
    return to_.keep(letter + std::to_string(number));
  }

  void read(const sql::Expr& expr, const Value& value, std::string_view name) {
    read_[&expr] = to_.column(alias_, {name, value.kind, value.number});
  }

  void addAggregate(const sql::Expr& expr) {
    auto found = std::find_if(aggregates_.begin(), aggregates_.end(), [&](const auto& aggregate) {
      return sql::sameExpression(*aggregate.first, expr);
    });
    if (found == aggregates_.end()) found = aggregates_.insert(found, {&expr, to_.lower(expr)});
    read(expr, found->second, named('a', static_cast<std::size_t>(found - aggregates_.begin()) + 1));
  }

  void addMark(const sql::Call& call) {
    marks_.push_back(&call);
    read(call, {nullptr, sql::TypeKind::Number, {true, 1}}, named('g', marks_.size()));
  }

  /// GROUPING: 1 where the grouping leaves the argument out.
  int valueOf(const sql::Call& call, sql::GroupingSet set) const {
    std::size_t key = 0;
    while (!sql::sameExpression(*block_.groupBy[key], *call.args.front())) ++key;
    return contains(set, key) ? 0 : 1;
  }

  void group(lite::Select& select, sql::GroupingSet set) {
    std::vector<const lite::Expr*> keys;
    for (std::size_t i = 0; i < keys_.size(); ++i) {
      select.items.push_back({contains(set, i) ? keys_[i].node : to_.null(), keyName(i)});
      if (contains(set, i) && !isLiteral(*block_.groupBy[i])) keys.push_back(keys_[i].node);
    }
    for (std::size_t i = 0; i < aggregates_.size(); ++i)
      select.items.push_back({aggregates_[i].second.node, named('a', i + 1)});
    for (std::size_t i = 0; i < marks_.size(); ++i)
      select.items.push_back({to_.integer(valueOf(*marks_[i], set)), named('g', i + 1)});
    addGroupKeys(to_, select, keys);
  }

  Lowerer& to_;
  const sql::SelectBlock& block_;
  std::string_view alias_;
  std::vector<Value> keys_;
  std::vector<std::pair<const sql::Expr*, Value>> aggregates_;
  std::vector<const sql::Call*> marks_;
  std::map<const sql::Expr*, Value> read_;
};

}  // namespace

bool readsGroups(const sql::SelectBlock& block) { return block.nestedAggregates || !block.grouping.empty(); }

LoweredQuery assembleGroups(Lowerer& to, BlockParts parts) {
  const sql::SelectBlock& block = parts.block;
  const auto* order = parts.isOrdered() ? parts.order : nullptr;
  // Several groupings read the same rows, which are found once, by a query that they name.
  const bool several = block.groupingSets.size() > 1;
  BlockParts anchored{block, parts.order, lite::From(to.memory()), {}};
  const Within anchor(to.anchor, addAnchor(to, several ? anchored : parts));
  const Within rownum(to.rownum, several ? nullptr : to.rownum);
  Wrap read = wrapOf(to, block, "ROWS");
  if (several) to.wraps.push_back(&read);
  Groups groups(to, block);
  for (std::size_t i = 0; i < block.columns.size(); ++i)
    if (isUsed(to.usedColumns, block, i)) groups.collect(*block.columns[i].expr, block.nestedAggregates);
  if (block.having) groups.collect(*block.having, false);
  if (order)
    for (const auto& item : *order)
      if (item.output < 0) groups.collect(*item.expr, block.nestedAggregates);
  if (several) to.wraps.pop_back();

  lite::Select* rows = to.select();
  rows->from = std::move(parts.from);
  rows->where.assign(parts.where.begin(), parts.where.end());
  lite::Source item = groups.item([&] {
    if (!several) return rows;
    lite::Select* select = to.select();
    select->from.push_back(to.source({}, nullptr));
    select->from.back().table = read.alias;
    for (const lite::Source& one : anchored.from) select->from.push_back(to.source(one.alias, one.query));
    return select;
  });
  if (several) {
    addExports(to, read, *rows);
    if (rows->items.empty()) rows->items.push_back({to.integer(1), "c0"});
    item.query->with.push_back({read.alias, to.query(rows)});
  }

  groups.readThem();
  Wrap grouped = groups.wrap(wrapOf(to, block, "GROUPS"));
  const std::size_t keys = grouped.exports.size();
  to.wraps.push_back(&grouped);
  to.anchor = nullptr;
  to.rownum = nullptr;
  BlockParts around{block, order, lite::From(to.memory()), {}};
  around.from.push_back(std::move(item));
  if (block.having) around.where.push_back(to.condition(*block.having));
  LoweredQuery result = assembleList(to, std::move(around));
  if (order) result.query->orderBy = lowerOrder(to, *order, &result.outputs);
  to.wraps.pop_back();
  if (grouped.exports.size() > keys)
    throw sql::SqlError::unsupported("a subquery on an expression that groups", block.place);
  return result;
}

}  // namespace kestrelix::repository_file
