#include "repository_file/lowering/rules.h"

namespace kestrelix::repository_file {
namespace {

using lite::Operator;

Value joined(Lowerer& to, Operator op, const sql::ExprList& terms) {
  std::vector<const lite::Expr*> conditions;
  for (const sql::Expr* term : terms) conditions.push_back(to.condition(*term));
  return {to.operation(op, conditions)};
}

}  // namespace

Lowered lowerAnd(Lowerer& to, const sql::AndExpr& both) { return joined(to, Operator::And, both.terms); }

Lowered lowerOr(Lowerer& to, const sql::OrExpr& either) { return joined(to, Operator::Or, either.terms); }

Lowered lowerNot(Lowerer& to, const sql::NotExpr& negation) {
  return Value{to.negatedIf(true, to.condition(*negation.operand))};
}

Lowered lowerIsNull(Lowerer& to, const sql::IsNull& test) {
  return Value{
      to.operation(test.negated ? Operator::IsNotNull : Operator::IsNull, {to.lower(*test.operand).node})};
}

Lowered lowerLnnvl(Lowerer& to, const sql::Lnnvl& test) {
  return Value{to.operation(Operator::IsNotTrue, {to.condition(*test.operand)})};
}

}  // namespace kestrelix::repository_file
