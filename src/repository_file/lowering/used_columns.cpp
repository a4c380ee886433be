// What nobody reads is not selected: a column of an inline view that no block around it names is left out,
// and with it the windows and functions that it would take.
#include "oracle_sql/syntax/walk.h"
#include "repository_file/lowering/builders.h"

namespace kestrelix::repository_file {
namespace {

/// Goes from the outside to the inside, since a column may be read only by one that is itself left out.
class Marker {
 public:
  explicit Marker(UsedColumns& used) : used_(used) {}

  /// `wanted` tells the columns of the query that are read; empty: all.
  void query(const sql::Query& query, const std::vector<bool>& wanted) {
    const sql::SelectBlock* single = query.single();
    const bool prunes = single && !single->distinct && !single->nestedAggregates && !wanted.empty();
    for (const auto& term : query.terms) {
      if (term.query) this->query(*term.query, {});
      if (term.block) block(*term.block, prunes ? wanted : std::vector<bool>(), query.orderBy);
    }
    // A WITH query may be read in several places, each in its own way.
    for (const auto* item : query.with) this->query(*item->query, {});
  }

 private:
  void block(const sql::SelectBlock& block, std::vector<bool> wanted,
             const sql::List<sql::OrderItem>& order) {
    if (wanted.empty()) wanted.assign(block.columns.size(), true);
    for (const auto& item : order) {
      if (item.output >= 0 && static_cast<std::size_t>(item.output) < wanted.size())
        wanted[static_cast<std::size_t>(item.output)] = true;
      else
        markOutputs(*item.expr, wanted);
      read(*item.expr);
    }
    for (std::size_t i = 0; i < block.columns.size(); ++i)
      if (wanted[i]) read(*block.columns[i].expr);
    if (block.where) read(*block.where);
    for (const sql::Expr* key : block.groupBy) read(*key);
    if (block.having) read(*block.having);
    for (const sql::FromItem* item : block.from) readJoins(*item);
    for (const sql::FromItem* item : block.from) inside(*item);
    used_[&block] = std::move(wanted);
  }

  /// Names of the select list inside an expression of ORDER BY.
  void markOutputs(const sql::Expr& whole, std::vector<bool>& wanted) {
    std::vector<const sql::Expr*> open{&whole};
    while (!open.empty()) {
      const sql::Expr& expr = *open.back();
      open.pop_back();
      const auto* column = sql::as<sql::ColumnRef>(&expr);
      if (column && column->output >= 0 && static_cast<std::size_t>(column->output) < wanted.size())
        wanted[static_cast<std::size_t>(column->output)] = true;
      sql::forEachOperand(expr, [&](const sql::Expr& operand) { open.push_back(&operand); });
    }
  }

  void read(const sql::Expr& expr) {
    const auto* column = sql::as<sql::ColumnRef>(&expr);
    if (column && column->source) readColumn(column->source, column->column);
    sql::forEachOperand(expr, [&](const sql::Expr& operand) { read(operand); });
    // A subquery may name columns of the blocks around it.
    if (const sql::Query* inner = sql::queryOf(expr)) query(*inner, {});
  }

  void readColumn(const sql::FromItem* source, int column) {
    if (const auto* join = sql::as<sql::JoinItem>(source)) {
      const auto& merged = join->merged[static_cast<std::size_t>(column)];
      readColumn(merged.leftSource, merged.leftColumn);
      readColumn(merged.rightSource, merged.rightColumn);
      return;
    }
    auto& marks = read_[source];
    marks.resize(source->columns.size());
    marks[static_cast<std::size_t>(column)] = true;
  }

  void readJoins(const sql::FromItem& item) {
    const auto* join = sql::as<sql::JoinItem>(&item);
    if (!join) return;
    if (join->on) read(*join->on);
    for (std::size_t i = 0; i < join->merged.size(); ++i) readColumn(join, static_cast<int>(i));
    readJoins(*join->left);
    readJoins(*join->right);
  }

  void inside(const sql::FromItem& item) {
    if (const auto* join = sql::as<sql::JoinItem>(&item)) {
      inside(*join->left);
      inside(*join->right);
    } else if (const auto* pivot = sql::as<sql::PivotItem>(&item)) {
      // PIVOT groups by every column that it does not name.
      for (const auto& aggregate : pivot->aggregates)
        for (const sql::Expr* argument : aggregate.call->args) read(*argument);
      if (const auto* derived = sql::as<sql::DerivedItem>(pivot->source)) query(*derived->query, {});
    } else if (const auto* derived = sql::as<sql::DerivedItem>(&item)) {
      auto& marks = read_[&item];
      marks.resize(item.columns.size());
      query(*derived->query, marks);
    }
  }

  UsedColumns& used_;
  std::unordered_map<const sql::FromItem*, std::vector<bool>> read_;
};

}  // namespace

void markUsedColumns(const sql::Query& query, UsedColumns& used) { Marker(used).query(query, {}); }

bool isUsed(const UsedColumns& used, const sql::SelectBlock& block, std::size_t column) {
  const auto found = used.find(&block);
  return found == used.end() || found->second[column];
}

}  // namespace kestrelix::repository_file
