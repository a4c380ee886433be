#include <utility>

#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {

std::string sortKey(const Piece& piece) {
  // A quotient sorts as its dividend does.
  if (!piece.quotient.dividend.empty()) return piece.quotient.dividend;
  if (piece.kind == sql::TypeKind::Number && !piece.number.integral) return "num_key(" + piece.text + ")";
  return piece.text;
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
    if (piece.text.find_first_not_of("0123456789+-() ") == std::string::npos) continue;
    const std::string key = sortKey(piece);
    text += (text.empty() ? " ORDER BY " : ", ") + key + (item.descending ? " DESC" : "") +
            (item.nullsFirst() ? " NULLS FIRST" : " NULLS LAST");
  }
  emitter.outputs() = around;
  return text;
}

}  // namespace kestrelix::embedded
