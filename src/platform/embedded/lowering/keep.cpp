// KEEP (DENSE_RANK FIRST|LAST ...): SQLite's aggregates know no order, so the sort keys go along, and the
// aggregate itself drops the rows that another one comes before. The last ones are the first of the order
// turned round. DISTINCT in a window, which SQLite lacks, keeps all rows of the partition.
#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {
namespace {

using sql::TypeKind;

struct KeptNumber {
  std::string_view name;
  const char* function;
};
constexpr KeptNumber kKeptNumbers[] = {
    {"SUM", "num_sum"},
    {"AVG", "num_avg"},
    {"STDDEV", "num_stddev"},
    {"VARIANCE", "num_variance"},
};

}  // namespace

Piece lowerKeep(Emitter& emitter, const sql::Call& call, const std::vector<Piece>& arguments) {
  Piece result;
  result.kind = call.type.kind;
  result.atom = true;
  std::string function;
  std::string value = "1";
  if (!arguments.empty()) value = arguments.front().text;
  if (call.name == "COUNT") {
    function = "count";
    result.number = {true, 1e15};
    result.present = true;
  } else if (call.name == "MIN" || call.name == "MAX") {
    const Piece& argument = arguments.front();
    const bool native = argument.kind != TypeKind::Number || argument.number.integral;
    function = std::string(native ? "" : "num_") + (call.name == "MAX" ? "max" : "min");
    result.number = argument.number;
  }
  for (const auto& number : kKeptNumbers) {
    if (number.name != call.name) continue;
    function = number.function;
    value = emitter.converted(arguments.front(), TypeKind::Number, call.args.front()->place).text;
  }
  if (function.empty())
    throw sql::SqlError::unsupported("KEEP of the aggregate " + std::string(call.name), call.place);
  result.text = "keep_" + function + (call.distinct ? "_distinct(" : "(") + value +
                (call.keep ? sortKeys(emitter, call.keep->orderBy, call.keep->last) : "") + ")";
  return result;
}

}  // namespace kestrelix::embedded
