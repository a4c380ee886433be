#include "repository_file/lowering/sqlite_tree.h"

#include <algorithm>

namespace kestrelix::repository_file::lite {

const Expr* Builder::operation(Operator op, Nodes operands) {
  if (operands.size() == 1 && op >= Operator::Or) return operands.front();
  return make(Operation{{Kind::Operation}, op, list(operands)});
}

void Builder::close(Case& choice, const Expr* otherwise) {
  const Case* inner = as<Case>(otherwise);
  const bool joins = inner && !inner->operand && !choice.operand;
  if (joins) choice.arms.insert(choice.arms.end(), inner->arms.begin(), inner->arms.end());
  choice.otherwise = joins ? inner->otherwise : otherwise;
}

Select* Builder::select() {
  Memory* m = memory();
  return make(Select{false, List<Item>(m), From(m), Exprs(m), Exprs(m)});
}

Query* Builder::query(Select* select) {
  Memory* m = memory();
  Query* query = make(Query{List<Named>(m), List<Branch>(m), List<Order>(m)});
  if (select) query->branches.push_back({{}, select});
  return query;
}

Query* Builder::oneRow(const Expr* expr, std::string_view name) {
  Select* row = select();
  row->items.push_back({expr, name});
  return query(row);
}

Source Builder::source(std::string_view alias, Query* query) {
  Source source(memory());
  source.alias = alias;
  source.query = query;
  return source;
}

Source Builder::bracketed(From joins) {
  Source source(memory());
  source.joins = std::move(joins);
  return source;
}

std::string_view Builder::keep(std::string_view text) {
  auto* place = static_cast<char*>(memory_.allocate(std::max<std::size_t>(text.size(), 1), 1));
  std::copy(text.begin(), text.end(), place);
  return {place, text.size()};
}

}  // namespace kestrelix::repository_file::lite
