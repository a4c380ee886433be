#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {
namespace {

const char* joinWord(sql::JoinKind kind) {
  switch (kind) {
    case sql::JoinKind::Left:
      return " LEFT JOIN ";
    case sql::JoinKind::Right:
      return " RIGHT JOIN ";
    case sql::JoinKind::Full:
      return " FULL JOIN ";
    case sql::JoinKind::Cross:
      return " CROSS JOIN ";
    case sql::JoinKind::Inner:
      break;
  }
  return " JOIN ";
}

}  // namespace

std::string lowerJoin(Emitter& emitter, const sql::JoinItem& join) {
  const std::string left = emitter.source(*join.left);
  std::string right = emitter.source(*join.right);
  if (join.right->kind == sql::FromKind::Join) right = "(" + right + ")";

  std::string on;
  for (const auto& merged : join.merged) {
    const Piece a = emitter.column(merged.leftSource, merged.leftColumn);
    const Piece b = emitter.column(merged.rightSource, merged.rightColumn);
    on += (on.empty() ? "" : " AND ") + compared(emitter, sql::CompareOp::Equal, a, b, join.place);
  }
  if (join.on) on = emitter.condition(*join.on);
  return left + joinWord(join.join) + right + (on.empty() ? "" : " ON " + on);
}

}  // namespace kestrelix::embedded
