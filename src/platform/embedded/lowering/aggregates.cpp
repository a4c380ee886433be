// Aggregates count in NUMBER. The extremes of whole numbers, dates and text are SQLite's own, so that an
// index may give them.
#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {
namespace {

using sql::TypeKind;

struct NumberAggregate {
  std::string_view name;
  const char* function;
};
constexpr NumberAggregate kNumberAggregates[] = {
    {"SUM", "num_sum"},           {"AVG", "num_avg"},           {"STDDEV", "num_stddev"},
    {"VARIANCE", "num_variance"}, {"VAR_SAMP", "num_var_samp"}, {"VAR_POP", "num_var_pop"},
};

}  // namespace

Piece lowerAggregate(Emitter& emitter, const sql::Call& call) {
  std::vector<Piece> arguments;
  for (const sql::Expr* argument : call.args) arguments.push_back(emitter.expression(*argument));
  return aggregateOver(emitter, call, arguments);
}

Piece aggregateOver(Emitter& emitter, const sql::Call& call, const std::vector<Piece>& arguments) {
  if (call.keep) throw sql::SqlError::unsupported("KEEP (DENSE_RANK ...)", call.place);
  Piece result;
  result.kind = call.type.kind;
  result.atom = true;
  const std::string distinct = call.distinct ? "DISTINCT " : "";
  if (call.name == "COUNT") {
    result.text = arguments.empty() ? "count(*)" : "count(" + distinct + arguments[0].text + ")";
    result.number = {true, 1e15};
    result.present = true;
    return result;
  }
  if (call.name == "MIN" || call.name == "MAX") {
    const Piece& argument = arguments.at(0);
    const bool max = call.name == "MAX";
    const bool native = argument.kind != TypeKind::Number || argument.number.integral;
    result.text = std::string(native ? "" : "num_") + (max ? "max(" : "min(") + argument.text + ")";
    result.number = argument.number;
    return result;
  }
  for (const auto& aggregate : kNumberAggregates) {
    if (aggregate.name != call.name) continue;
    const Piece argument = emitter.converted(arguments.at(0), TypeKind::Number, call.args.front()->place);
    result.text = std::string(aggregate.function) + "(" + distinct + argument.text + ")";
    return result;
  }
  throw sql::SqlError::unsupported("the aggregate " + std::string(call.name), call.place);
}

}  // namespace kestrelix::embedded
