// Chains of arithmetic, as programs write them by the hundred, are one call for many operators: calls nested
// in each other would be deeper than SQLite takes.
#include "oracle_sql/syntax/spelling.h"
#include "repository_file/lowering/rules.h"

namespace kestrelix::repository_file {
namespace {

using sql::TypeKind;

/// A chain of fewer operators is written as it stands.
constexpr std::size_t kShortChain = 8;

/// The operators of numbers from left to right that end in `arithmetic`, the last one first.
std::vector<const sql::Arithmetic*> spineOf(const sql::Arithmetic& arithmetic) {
  std::vector<const sql::Arithmetic*> spine;
  for (const auto* node = &arithmetic; node; node = sql::as<sql::Arithmetic>(node->left)) {
    if (node->left->type.kind == TypeKind::Date || node->right->type.kind == TypeKind::Date) break;
    spine.push_back(node);
  }
  return spine;
}

}  // namespace

Lowered lowerLongChain(Lowerer& to, const sql::Arithmetic& arithmetic) {
  const auto spine = spineOf(arithmetic);
  if (spine.size() <= kShortChain) return {};
  const auto number = [&](const sql::Expr& expr) { return to.lowerAs(expr, TypeKind::Number).node; };
  const lite::Expr* chain = number(*spine.back()->left);
  for (auto node = spine.rbegin(); node != spine.rend();) {
    std::string operators;
    std::vector<const lite::Expr*> args{chain, nullptr};
    for (std::size_t i = 0; i < lite::kMostArguments && node != spine.rend(); ++i, ++node) {
      operators += sql::spelling((*node)->op);
      operators += std::to_string((*node)->place.offset);
      args.push_back(number(*(*node)->right));
    }
    args[1] = to.text(to.keep(operators));
    chain = to.call("num_chain", args);
  }
  return Value{chain, TypeKind::Number};
}

}  // namespace kestrelix::repository_file
