// Aggregates count in NUMBER. The extremes of whole numbers, dates and text are SQLite's own, so that an
// index may give them.
#include "repository_file/lowering/builders.h"
#include "repository_file/lowering/rules.h"

namespace kestrelix::repository_file {
namespace {

using sql::TypeKind;

/// A million of these fit 64 bits. Should a sum not fit all the same, the statement is lowered again for wide
/// sums.
constexpr double kSmallSummand = 9e12;
/// No whole number of 64 bits is larger.
constexpr double kAnyWhole = 9.3e18;

struct NumberAggregate {
  std::string_view name;
  std::string_view function;
  std::string_view moving;  ///< over a frame whose begin moves
};
constexpr NumberAggregate kNumberAggregates[] = {
    {"SUM", "num_sum", "num_sum_moving"},
    {"AVG", "num_avg", "num_avg_moving"},
    {"STDDEV", "num_stddev", "num_stddev"},
    {"VARIANCE", "num_variance", "num_variance"},
};

bool beginMoves(const sql::Call& call) {
  return call.over && call.over->unit != sql::FrameUnit::None &&
         call.over->start.kind != sql::BoundKind::UnboundedPreceding;
}

}  // namespace

lite::Call* setCall(Lowerer& to, const sql::Call& call, std::string_view name, lite::Nodes args) {
  lite::Call* lowered = to.call(name, args);
  if (call.over)
    lowered->over = lowerWindow(to, *call.over);
  else if (to.filter)
    lowered->filter = to.filter;
  else if (to.anchor && namesOnlyOuter(call))
    lowered->filter = to.operation(lite::Operator::Or, {to.anchor, to.integer(1)});
  return lowered;
}

Lowered lowerCount(Lowerer& to, const sql::Call& call) {
  lite::Call* count =
      setCall(to, call, "count", {call.args.empty() ? to.star() : to.lower(*call.args.front()).node});
  count->distinct = call.distinct;
  return Value{count, call.type.kind, {true, 1e15}, false, true};
}

Lowered lowerExtreme(Lowerer& to, const sql::Call& call) {
  const Value argument = to.lower(*call.args.front());
  const bool max = call.name == "MAX";
  std::string_view function = max ? "max" : "min";
  // The extreme of a frame that moves needs every value in it.
  if (argument.kind == TypeKind::Number && !argument.number.integral)
    function = call.over ? (max ? "num_max_moving" : "num_min_moving") : (max ? "num_max" : "num_min");
  return Value{setCall(to, call, function, {argument.node}), call.type.kind, argument.number};
}

/// The texts of a group in an order of their own.
Lowered lowerList(Lowerer& to, const sql::Call& call) {
  const auto text = [&](std::size_t i) {
    return to.converted(to.lower(*call.args[i]), TypeKind::Varchar2, call.place).node;
  };
  std::vector<const lite::Expr*> args{text(0), call.args.size() > 1 ? text(1) : to.text("")};
  addSortKeys(to, call.withinGroup, false, args);
  return Value{setCall(to, call, "listagg", args), call.type.kind};
}

Lowered lowerNumberAggregate(Lowerer& to, const sql::Call& call) {
  if (call.role == sql::CallRole::Scalar) return {};
  for (const auto& aggregate : kNumberAggregates) {
    if (aggregate.name != call.name) continue;
    const Value argument = to.lowerAs(*call.args.front(), TypeKind::Number);
    const bool native = call.name == "SUM" && argument.number.integral &&
                        argument.number.largest <= kSmallSummand && !to.facts.wideSums;
    lite::Call* sum = setCall(to, call,
                              native             ? "sum"
                              : beginMoves(call) ? aggregate.moving
                                                 : aggregate.function,
                              {argument.node});
    sum->distinct = call.distinct;
    return Value{sum, call.type.kind, native ? NumberFacts{true, kAnyWhole} : NumberFacts{}};
  }
  return {};
}

}  // namespace kestrelix::repository_file
