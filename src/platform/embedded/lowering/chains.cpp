// Chains of one operator, as programs write them by the hundred. SQLite allows an expression a depth of
// 1,000, and its parser 100 open brackets and calls, so a long chain is not written as its terms nested in
// each other.
#include <algorithm>

#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {
namespace {

using sql::TypeKind;

/// A chain of fewer operators is written as it stands.
constexpr std::size_t kShortChain = 8;
/// Of SQLite's 127 arguments of a function, those that take up the chain.
constexpr std::size_t kOperandsOfCall = 100;
/// Terms of one bracket.
constexpr std::size_t kTermsOfBracket = 100;

/// The operators of numbers from left to right that end in `arithmetic`, the last one first.
std::vector<const sql::Arithmetic*> spineOf(const sql::Arithmetic& arithmetic) {
  std::vector<const sql::Arithmetic*> spine;
  for (const auto* node = &arithmetic; node; node = sql::as<sql::Arithmetic>(node->left)) {
    if (node->left->type.kind == TypeKind::Date || node->right->type.kind == TypeKind::Date) break;
    spine.push_back(node);
  }
  return spine;
}

char signOf(sql::ArithmeticOp op) {
  switch (op) {
    case sql::ArithmeticOp::Add:
      return '+';
    case sql::ArithmeticOp::Subtract:
      return '-';
    case sql::ArithmeticOp::Multiply:
      return '*';
    case sql::ArithmeticOp::Divide:
      break;
  }
  return '/';
}

/// SQLite's coalesce wants two arguments at least and kOperandsOfCall at most.
std::string coalesce(std::vector<std::string> values) {
  while (values.size() < 2) values.push_back("NULL");
  std::string text;
  while (!values.empty()) {
    const std::size_t begin = values.size() > kOperandsOfCall ? values.size() - kOperandsOfCall : 0;
    std::string list;
    for (std::size_t i = begin; i < values.size(); ++i) list += (list.empty() ? "" : ", ") + values[i];
    values.resize(begin);
    text = "coalesce(" + list + ")";
    if (begin > 0) values.push_back(text);
  }
  return text;
}

/// What stands between CASE and END of a value that is a searched CASE and nothing else; else empty.
std::string_view searchedArms(const Piece& piece) {
  constexpr std::string_view kBegin = "CASE";
  constexpr std::string_view kEnd = " END";
  std::string_view text = piece.text;
  if (!piece.searched || !text.starts_with("CASE WHEN ") || !text.ends_with(kEnd)) return {};
  text.remove_prefix(kBegin.size());
  text.remove_suffix(kEnd.size());
  return text;
}

}  // namespace

bool isLongChain(const sql::Arithmetic& arithmetic) { return spineOf(arithmetic).size() > kShortChain; }

Piece lowerLongChain(Emitter& emitter, const sql::Arithmetic& arithmetic) {
  const auto spine = spineOf(arithmetic);
  const auto number = [&](const sql::Expr& expr) {
    return emitter.converted(emitter.expression(expr), TypeKind::Number, expr.place).text;
  };
  Piece piece;
  piece.kind = TypeKind::Number;
  piece.atom = true;
  piece.text = number(*spine.back()->left);
  for (auto node = spine.rbegin(); node != spine.rend();) {
    std::string operators;
    std::string operands;
    for (std::size_t i = 0; i < kOperandsOfCall && node != spine.rend(); ++i, ++node) {
      operators += signOf((*node)->op) + std::to_string((*node)->place.offset);
      operands += ", " + number(*(*node)->right);
    }
    piece.text = "num_chain(" + piece.text + ", " + textLiteral(operators) + operands + ")";
  }
  return piece;
}

std::string chained(std::vector<std::string> terms, const std::string& op) {
  while (terms.size() > kTermsOfBracket) {
    std::vector<std::string> brackets;
    for (std::size_t begin = 0; begin < terms.size(); begin += kTermsOfBracket) {
      const auto end = std::min(begin + kTermsOfBracket, terms.size());
      brackets.push_back("(" +
                         chained({terms.begin() + static_cast<std::ptrdiff_t>(begin),
                                  terms.begin() + static_cast<std::ptrdiff_t>(end)},
                                 op) +
                         ")");
    }
    terms = std::move(brackets);
  }
  std::string text;
  for (const auto& term : terms) text += (text.empty() ? "" : op) + term;
  return text;
}

std::string elseOf(const Piece& piece) {
  const auto arms = searchedArms(piece);
  return arms.empty() ? " ELSE " + piece.text : std::string(arms);
}

std::vector<std::string> alternativesOf(const Piece& piece) {
  if (piece.alternatives.empty() || piece.text != coalesce(piece.alternatives)) return {piece.text};
  return piece.alternatives;
}

void setAlternatives(Piece& piece, std::vector<std::string> alternatives) {
  piece.text = coalesce(alternatives);
  piece.alternatives = std::move(alternatives);
}

}  // namespace kestrelix::embedded
