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

/// Fewer than the 500 terms that SQLite takes.
constexpr std::size_t kTermsOfCompound = 400;

/// Below 2^63 by more than a double can be wrong.
constexpr double kFitsWhole = 9.2e18;

/// The facts of a column that takes its values from two branches. NULL in one leaves those of the other.
void joinFacts(SourceColumn& column, const SourceColumn& other) {
  if (other.kind == sql::TypeKind::Null) return;
  if (column.kind == sql::TypeKind::Null) {
    column.number = other.number;
  } else {
    column.number.integral = column.number.integral && other.number.integral;
    column.number.largest = std::max(column.number.largest, other.number.largest);
  }
  column.kind = other.kind;
}

/// The columns of a branch, without the keys that it may be sorted by.
std::string nameList(const QueryText& branch) {
  std::string list;
  for (const auto& column : branch.columns) list += (list.empty() ? "" : ", ") + quoted(column.name);
  return list;
}

/// What every branch sorts the column by. Exact quotients are brought to one divisor and sort as whole
/// numbers.
std::vector<std::string> keysOf(const std::vector<QueryText>& branches, std::size_t column) {
  std::int64_t divisor = 1;
  for (const auto& branch : branches) divisor = std::max(divisor, branch.outputs[column].quotient.divisor);
  std::vector<std::string> keys;
  std::vector<std::string> whole;
  for (const auto& branch : branches) {
    const Piece& piece = branch.outputs[column];
    const bool null = piece.kind == sql::TypeKind::Null;
    keys.push_back(null ? "NULL" : "num_key(" + piece.text + ")");
    const bool isQuotient = !piece.quotient.dividend.empty();
    // Both are powers of ten.
    const std::int64_t quotient = divisor / piece.quotient.divisor;
    const std::string factor = std::to_string(quotient);
    if (null)
      whole.push_back("NULL");
    else if (isQuotient && piece.quotient.largest * static_cast<double>(quotient) <= kFitsWhole)
      whole.push_back("(" + piece.quotient.dividend + ") * " + factor);
    else if (!isQuotient && piece.number.integral &&
             piece.number.largest * static_cast<double>(divisor) <= kFitsWhole)
      whole.push_back("(" + piece.text + ") * " + factor);
  }
  return whole.size() == keys.size() ? whole : keys;
}

/// The branches with their sort keys selected behind their columns, and the ORDER BY of the whole. SQLite
/// then sorts each branch and merges them, and no row is handed on once more to be sorted.
std::string mergedInOrder(const sql::Query& query, std::vector<QueryText> branches, const QueryText& whole) {
  std::string order;
  std::size_t columns = whole.columns.size();
  for (const auto& item : query.orderBy) {
    const auto output = static_cast<std::size_t>(item.output);
    std::size_t place = output + 1;
    if (whole.columns[output].kind == sql::TypeKind::Number && !whole.columns[output].number.integral) {
      const auto keys = keysOf(branches, output);
      place = ++columns;
      for (std::size_t i = 0; i < branches.size(); ++i) {
        const std::string key = ", " + keys[i] + " AS \"sort key " + std::to_string(place) + "\"";
        branches[i].text.insert(branches[i].listEnd, key);
        branches[i].listEnd += key.size();
      }
    }
    order += (order.empty() ? " ORDER BY " : ", ") + std::to_string(place) +
             (item.descending ? " DESC" : "") + (item.nullsFirst() ? " NULLS FIRST" : " NULLS LAST");
  }
  std::string text;
  for (std::size_t i = 0; i < branches.size(); ++i) text += setWord(query.terms[i].op) + branches[i].text;
  return text + order;
}

}  // namespace

QueryText lowerSetOperators(Emitter& emitter, const sql::Query& query) {
  QueryText result;
  std::vector<QueryText> branches;
  // Minus and intersect compare what is selected, so keys may stand beside it only where the keys follow from
  // it.
  bool mergeable = query.terms.size() <= kTermsOfCompound;
  for (const auto& term : query.terms) {
    if (!branches.empty() && branches.size() % kTermsOfCompound == 0)
      result.text = "SELECT " + nameList(result) + " FROM (" + result.text + ")";
    QueryText branch = term.block ? lowerBlock(emitter, *term.block, nullptr) : emitter.query(*term.query);
    const bool alone = term.block && !term.block->usesRownum && branch.listEnd > 0;
    mergeable = mergeable && alone;
    if (!alone) branch.text = "SELECT " + nameList(branch) + " FROM (" + branch.text + ")";
    result.text += setWord(term.op) + branch.text;
    if (term.op == sql::SetOp::None)
      result.columns = branch.columns;
    else
      for (std::size_t i = 0; i < result.columns.size(); ++i) joinFacts(result.columns[i], branch.columns[i]);
    branches.push_back(std::move(branch));
  }
  for (std::size_t i = 0; i < result.columns.size(); ++i) result.columns[i].kind = query.columns[i].type.kind;
  if (query.orderBy.empty()) return result;
  for (const auto& item : query.orderBy) mergeable = mergeable && item.output >= 0;
  if (mergeable) {
    result.text = mergedInOrder(query, std::move(branches), result);
    return result;
  }

  std::vector<Piece> outputs;
  const std::string alias = emitter.uniqueAlias("U");
  for (const auto& column : result.columns) {
    Piece piece;
    piece.text = quoted(alias) + "." + quoted(column.name);
    piece.kind = column.kind;
    piece.number = column.number;
    piece.atom = true;
    piece.cheap = true;
    outputs.push_back(std::move(piece));
  }
  result.text = "SELECT * FROM (" + result.text + ") AS " + quoted(alias) +
                lowerOrder(emitter, query.orderBy, &outputs);
  return result;
}

}  // namespace kestrelix::embedded
