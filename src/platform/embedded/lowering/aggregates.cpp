// Aggregates count in NUMBER. The extremes of whole numbers, dates and text are SQLite's own, so that an
// index may give them.
#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {
namespace {

using sql::TypeKind;

/// A million of these fit 64 bits. Should a sum not fit all the same, SQLite's sum fails, and the statement
/// is lowered again for wide sums.
constexpr double kSmallSummand = 9e12;
/// No whole number of 64 bits is larger.
constexpr double kAnyWhole = 9.3e18;

struct NumberAggregate {
  std::string_view name;
  const char* function;
};
constexpr NumberAggregate kNumberAggregates[] = {
    {"SUM", "num_sum"},
    {"AVG", "num_avg"},
    {"STDDEV", "num_stddev"},
    {"VARIANCE", "num_variance"},
    {"VAR_SAMP", "num_var_samp"},
    {"VAR_POP", "num_var_pop"},

    {"STDDEV_POP", "num_stddev_pop"},
    {"STDDEV_SAMP", "num_stddev_samp"},
};

/// The texts of a group in an order of their own.
Piece listAggregate(Emitter& emitter, const sql::Call& call, const std::vector<Piece>& arguments) {
  Piece result;
  result.kind = call.type.kind;
  result.atom = true;
  const auto text = [&](std::size_t i) {
    return emitter.converted(arguments.at(i), TypeKind::Varchar2, call.place).text;
  };
  result.text = "listagg(" + text(0) + ", " + (arguments.size() > 1 ? text(1) : "''");
  result.text += sortKeys(emitter, call.withinGroup, false) + ")";
  return result;
}

}  // namespace

Piece lowerAggregate(Emitter& emitter, const sql::Call& call) {
  if (isPercentile(call)) return lowerPercentile(emitter, call);
  std::vector<Piece> arguments;
  for (const sql::Expr* argument : call.args) arguments.push_back(emitter.expression(*argument));
  if (call.keep || (call.distinct && call.over)) return lowerKeep(emitter, call, arguments);
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
  if (call.name == "LISTAGG") return listAggregate(emitter, call, arguments);
  for (const auto& aggregate : kNumberAggregates) {
    if (aggregate.name != call.name) continue;
    const Piece argument = emitter.converted(arguments.at(0), TypeKind::Number, call.args.front()->place);
    const bool native = call.name == "SUM" && argument.number.integral &&
                        argument.number.largest <= kSmallSummand && !emitter.facts().wideSums;
    result.text = std::string(native ? "sum" : aggregate.function) + "(" + distinct + argument.text + ")";
    if (native) result.number = {true, kAnyWhole};
    return result;
  }
  throw sql::SqlError::unsupported("the aggregate " + std::string(call.name), call.place);
}

}  // namespace kestrelix::embedded
