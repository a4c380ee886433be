#include "repository_file/lowering/builders.h"
#include "repository_file/lowering/rules.h"

namespace kestrelix::repository_file {

Lowered lowerCase(Lowerer& to, const sql::CaseExpr& expr) {
  const sql::TypeKind kind = expr.type.kind;
  CommonFacts facts;
  const auto branch = [&](const sql::Expr& value) {
    const Value lowered = to.lowerAs(value, kind);
    facts.add(lowered);
    return lowered.node;
  };
  lite::Case& choice = *to.choice();
  Value operand;
  if (expr.operand) operand = to.lower(*expr.operand);
  for (const auto& arm : expr.whens) {
    const Value when = to.lower(*arm.when);
    const lite::Expr* test =
        expr.operand ? compared(to, sql::CompareOp::Equal, operand, when, arm.when->place) : when.node;
    choice.arms.push_back({test, branch(*arm.then)});
  }
  if (expr.otherwise) to.close(choice, branch(*expr.otherwise));
  return Value{&choice, kind, facts.facts()};
}

}  // namespace kestrelix::repository_file
