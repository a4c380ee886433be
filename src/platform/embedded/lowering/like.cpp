// LIKE: case counts, and no character escapes without ESCAPE. A pattern that asks for a beginning, a piece or
// the whole of the text needs no function.
#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {
namespace {

std::size_t characters(std::string_view text) {
  std::size_t count = 0;
  for (const char c : text) count += (static_cast<unsigned char>(c) & 0xC0) != 0x80 ? 1 : 0;
  return count;
}

/// The condition in SQLite's own functions, or nothing for other patterns.
std::string plainLike(const std::string& operand, std::string_view pattern) {
  const bool front = pattern.starts_with('%');
  if (front) pattern.remove_prefix(1);
  const bool back = pattern.ends_with('%');
  if (back) pattern.remove_suffix(1);
  if (pattern.empty() || pattern.find_first_of("%_") != std::string_view::npos) return {};
  const std::string literal = textLiteral(pattern);
  if (front) return back ? "instr(" + operand + ", " + literal + ") > 0" : std::string();
  if (back) return "substr(" + operand + ", 1, " + std::to_string(characters(pattern)) + ") = " + literal;
  return operand + " = " + literal;
}

}  // namespace

std::string lowerLike(Emitter& emitter, const sql::LikeExpr& like) {
  const auto text = [&](const sql::Expr& expr) {
    return emitter.converted(emitter.expression(expr), sql::TypeKind::Varchar2, expr.place).text;
  };
  const std::string operand = text(*like.operand);
  const auto* pattern = sql::as<sql::StringLiteral>(like.pattern);
  std::string call = pattern && !like.escape ? plainLike(operand, pattern->value) : std::string();
  if (!call.empty())
    call = "(" + call + ")";
  else
    call = "ora_like(" + operand + ", " + text(*like.pattern) + ", " +
           (like.escape ? text(*like.escape) : "''") + ", " + std::to_string(like.place.offset) + ")";
  return like.negated ? "(NOT " + call + ")" : call;
}

}  // namespace kestrelix::embedded
