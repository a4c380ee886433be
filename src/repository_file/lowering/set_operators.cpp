// SQLite has the set operators at one precedence too, from left to right. A branch with an order, a limit or
// branches of its own is put into a subquery.
#include <algorithm>

#include "oracle_sql/syntax/spelling.h"
#include "repository_file/lowering/builders.h"

namespace kestrelix::repository_file {
namespace {

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

/// What every branch sorts the column by. Exact quotients are brought to one divisor and sort as whole
/// numbers.
std::vector<const lite::Expr*> keysOf(Lowerer& to, const std::vector<LoweredQuery>& branches,
                                      std::size_t column) {
  std::int64_t divisor = 1;
  for (const auto& branch : branches) divisor = std::max(divisor, branch.outputs[column].quotient.divisor);
  std::vector<const lite::Expr*> keys;
  std::vector<const lite::Expr*> whole;
  for (const auto& branch : branches) {
    const Value& value = branch.outputs[column];
    if (value.kind == sql::TypeKind::Null) {
      keys.push_back(to.null());
      whole.push_back(to.null());
      continue;
    }
    keys.push_back(to.call("num_key", {value.node}));
    const ExactQuotient& quotient = value.quotient;
    // Both are powers of ten.
    const std::int64_t factor = divisor / quotient.divisor;
    const bool isWhole = quotient.dividend || value.number.integral;
    const double largest = quotient.dividend ? quotient.largest : value.number.largest;
    if (isWhole && largest * static_cast<double>(factor) <= kFits)
      whole.push_back(to.operation(lite::Operator::Multiply,
                                   {quotient.dividend ? quotient.dividend : value.node, to.integer(factor)}));
  }
  return whole.size() == keys.size() ? whole : keys;
}

/// Selects sort keys behind the columns of every branch and sorts the whole by its places. SQLite then sorts
/// each branch and merges them, and no row is handed on once more to be sorted.
void mergeInOrder(Lowerer& to, const sql::Query& query, const std::vector<LoweredQuery>& branches,
                  LoweredQuery& whole) {
  std::size_t columns = whole.columns.size();
  for (const auto& item : query.orderBy) {
    const auto output = static_cast<std::size_t>(item.output);
    std::size_t place = output + 1;
    if (whole.columns[output].kind == sql::TypeKind::Number && !whole.columns[output].number.integral) {
      const auto keys = keysOf(to, branches, output);
      place = ++columns;
      const std::string_view name = to.keep("sort key " + std::to_string(place));
      for (std::size_t i = 0; i < branches.size(); ++i)
        whole.query->branches[i].select->items.push_back({keys[i], name});
    }
    whole.query->orderBy.push_back(
        {to.integer(static_cast<std::int64_t>(place)), item.descending, item.nullsFirst()});
  }
}

/// The columns of a branch, without the keys that it may be sorted by.
lite::Select* columnsOf(Lowerer& to, const LoweredQuery& branch) {
  lite::Select* select = to.select();
  for (const auto& column : branch.columns) select->items.push_back({to.name({}, column.name), {}});
  select->from.push_back(to.source({}, branch.query));
  return select;
}

}  // namespace

LoweredQuery lowerSetOperators(Lowerer& to, const sql::Query& query) {
  LoweredQuery result{to.query()};
  std::vector<LoweredQuery> branches;
  // Minus and intersect compare what is selected, so keys may stand beside it only where the keys follow from
  // it.
  bool mergeable = true;
  for (const auto& term : query.terms) {
    LoweredQuery branch = term.block ? to.lower(*term.block, nullptr) : to.lower(*term.query);
    const bool alone = term.block && !term.block->usesRownum;
    mergeable = mergeable && alone;
    result.query->branches.push_back({term.op == sql::SetOp::Minus ? "EXCEPT" : sql::spelling(term.op),
                                      alone ? branch.query->branches.front().select : columnsOf(to, branch)});
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
    mergeInOrder(to, query, branches, result);
    return result;
  }

  const std::string_view alias = to.uniqueAlias("U");
  std::vector<Value> outputs;
  for (const auto& column : result.columns) outputs.push_back(to.column(alias, column));
  lite::Select* sorted = to.select();
  sorted->items.push_back({to.star(), {}});
  sorted->from.push_back(to.source(alias, result.query));
  result.query = to.query(sorted);
  result.query->orderBy = lowerOrder(to, query.orderBy, &outputs);
  return result;
}

}  // namespace kestrelix::repository_file
