// A block whose groups are rows themselves: an aggregate over aggregates, as in SUM(AVG(x)), folds them once
// more, ROLLUP and its like lay the groups of several groupings over each other, and an aggregate is compared
// with ANY or ALL of a subquery. An inner query makes the groups with their keys and aggregates; the block's
// own expressions read those.
#include <algorithm>
#include <map>

#include "oracle_sql/same_expression.h"
#include "oracle_sql/walk.h"
#include "platform/embedded/lowering/rules.h"
#include "platform/embedded/lowering/walk.h"

namespace kestrelix::embedded {
namespace {

bool isAggregate(const sql::Expr& expr) {
  const auto* call = sql::as<sql::Call>(&expr);
  return call && call->role == sql::CallRole::Aggregate;
}

/// `aggregate` op ANY|ALL (subquery): the comparison is made inside a subquery, where SQLite takes no
/// aggregate of the block around.
bool comparesAggregate(const sql::Expr& expr) {
  bool found = false;
  walkExpressions(expr, [&](const sql::Expr& e) {
    const auto* compare = sql::as<sql::Compare>(&e);
    if (!compare || compare->quantifier == sql::Quantifier::None || !compare->query) return;
    walkExpressions(*compare->left, [&](const sql::Expr& operand) { found = found || isAggregate(operand); });
  });
  return found;
}

bool hasAggregateBelow(const sql::Expr& expr) {
  bool found = false;
  walkExpressions(expr, [&](const sql::Expr& e) { found = found || (&e != &expr && isAggregate(e)); });
  return found;
}

/// The columns of the inner query.
class Groups {
 public:
  Groups(Emitter& emitter, const sql::SelectBlock& block)
      : emitter_(emitter), block_(block), alias_(emitter.uniqueAlias("GROUPS")) {
    for (const sql::Expr* key : block.groupBy) keys_.push_back(emitter.expression(*key));
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
    for (const auto& [expr, piece] : read_) emitter_.replacements()[expr] = piece;
  }

  /// The keys that are columns, for the subqueries of the block.
  Wrap wrap(Wrap sources) const {
    sources.alias = alias_;
    for (std::size_t i = 0; i < keys_.size(); ++i) {
      const auto* column = sql::as<sql::ColumnRef>(block_.groupBy[i]);
      if (column && column->levelsOut == 0)
        sources.exports.try_emplace({column->source, column->column}, keyName(i));
    }
    return sources;
  }

  /// The query in FROM: all groupings of the rows that `rows` reads (" FROM ..." with its WHERE).
  std::string item(const std::string& with, const std::string& rows) const {
    sql::List<sql::GroupingSet> sets = block_.groupingSets;
    if (block_.grouping.empty()) sets.push_back(~sql::GroupingSet{0});
    std::map<sql::GroupingSet, int> before;
    std::string text;
    for (const sql::GroupingSet set : sets)
      text += (text.empty() ? "" : " UNION ALL ") + grouping(set, before[set]++, rows);
    return "(" + with + text + ") AS " + quoted(alias_);
  }

 private:
  static std::string keyName(std::size_t i) { return "k" + std::to_string(i + 1); }
  static bool contains(sql::GroupingSet set, std::size_t key) { return key >= 64 || (set >> key & 1) != 0; }

  void read(const sql::Expr& expr, const Piece& piece, const std::string& name) {
    Piece column;
    column.text = quoted(alias_) + "." + quoted(name);
    column.kind = piece.kind;
    column.number = piece.number;
    column.atom = column.cheap = true;
    read_[&expr] = column;
  }

  void addAggregate(const sql::Expr& expr) {
    const Piece piece = emitter_.expression(expr);
    const auto name = aggregates_.try_emplace(piece.text, "a" + std::to_string(aggregates_.size() + 1)).first;
    read(expr, piece, name->second);
  }

  void addMark(const sql::Call& call) {
    Piece piece;
    piece.kind = sql::TypeKind::Number;
    piece.number = {true, 2e18};
    marks_.push_back(&call);
    read(call, piece, "g" + std::to_string(marks_.size()));
  }

