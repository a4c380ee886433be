// SQLite has the set operators at one precedence too, from left to right. A branch with an order, a limit or
// branches of its own is put into a subquery.
#include <algorithm>

#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {
namespace {

const char* setWord(sql::SetOp op) {
  switch (op) {
    case sql::SetOp::UnionAll:
      return " UNION ALL ";
    case sql::SetOp::Union:
      return " UNION ";
    case sql::SetOp::Intersect:
      return " INTERSECT ";
    case sql::SetOp::Minus:
      return " EXCEPT ";
    case sql::SetOp::None:
      break;
  }
  return "";
}

}  // namespace

QueryText lowerSetOperators(Emitter& emitter, const sql::Query& query) {
  QueryText result;
  for (const auto& term : query.terms) {
    QueryText branch = term.block ? lowerBlock(emitter, *term.block, nullptr) : emitter.query(*term.query);
    const bool alone = term.block && !term.block->usesRownum;
    if (!alone) branch.text = "SELECT * FROM (" + branch.text + ")";
    result.text += setWord(term.op) + branch.text;
    if (term.op == sql::SetOp::None) {
      result.columns = std::move(branch.columns);
      continue;
    }
    for (std::size_t i = 0; i < result.columns.size(); ++i) {
      // NULL in one branch leaves the facts of the others.
      if (branch.columns[i].kind == sql::TypeKind::Null) continue;
      auto& number = result.columns[i].number;
      const auto& other = branch.columns[i].number;
      if (result.columns[i].kind == sql::TypeKind::Null) number = other;
      result.columns[i].kind = branch.columns[i].kind;
      number.integral = number.integral && other.integral;
      number.largest = std::max(number.largest, other.largest);
    }
  }
  std::vector<Piece> outputs;
  const std::string alias = emitter.uniqueAlias("U");
  for (std::size_t i = 0; i < result.columns.size(); ++i) {
    auto& column = result.columns[i];
    column.kind = query.columns[i].type.kind;
    Piece piece;
    piece.text = quoted(alias) + "." + quoted(column.name);
    piece.kind = column.kind;
    piece.number = column.number;
    piece.atom = true;
    piece.cheap = true;
    outputs.push_back(std::move(piece));
  }
  if (!query.orderBy.empty())
    result.text = "SELECT * FROM (" + result.text + ") AS " + quoted(alias) +
                  lowerOrder(emitter, query.orderBy, &outputs);
  return result;
}

}  // namespace kestrelix::embedded
