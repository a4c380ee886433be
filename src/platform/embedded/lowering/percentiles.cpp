// MEDIAN, PERCENTILE_CONT and PERCENTILE_DISC: SQLite has none of them.
#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {

using sql::TypeKind;

bool isPercentile(const sql::Call& call) {
  return call.name == "MEDIAN" || call.name == "PERCENTILE_CONT" || call.name == "PERCENTILE_DISC";
}

Piece lowerPercentile(Emitter& emitter, const sql::Call& call) {
  const bool median = call.name == "MEDIAN";
  const sql::Expr& operand = median ? *call.args.front() : *call.withinGroup.front().expr;
  const Piece value = emitter.converted(emitter.expression(operand), call.type.kind, operand.place);
  Piece result;
  result.kind = call.type.kind;
  result.atom = true;
  const std::string continuous = call.type.kind == TypeKind::Date ? "date_percentile(" : "num_percentile(";
  if (median) {
    result.text = continuous + value.text + ")";
    return result;
  }
  const std::string share =
      emitter.converted(emitter.expression(*call.args.front()), TypeKind::Number, call.args.front()->place)
          .text;
  if (call.name == "PERCENTILE_CONT") {
    const bool descending = call.withinGroup.front().descending;
    result.text = continuous + value.text + ", " + share + (descending ? ", 1)" : ", 0)");
    return result;
  }
  result.text =
      "percentile_disc(" + value.text + ", " + share + sortKeys(emitter, call.withinGroup, false) + ")";
  result.number = value.number;
  return result;
}

}  // namespace kestrelix::embedded
