#include <unordered_set>

#include "platform/ascii.h"
#include "platform/embedded/lowering/rules.h"
#include "platform/embedded/lowering/walk.h"

namespace kestrelix::embedded {
namespace {

/// The terms of a condition that are joined by AND.
void splitAnd(const sql::Expr* expr, std::vector<const sql::Expr*>& terms) {
  if (const auto* conjunction = sql::as<sql::AndExpr>(expr)) {
    for (const sql::Expr* term : conjunction->terms) splitAnd(term, terms);
  } else if (expr) {
    terms.push_back(expr);
  }
}

}  // namespace

QueryText lowerBlock(Emitter& emitter, const sql::SelectBlock& block,
                     const sql::List<sql::OrderItem>* order) {
  const std::string rownumAround = std::exchange(emitter.rownum(), {});
  BlockParts parts = lowerFrom(emitter, block);
  QueryText text;
  if (block.usesRownum) {
    text = lowerRownumBlock(emitter, block, parts, order);
  } else {
    std::string where = whereOf(emitter, parts.conjuncts);
    if (const std::string keys = givenKeyTests(emitter, block); !keys.empty())
      where += (where.empty() ? " WHERE " : " AND ") + keys;
    text = assembleBlock(emitter, block, parts.from, where, order);
  }
  emitter.rownum() = rownumAround;
  return text;
}

std::string whereOf(Emitter& emitter, const std::vector<const sql::Expr*>& conjuncts) {
  std::vector<std::string> terms;
  terms.reserve(conjuncts.size());
  for (const sql::Expr* term : conjuncts) terms.push_back(emitter.condition(*term));
  return terms.empty() ? "" : " WHERE " + chained(std::move(terms), " AND ");
}

BlockParts lowerFrom(Emitter& emitter, const sql::SelectBlock& block) {
  BlockParts parts;
  splitAnd(block.where, parts.conjuncts);
  passKeyTests(emitter, block, parts.conjuncts);
  parts.from = emitter.from(block, parts.conjuncts);
  return parts;
}

QueryText assembleList(Emitter& emitter, const sql::SelectBlock& block, const std::string& from,
                       const std::string& where) {
  QueryText result;
  std::string list;
  std::vector<Piece>& outputs = result.outputs;
  std::unordered_set<std::string> names;
  const bool oneGroup = block.grouped && block.groupBy.empty();
  bool allUsed = true;
  for (std::size_t i = 0; i < block.columns.size(); ++i)
    allUsed = allUsed && isUsed(emitter.usedColumns(), block, i);
  for (std::size_t i = 0; i < block.columns.size(); ++i) {
    const auto& column = block.columns[i];
    std::string name(column.name);
    for (int n = 2; !names.insert(asciiUpper(name)).second; ++n)
      name = std::string(column.name) + "_" + std::to_string(n);
    Piece piece;
    if (isUsed(emitter.usedColumns(), block, i)) {
      piece = emitter.expression(*column.expr);
      // Without GROUP BY SQLite takes the rows for one group only if it sees an aggregate outside windows and
      // HAVING.
      const bool hidden = list.empty() && oneGroup && (block.having || block.windowed || !allUsed);
      const std::string text = hidden ? "CASE WHEN count(*) >= 0 THEN " + piece.text + " END" : piece.text;
      list += (list.empty() ? "" : ", ") + text + " AS " + quoted(name);
    }
    result.columns.push_back({name, column.type.kind, piece.number});
    outputs.push_back(std::move(piece));
  }
  if (list.empty()) list = oneGroup ? "count(*) AS \"rows\"" : "1 AS \"rows\"";
  result.text = std::string("SELECT ") + (block.distinct ? "DISTINCT " : "") + list;
  result.listEnd = result.text.size();
  result.text += " FROM " + from + where;
  return result;
}

std::string groupByText(const std::vector<std::string>& keys) {
  std::string list;
  for (const std::string& key : keys)
    // A constant groups nothing in Oracle; SQLite would take a whole number for the place of a column.
    if (!isPlainNumber(key)) list += (list.empty() ? "" : ", ") + key;
  return " GROUP BY " + (list.empty() ? "''||''" : list);
}

QueryText assembleBlock(Emitter& emitter, const sql::SelectBlock& block, const std::string& from,
                        const std::string& where, const sql::List<sql::OrderItem>* order) {
  if (readsGroups(block)) return assembleGroups(emitter, block, from, where, order);
  const std::string anchorAround = emitter.anchor();
  const std::string anchor = lowerAnchor(emitter, block, order);
  QueryText result = assembleList(emitter, block, from + anchor, where);
  std::vector<std::string> keys;
  for (const sql::Expr* key : block.groupBy)
    if (!isLiteral(*key)) keys.push_back(emitter.expression(*key).text);
  if (!block.groupBy.empty()) result.text += groupByText(keys);
  if (block.having) result.text += " HAVING " + emitter.condition(*block.having);
  if (order && !order->empty()) result.text += lowerOrder(emitter, *order, &result.outputs);
  emitter.anchor() = anchorAround;
  return result;
}

}  // namespace kestrelix::embedded
