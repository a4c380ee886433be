#include "repository_file/lowering/rules.h"

namespace kestrelix::repository_file {
namespace {

void collect(Lowerer& to, const sql::Expr& expr, std::vector<Value>& parts) {
  if (const auto* concat = sql::as<sql::Concat>(&expr)) {
    collect(to, *concat->left, parts);
    collect(to, *concat->right, parts);
    return;
  }
  parts.push_back(to.lowerAs(expr, sql::TypeKind::Varchar2));
}

}  // namespace

Lowered lowerConcat(Lowerer& to, const sql::Concat& concat) {
  std::vector<Value> parts;
  collect(to, concat, parts);
  Value value{nullptr, sql::TypeKind::Varchar2};
  std::vector<const lite::Expr*> terms;
  for (const Value& part : parts) {
    if (part.kind == sql::TypeKind::Null) continue;
    terms.push_back(part.present ? part.node : to.coalesce({part.node, to.text("")}));
    value.present = value.present || part.present;
  }
  value.node = terms.empty() ? to.null() : to.operation(lite::Operator::Concat, terms);
  if (!value.present) value.node = to.call("nullif", {value.node, to.text("")});
  return value;
}

}  // namespace kestrelix::repository_file
