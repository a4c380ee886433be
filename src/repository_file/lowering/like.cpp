// LIKE: case counts, and no character escapes without ESCAPE.
#include "repository_file/lowering/rules.h"

namespace kestrelix::repository_file {
namespace {

using lite::Operator;

std::int64_t characters(std::string_view text) {
  std::int64_t count = 0;
  for (const char c : text) count += (static_cast<unsigned char>(c) & 0xC0) != 0x80 ? 1 : 0;
  return count;
}

const lite::Expr* textOf(Lowerer& to, const sql::Expr* expr) {
  return expr ? to.lowerAs(*expr, sql::TypeKind::Varchar2).node : to.text("");
}

}  // namespace

/// A pattern that asks for a beginning, a piece or the whole of the text needs no function of ours.
Lowered lowerPlainLike(Lowerer& to, const sql::LikeExpr& like) {
  const auto* literal = sql::as<sql::StringLiteral>(like.pattern);
  if (!literal || like.escape) return {};
  std::string_view pattern = literal->value;
  const bool front = pattern.starts_with('%');
  if (front) pattern.remove_prefix(1);
  const bool back = pattern.ends_with('%');
  if (back) pattern.remove_suffix(1);
  if (pattern.empty() || pattern.find_first_of("%_") != std::string_view::npos || (front && !back)) return {};
  const auto* operand = textOf(to, like.operand);
  const auto* piece = to.text(pattern);
  if (front)
    return Value{to.negatedIf(
        like.negated, to.operation(Operator::Greater, {to.call("instr", {operand, piece}), to.integer(0)}))};
  if (back) operand = to.call("substr", {operand, to.integer(1), to.integer(characters(pattern))});
  return Value{to.negatedIf(like.negated, to.operation(Operator::Equal, {operand, piece}))};
}

Lowered lowerLike(Lowerer& to, const sql::LikeExpr& like) {
  return Value{
      to.negatedIf(like.negated, to.call("ora_like", {textOf(to, like.operand), textOf(to, like.pattern),
                                                      textOf(to, like.escape), to.place(like.place)}))};
}

}  // namespace kestrelix::repository_file