  /// GROUP_ID: how many equal groupings come before. GROUPING and GROUPING_ID: a bit for each argument, 1
  /// where the grouping leaves it out.
  std::int64_t valueOf(const sql::Call& call, sql::GroupingSet set, int before) const {
    if (call.name == "GROUP_ID") return before;
    std::int64_t bits = 0;
    for (const sql::Expr* argument : call.args) {
      std::size_t key = 0;
      while (!sql::sameExpression(*block_.groupBy[key], *argument)) ++key;
      bits = bits * 2 + (contains(set, key) ? 0 : 1);
    }
    return bits;
  }

  std::string grouping(sql::GroupingSet set, int before, const std::string& rows) const {
    std::string list;
    std::vector<std::string> keys;
    const auto select = [&](const std::string& text, const std::string& name) {
      list += (list.empty() ? "" : ", ") + text + " AS " + quoted(name);
    };
    for (std::size_t i = 0; i < keys_.size(); ++i) {
      select(contains(set, i) ? keys_[i].text : "NULL", keyName(i));
      if (contains(set, i) && !isLiteral(*block_.groupBy[i])) keys.push_back(keys_[i].text);
    }
    for (const auto& [text, name] : aggregates_) select(text, name);
    for (std::size_t i = 0; i < marks_.size(); ++i)
      select(std::to_string(valueOf(*marks_[i], set, before)), "g" + std::to_string(i + 1));
    return "SELECT " + list + rows + groupByText(keys);
  }

  Emitter& emitter_;
  const sql::SelectBlock& block_;
  std::string alias_;
  std::vector<Piece> keys_;
  std::map<std::string, std::string> aggregates_;  ///< name by text
  std::vector<const sql::Call*> marks_;
  std::map<const sql::Expr*, Piece> read_;
};

}  // namespace

bool readsGroups(const sql::SelectBlock& block) {
  if (block.nestedAggregates || !block.grouping.empty()) return true;
  if (block.groupBy.empty()) return false;
  return (block.having && comparesAggregate(*block.having)) ||
         std::any_of(block.columns.begin(), block.columns.end(),
                     [](const auto& column) { return comparesAggregate(*column.expr); });
}

QueryText assembleGroups(Emitter& emitter, const sql::SelectBlock& block, const std::string& from,
                         const std::string& where, const sql::List<sql::OrderItem>* order) {
  const std::string rownum = emitter.rownum();
  const std::string anchorAround = emitter.anchor();
  const std::string anchor = lowerAnchor(emitter, block, order);
  std::string with;
  // Several groupings read the same rows, which are found once.
  const bool several = block.groupingSets.size() > 1;
  std::string rows = " FROM " + from + (several ? "" : anchor) + where;
  Wrap read = wrapOf(emitter, block, "ROWS");
  if (several) {
    emitter.wraps().push_back(&read);
    emitter.rownum().clear();
  }
  Groups groups(emitter, block);
  for (std::size_t i = 0; i < block.columns.size(); ++i)
    if (isUsed(emitter.usedColumns(), block, i))
      groups.collect(*block.columns[i].expr, block.nestedAggregates);
  if (block.having) groups.collect(*block.having, false);
  if (order)
    for (const auto& item : *order)
      if (item.output < 0) groups.collect(*item.expr, block.nestedAggregates);
  if (several) {
    emitter.wraps().pop_back();
    const std::string list = exportList(emitter, read);
    with =
        "WITH " + quoted(read.alias) + " AS (SELECT " + (list.empty() ? "1 AS \"c0\"" : list) + rows + ") ";
    rows = " FROM " + quoted(read.alias) + anchor;
  }

  emitter.anchor().clear();
  groups.readThem();
  Wrap grouped = groups.wrap(wrapOf(emitter, block, "GROUPS"));
  const std::size_t keys = grouped.exports.size();
  emitter.wraps().push_back(&grouped);
  emitter.rownum().clear();
  const std::string kept = block.having ? " WHERE " + emitter.condition(*block.having) : "";
  QueryText result = assembleList(emitter, block, groups.item(with, rows), kept);
  if (order && !order->empty()) result.text += lowerOrder(emitter, *order, &result.outputs);
  emitter.wraps().pop_back();
  emitter.rownum() = rownum;
  emitter.anchor() = anchorAround;
  if (grouped.exports.size() > keys)
    throw sql::SqlError::unsupported("a subquery on an expression that groups", block.place);
  return result;
}

}  // namespace kestrelix::embedded
