#include "repository_file/lowering/block.h"

#include "platform/ascii.h"
#include "repository_file/lowering/builders.h"
#include "repository_file/lowering/walk.h"

namespace kestrelix::repository_file {
namespace {

/// The terms of a condition that are joined by AND.
void splitAnd(const sql::Expr* expr, std::vector<const sql::Expr*>& terms) {
  if (const auto* conjunction = sql::as<sql::AndExpr>(expr)) {
    for (const sql::Expr* term : conjunction->terms) splitAnd(term, terms);
  } else if (expr) {
    terms.push_back(expr);
  }
}

void addSources(const sql::FromItem* item, std::unordered_set<const sql::FromItem*>& sources) {
  sources.insert(item);
  if (const auto* join = sql::as<sql::JoinItem>(item)) {
    addSources(join->left, sources);
    addSources(join->right, sources);
  }
}

}  // namespace

LoweredQuery Lowerer::lower(const sql::SelectBlock& block, const sql::List<sql::OrderItem>* order) {
  const Within<const lite::Expr*> noRownum(rownum, nullptr);
  const Within<const lite::Expr*> noFilter(filter, nullptr);
  std::vector<const sql::Expr*> conjuncts;
  splitAnd(block.where, conjuncts);
  passKeyTests(*this, block, conjuncts);
  BlockParts parts{block, order, lowerFrom(*this, block, conjuncts), {}};
  if (block.usesRownum) return lowerRownumBlock(*this, std::move(parts), conjuncts);
  for (const sql::Expr* term : conjuncts) parts.where.push_back(condition(*term));
  addGivenKeyTests(*this, parts);
  return assembleBlock(*this, std::move(parts));
}

LoweredQuery assembleList(Lowerer& to, BlockParts parts) {
  const sql::SelectBlock& block = parts.block;
  lite::Select& select = *to.select();
  select.distinct = block.distinct;
  select.from = std::move(parts.from);
  select.where.assign(parts.where.begin(), parts.where.end());
  LoweredQuery result{to.query(&select)};
  std::unordered_set<std::string> names;
  const bool oneGroup = block.grouped && block.groupBy.empty();
  bool allUsed = true;
  for (std::size_t i = 0; i < block.columns.size(); ++i)
    allUsed = allUsed && isUsed(to.usedColumns, block, i);
  for (std::size_t i = 0; i < block.columns.size(); ++i) {
    const auto& column = block.columns[i];
    std::string name(column.name);
    for (int n = 2; !names.insert(asciiUpper(name)).second; ++n)
      name = std::string(column.name) + "_" + std::to_string(n);
    const std::string_view kept = to.keep(name);
    Value value;
    if (isUsed(to.usedColumns, block, i)) {
      value = to.lower(*column.expr);
      const lite::Expr* node = value.node;
      // Without GROUP BY SQLite takes the rows for one group only if it sees an aggregate outside windows and
      // HAVING.
      if (select.items.empty() && oneGroup && (block.having || block.windowed || !allUsed)) {
        lite::Case& shown = *to.choice();
        const auto* count = to.call("count", {to.star()});
        shown.arms.push_back({to.operation(lite::Operator::GreaterEqual, {count, to.integer(0)}), node});
        node = &shown;
      }
      select.items.push_back({node, kept});
    }
    result.columns.push_back({kept, column.type.kind, value.number});
    result.outputs.push_back(value);
  }
  if (select.items.empty())
    select.items.push_back({oneGroup ? to.call("count", {to.star()}) : to.integer(1), "rows"});
  return result;
}

void addGroupKeys(Lowerer& to, lite::Select& select, const std::vector<const lite::Expr*>& keys) {
  for (const lite::Expr* key : keys)
    // A constant groups nothing in Oracle; SQLite would take a whole number for the place of a column.
    if (!isWholeLiteral(key)) select.groupBy.push_back(key);
  if (select.groupBy.empty())
    select.groupBy.push_back(to.operation(lite::Operator::Concat, {to.text(""), to.text("")}));
}

LoweredQuery assembleBlock(Lowerer& to, BlockParts parts) {
  const sql::SelectBlock& block = parts.block;
  if (readsGroups(block)) return assembleGroups(to, std::move(parts));
  const auto* order = parts.isOrdered() ? parts.order : nullptr;
  const Within anchor(to.anchor, addAnchor(to, parts));
  LoweredQuery result = assembleList(to, std::move(parts));
  lite::Select& select = *result.query->branches.front().select;
  std::vector<const lite::Expr*> keys;
  for (const sql::Expr* key : block.groupBy)
    if (!isLiteral(*key)) keys.push_back(to.lower(*key).node);
  if (!block.groupBy.empty()) addGroupKeys(to, select, keys);
  if (block.having) select.having = to.condition(*block.having);
  if (order) result.query->orderBy = lowerOrder(to, *order, &result.outputs);
  return result;
}

Wrap wrapOf(Lowerer& to, const sql::SelectBlock& block, const char* alias) {
  Wrap wrap;
  wrap.alias = to.uniqueAlias(alias);
  for (const sql::FromItem* item : block.from) addSources(item, wrap.sources);
  return wrap;
}

void addExports(Lowerer& to, const Wrap& wrap, lite::Select& select) {
  for (const auto& [column, name] : wrap.exports)
    select.items.push_back({to.column(column.first, column.second).node, name});
}

}  // namespace kestrelix::repository_file
