// Window functions that give the value of another row: LAG, LEAD, FIRST_VALUE, LAST_VALUE, NTH_VALUE.
#include "platform/embedded/lowering/rules.h"
#include "platform/embedded/lowering/walk.h"

namespace kestrelix::embedded {
namespace {

struct OtherRow {
  std::string_view name;
  const char* function;
  const char* known;  ///< with IGNORE NULLS: over the values of the frame that are there
};
constexpr OtherRow kOtherRows[] = {
    {"LAG", "lag(", "last_known("},
    {"LEAD", "lead(", "first_known("},
    {"FIRST_VALUE", "first_value(", "first_known("},
    {"LAST_VALUE", "last_value(", "last_known("},
    {"NTH_VALUE", "nth_value(", "first_known("},
};

const OtherRow& ruleOf(const sql::Call& call) {
  for (const auto& rule : kOtherRows)
    if (rule.name == call.name) return rule;
  throw sql::SqlError::internal("a window function without a rule", call.place);
}

}  // namespace

bool givesOtherRow(const sql::Call& call) {
  for (const auto& rule : kOtherRows)
    if (rule.name == call.name) return true;
  return false;
}

Piece lowerOtherRow(Emitter& emitter, const sql::Call& call) {
  const OtherRow& rule = ruleOf(call);
  const bool shifts = call.name == "LAG" || call.name == "LEAD";
  const bool known = call.nulls == sql::NullTreatment::Ignore;
  Piece result;
  result.kind = call.type.kind;
  result.atom = true;
  CommonFacts facts;
  const auto argument = [&](std::size_t i) {
    Piece piece = emitter.converted(emitter.expression(*call.args[i]), result.kind, call.args[i]->place);
    facts.add(piece);
    return piece.text;
  };
  std::string list = argument(0);
  if (call.args.size() > 1) {
    const sql::Expr& which = *call.args[1];
    if ((known || !shifts) && !isRowFree(which))
      throw sql::SqlError::unsupported(std::string(call.name) + " with an offset of each row", which.place);
    list += ", " + rowOffset(emitter, which, known || !shifts ? 1 : 0);
  }
  const std::string missing = call.args.size() > 2 ? argument(2) : "";
  result.number = facts.facts();
  if (!shifts || !known) {
    if (!missing.empty()) list += ", " + missing;
    result.text = (known ? rule.known : rule.function) + list + ")" + overText(emitter, *call.over);
    return result;
  }
  result.text = rule.known + list + ") OVER (" + partitionText(emitter, *call.over) +
                lowerOrder(emitter, call.over->orderBy, nullptr) +
                (call.name == "LAG" ? " ROWS BETWEEN UNBOUNDED PRECEDING AND 1 PRECEDING)"
                                    : " ROWS BETWEEN 1 FOLLOWING AND UNBOUNDED FOLLOWING)");
  if (!missing.empty()) result.text = "coalesce(" + result.text + ", " + missing + ")";
  return result;
}

}  // namespace kestrelix::embedded
