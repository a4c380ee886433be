// The first value that is there. COALESCE computes none behind it; NVL and NVL2 compute all that they are
// given, so that a division by zero or a text that is no number fails although nobody asks for its value.
#include <algorithm>

#include "repository_file/lowering/builders.h"
#include "repository_file/lowering/rules.h"

namespace kestrelix::repository_file {
namespace {

/// Whether computing `expr` as a value of `kind` cannot fail: a literal, a bind or a column that needs no
/// conversion, or none but to text, and the first one that is there of several such.
bool cannotFail(const sql::Expr& expr, sql::TypeKind kind) {
  const auto* negated = sql::as<sql::Negate>(&expr);
  const sql::Expr& value =
      negated && negated->operand->kind == sql::ExprKind::Number ? *negated->operand : expr;
  switch (value.kind) {
    case sql::ExprKind::Null:
      return true;
    case sql::ExprKind::Number:
    case sql::ExprKind::String:
    case sql::ExprKind::DateLiteral:
    case sql::ExprKind::Bind:
    case sql::ExprKind::Column:
      return value.type.kind == kind || sql::Type{kind}.isText();
    case sql::ExprKind::Call: {
      const auto& call = *sql::as<sql::Call>(&value);
      return call.package.empty() && (call.name == "NVL" || call.name == "COALESCE") &&
             std::all_of(call.args.begin(), call.args.end(),
                         [&](const sql::Expr* argument) { return cannotFail(*argument, kind); });
    }
    default:
      return false;
  }
}

/// Several values of which one is given.
class Choices {
 public:
  void add(const Value& value) {
    facts.add(value);
    present = present || value.present;
    if (value.node->kind != lite::Kind::Coalesce) return nodes.push_back(value.node);
    const auto& inner = static_cast<const lite::Values&>(*value.node).values;
    nodes.insert(nodes.end(), inner.begin(), inner.end());
  }

  std::vector<const lite::Expr*> nodes;  ///< those of a COALESCE among them one by one
  CommonFacts facts;
  bool present = false;
};

}  // namespace

Lowered lowerCoalesce(Lowerer& to, const sql::Call& call) {
  Choices choices;
  for (const sql::Expr* expr : call.args) {
    const Value value = to.lowerAs(*expr, call.type.kind);
    if (value.kind != sql::TypeKind::Null) choices.add(value);
  }
  return Value{to.coalesce(choices.nodes), call.type.kind, choices.facts.facts(), false, choices.present};
}

Value either(Lowerer& to, const sql::Call& call, const sql::Expr& first, const sql::Expr& second,
             bool computesBoth) {
  const Value value = to.lowerAs(first, call.type.kind);
  const Value otherwise = to.lowerAs(second, call.type.kind);
  Choices choices;
  choices.add(value);
  choices.add(otherwise);
  const lite::Expr* node =
      computesBoth ? to.call("nvl_of_both", {value.node, otherwise.node}) : to.coalesce(choices.nodes);
  return {node, call.type.kind, choices.facts.facts(), false, choices.present};
}

Lowered lowerNvl(Lowerer& to, const sql::Call& call) {
  return either(to, call, *call.args[0], *call.args[1], !cannotFail(*call.args[1], call.type.kind));
}

Lowered lowerNvl2(Lowerer& to, const sql::Call& call) {
  const sql::TypeKind kind = call.type.kind;
  const Value there = to.lowerAs(*call.args[1], kind);
  const Value missing = to.lowerAs(*call.args[2], kind);
  CommonFacts facts;
  facts.add(there);
  facts.add(missing);
  const auto* isThere = to.operation(lite::Operator::IsNotNull, {to.lower(*call.args[0]).node});
  if (!cannotFail(*call.args[1], kind) || !cannotFail(*call.args[2], kind))
    return Value{to.call("nvl2_of_all", {isThere, there.node, missing.node}), kind, facts.facts()};
  lite::Case& choice = *to.choice();
  choice.arms.push_back({isThere, there.node});
  to.close(choice, missing.node);
  return Value{&choice, kind, facts.facts()};
}

Lowered lowerNullif(Lowerer& to, const sql::Call& call) {
  const Value value = to.lower(*call.args[0]);
  lite::Case& choice = *to.choice();
  choice.arms.push_back(
      {compared(to, sql::CompareOp::Equal, value, to.lower(*call.args[1]), call.place), to.null()});
  choice.otherwise = value.node;
  return Value{&choice, value.kind, value.number};
}

}  // namespace kestrelix::repository_file
