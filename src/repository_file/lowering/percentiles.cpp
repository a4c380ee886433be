// MEDIAN, PERCENTILE_CONT and PERCENTILE_DISC: SQLite has none of them.
#include "repository_file/lowering/builders.h"
#include "repository_file/lowering/rules.h"

namespace kestrelix::repository_file {
namespace {

std::string_view continuous(const sql::Call& call) {
  return call.type.kind == sql::TypeKind::Date ? "date_percentile" : "num_percentile";
}

}  // namespace

Lowered lowerMedian(Lowerer& to, const sql::Call& call) {
  const Value value = to.lowerAs(*call.args.front(), call.type.kind);
  return Value{setCall(to, call, continuous(call), {value.node}), call.type.kind};
}

Lowered lowerPercentile(Lowerer& to, const sql::Call& call) {
  const auto& order = call.withinGroup.front();
  const Value value = to.lowerAs(*order.expr, call.type.kind);
  std::vector<const lite::Expr*> args{value.node, to.lowerAs(*call.args.front(), sql::TypeKind::Number).node};
  if (call.name == "PERCENTILE_CONT") {
    args.push_back(to.integer(order.descending ? 1 : 0));
    return Value{setCall(to, call, continuous(call), args), call.type.kind};
  }
  addSortKeys(to, call.withinGroup, false, args);
  return Value{setCall(to, call, "percentile_disc", args), call.type.kind, value.number};
}

}  // namespace kestrelix::repository_file
