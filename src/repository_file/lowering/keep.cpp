// KEEP (DENSE_RANK FIRST|LAST ...): SQLite's aggregates know no order, so the sort keys go along, and the
// aggregate itself drops the rows that another one comes before. The last ones are the first of the order
// turned round. DISTINCT in a window, which SQLite lacks, keeps all rows of the partition.
#include "platform/ascii.h"
#include "repository_file/lowering/builders.h"
#include "repository_file/lowering/rules.h"

namespace kestrelix::repository_file {

Lowered lowerKeep(Lowerer& to, const sql::Call& call) {
  if (!call.keep && !(call.distinct && call.over)) return {};
  Value result{nullptr, call.type.kind};
  Value argument{to.integer(1)};
  if (!call.args.empty()) argument = to.lower(*call.args.front());
  std::string function;
  if (call.name == "COUNT") {
    function = "count";
    result.number = {true, 1e15};
    result.present = true;
  } else if (call.name == "MIN" || call.name == "MAX") {
    const bool native = argument.kind != sql::TypeKind::Number || argument.number.integral;
    function = std::string(native ? "" : "num_") + (call.name == "MAX" ? "max" : "min");
    result.number = argument.number;
  } else {
    function = "num_" + asciiLower(call.name);
    argument = to.converted(argument, sql::TypeKind::Number, call.args.front()->place);
  }
  std::vector<const lite::Expr*> args{argument.node};
  if (call.keep) addSortKeys(to, call.keep->orderBy, call.keep->last, args);
  result.node = setCall(to, call, to.keep("keep_" + function + (call.distinct ? "_distinct" : "")), args);
  return result;
}

}  // namespace kestrelix::repository_file
