// Window functions that give the value of another row: LAG, LEAD, FIRST_VALUE, LAST_VALUE, NTH_VALUE.
#include "repository_file/lowering/builders.h"
#include "repository_file/lowering/rules.h"
#include "repository_file/lowering/walk.h"

namespace kestrelix::repository_file {
namespace {

struct OtherRow {
  std::string_view name;
  std::string_view function;
  std::string_view known;  ///< with IGNORE NULLS: over the values of the frame that are there
};
constexpr OtherRow kOtherRows[] = {
    {"LAG", "lag", "last_known"},
    {"LEAD", "lead", "first_known"},
    {"FIRST_VALUE", "first_value", "first_known"},
    {"LAST_VALUE", "last_value", "last_known"},
    {"NTH_VALUE", "nth_value", "first_known"},
};

/// The rows on one side of the current one.
const lite::Window* rowsBeside(Lowerer& to, const sql::Window& window, bool before) {
  lite::Window* rows = lowerPartition(to, window);
  rows->orderBy = lowerOrder(to, window.orderBy, nullptr);
  rows->unit = "ROWS";
  rows->start =
      before ? lite::Bound{nullptr, "UNBOUNDED PRECEDING"} : lite::Bound{to.integer(1), "FOLLOWING"};
  rows->end = before ? lite::Bound{to.integer(1), "PRECEDING"} : lite::Bound{nullptr, "UNBOUNDED FOLLOWING"};
  return rows;
}

}  // namespace

Lowered lowerOtherRow(Lowerer& to, const sql::Call& call) {
  const OtherRow* rule = nullptr;
  for (const auto& row : kOtherRows)
    if (row.name == call.name) rule = &row;
  if (!rule || call.role != sql::CallRole::Window) return {};
  const bool shifts = call.name == "LAG" || call.name == "LEAD";
  const bool known = call.nulls == sql::NullTreatment::Ignore;
  CommonFacts facts;
  const auto argument = [&](std::size_t i) {
    const Value value = to.lowerAs(*call.args[i], call.type.kind);
    facts.add(value);
    return value.node;
  };
  std::vector<const lite::Expr*> args{argument(0)};
  if (call.args.size() > 1) {
    const sql::Expr& which = *call.args[1];
    if ((known || !shifts) && !isRowFree(which))
      throw sql::SqlError::unsupported(std::string(call.name) + " with an offset of each row", which.place);
    args.push_back(rowOffset(to, which, known || !shifts ? 1 : 0));
  }
  const lite::Expr* missing = call.args.size() > 2 ? argument(2) : nullptr;
  Value result{nullptr, call.type.kind, facts.facts()};
  if (!shifts || !known) {
    if (missing) args.push_back(missing);
    result.node = setCall(to, call, known ? rule->known : rule->function, args);
    return result;
  }
  lite::Call* other = to.call(rule->known, args);
  other->over = rowsBeside(to, *call.over, call.name == "LAG");
  result.node = missing ? to.coalesce({other, missing}) : other;
  return result;
}

}  // namespace kestrelix::repository_file
