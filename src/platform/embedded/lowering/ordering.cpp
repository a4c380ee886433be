#include <utility>

#include "platform/embedded/lowering/rules.h"
#include "platform/embedded/sort_keys.h"

namespace kestrelix::embedded {
namespace {

/// SQLite hands no more than 127 arguments to a function.
constexpr std::size_t kMaxKeysOfAggregate = 60;

}  // namespace

bool isPlainNumber(const std::string& text) {
  return text.find_first_not_of("0123456789+-() ") == std::string::npos;
}

std::string sortKey(const Piece& piece) {
  // A quotient sorts as its dividend does.
  if (!piece.quotient.dividend.empty()) return piece.quotient.dividend;
  if (piece.kind == sql::TypeKind::Number && !piece.number.integral) return "num_key(" + piece.text + ")";
  return piece.text;
}

std::string sortKeys(Emitter& emitter, const sql::List<sql::OrderItem>& items, bool backwards) {
  if (items.size() > kMaxKeysOfAggregate)
    throw sql::SqlError::unsupported("an aggregate with so many sort keys", items.front().place);
  std::string text;
  for (const auto& item : items) {
    const bool descending = item.descending != backwards;
    const bool nullsFirst = item.nullsFirst() != backwards;
    text += ", " + sortKey(emitter.expression(*item.expr)) + ", " +
            std::to_string((descending ? kDescending : 0) + (nullsFirst ? kNullsFirst : 0));
  }
  return text;
}

std::string lowerOrder(Emitter& emitter, const sql::List<sql::OrderItem>& items,
                       const std::vector<Piece>* outputs) {
  std::string text;
  const auto* around = std::exchange(emitter.outputs(), outputs ? outputs : emitter.outputs());
  for (const auto& item : items) {
    const bool isOutput = outputs && item.output >= 0;
    const Piece piece =
        isOutput ? outputs->at(static_cast<std::size_t>(item.output)) : emitter.expression(*item.expr);
    // A constant sorts nothing, and SQLite would take it for the place of a column.
    if (isPlainNumber(piece.text)) continue;
    const std::string key = sortKey(piece);
    text += (text.empty() ? " ORDER BY " : ", ") + key + (item.descending ? " DESC" : "") +
            (item.nullsFirst() ? " NULLS FIRST" : " NULLS LAST");
  }
  emitter.outputs() = around;
  return text;
}

}  // namespace kestrelix::embedded
