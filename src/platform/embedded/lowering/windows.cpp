// Window functions that rank rows, and aggregates over a frame.
#include "platform/embedded/lowering/rules.h"
#include "platform/embedded/lowering/walk.h"

namespace kestrelix::embedded {
namespace {

using sql::TypeKind;

Piece rankPiece(std::string text) {
  Piece piece;
  piece.text = std::move(text);
  piece.kind = TypeKind::Number;
  piece.number = {true, 1e15};
  piece.atom = true;
  piece.present = true;
  return piece;
}

Piece ratioToReport(Emitter& emitter, const sql::Call& call) {
  const Piece value =
      emitter.converted(emitter.expression(*call.args[0]), TypeKind::Number, call.args[0]->place);
  Piece total;
  total.kind = TypeKind::Number;
  // The share in a total of zero is NULL, no error.
  total.text = "nullif(num_sum(" + value.text + ") OVER (" + partitionText(emitter, *call.over) + "), 0)";
  total.atom = true;
  return divided(emitter, value, total, call.place);
}

/// The share of the rows of the partition in front of the row (PERCENT_RANK) or up to its peers (CUME_DIST).
Piece rankShare(Emitter& emitter, const sql::Call& call) {
  const std::string over = overText(emitter, *call.over);
  const std::string all = "count(*) OVER (" + partitionText(emitter, *call.over) + ")";
  if (call.name == "CUME_DIST")
    return divided(emitter, rankPiece("count(*)" + over), rankPiece(all), call.place);
  return divided(emitter, rankPiece("(rank()" + over + " - 1)"), rankPiece("max(" + all + " - 1, 1)"),
                 call.place);
}

Piece ntile(Emitter& emitter, const sql::Call& call) {
  const sql::Expr& buckets = *call.args[0];
  if (!isRowFree(buckets)) throw sql::SqlError::unsupported("NTILE with a count of each row", buckets.place);
  return rankPiece("ntile(" + rowOffset(emitter, buckets, 1) + ")" + overText(emitter, *call.over));
}

}  // namespace

Piece lowerWindow(Emitter& emitter, const sql::Call& call) {
  const std::string_view name = call.name;
  if (name == "RATIO_TO_REPORT") return ratioToReport(emitter, call);
  if (name == "ROW_NUMBER") return rankPiece("row_number()" + overText(emitter, *call.over));
  if (name == "RANK") return rankPiece("rank()" + overText(emitter, *call.over));
  if (name == "DENSE_RANK") return rankPiece("dense_rank()" + overText(emitter, *call.over));
  if (name == "NTILE") return ntile(emitter, call);
  if (name == "PERCENT_RANK" || name == "CUME_DIST") return rankShare(emitter, call);
  if (givesOtherRow(call)) return lowerOtherRow(emitter, call);
  Piece result = lowerAggregate(emitter, call);
  // The extreme of a frame that moves needs every value in it.
  for (const char* extreme : {"num_min(", "num_max("})
    if (result.text.rfind(extreme, 0) == 0) result.text.insert(7, "_moving");
  const sql::Window& window = *call.over;
  const bool beginMoves =
      window.unit != sql::FrameUnit::None && window.start.kind != sql::BoundKind::UnboundedPreceding;
  for (const char* sum : {"num_sum(", "num_avg("})
    if (beginMoves && result.text.rfind(sum, 0) == 0) result.text.insert(7, "_moving");
  result.text += overText(emitter, *call.over);
  return result;
}

}  // namespace kestrelix::embedded
