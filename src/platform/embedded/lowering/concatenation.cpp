#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {
namespace {

void collect(Emitter& emitter, const sql::Expr& expr, std::vector<Piece>& parts) {
  if (const auto* concat = sql::as<sql::Concat>(&expr)) {
    collect(emitter, *concat->left, parts);
    collect(emitter, *concat->right, parts);
    return;
  }
  parts.push_back(emitter.converted(emitter.expression(expr), sql::TypeKind::Varchar2, expr.place));
}

}  // namespace

Piece lowerConcat(Emitter& emitter, const sql::Concat& concat) {
  std::vector<Piece> parts;
  collect(emitter, concat, parts);
  Piece piece;
  piece.kind = sql::TypeKind::Varchar2;
  std::vector<std::string> terms;
  for (const Piece& part : parts) {
    if (part.kind == sql::TypeKind::Null) continue;
    terms.push_back(part.present ? bracketed(part) : "coalesce(" + part.text + ", '')");
    piece.present = piece.present || part.present;
  }
  piece.text = chained(std::move(terms), " || ");
  if (piece.text.empty()) piece.text = "NULL";
  if (!piece.present) {
    piece.text = "nullif(" + piece.text + ", '')";
    piece.atom = true;
  }
  return piece;
}

}  // namespace kestrelix::embedded
