#include "repository_file/lowering/builders.h"
#include "repository_file/sort_keys.h"

namespace kestrelix::repository_file {
namespace {

/// SQLite hands no more than 127 arguments to a function.
constexpr std::size_t kMaxKeysOfAggregate = 60;

}  // namespace

bool isWholeLiteral(const lite::Expr* expr) {
  const auto* operation = lite::as<lite::Operation>(expr);
  if (operation && operation->op == lite::Operator::Minus) return isWholeLiteral(operation->operands.front());
  return expr->kind == lite::Kind::Integer;
}

const lite::Expr* sortKey(Lowerer& to, const Value& value) {
  // A quotient sorts as its dividend does.
  if (value.quotient.dividend) return value.quotient.dividend;
  if (value.kind == sql::TypeKind::Number && !value.number.integral) return to.call("num_key", {value.node});
  return value.node;
}

void addSortKeys(Lowerer& to, const sql::List<sql::OrderItem>& items, bool backwards,
                 std::vector<const lite::Expr*>& args) {
  if (items.size() > kMaxKeysOfAggregate)
    throw sql::SqlError::unsupported("an aggregate with so many sort keys", items.front().place);
  for (const auto& item : items) {
    const bool descending = item.descending != backwards;
    const bool nullsFirst = item.nullsFirst() != backwards;
    args.push_back(sortKey(to, to.lower(*item.expr)));
    args.push_back(to.integer((descending ? kDescending : 0) + (nullsFirst ? kNullsFirst : 0)));
  }
}

lite::List<lite::Order> lowerOrder(Lowerer& to, const sql::List<sql::OrderItem>& items,
                                   const std::vector<Value>* outputs) {
  lite::List<lite::Order> order(to.memory());
  const Within named(to.outputs, outputs ? outputs : to.outputs);
  for (const auto& item : items) {
    const bool isOutput = outputs && item.output >= 0;
    const Value value = isOutput ? outputs->at(static_cast<std::size_t>(item.output)) : to.lower(*item.expr);
    // A constant sorts nothing, and SQLite would take it for the place of a column.
    if (!isWholeLiteral(value.node))
      order.push_back({sortKey(to, value), item.descending, item.nullsFirst()});
  }
  return order;
}

}  // namespace kestrelix::repository_file
