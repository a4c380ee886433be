// Window functions. The default frame is Oracle's and SQLite's alike: from the first row to the peers of the
// current one.
#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {
namespace {

using sql::TypeKind;

std::string boundText(Emitter& emitter, const sql::FrameBound& bound) {
  switch (bound.kind) {
    case sql::BoundKind::UnboundedPreceding:
      return "UNBOUNDED PRECEDING";
    case sql::BoundKind::UnboundedFollowing:
      return "UNBOUNDED FOLLOWING";
    case sql::BoundKind::CurrentRow:
      return "CURRENT ROW";
    case sql::BoundKind::Preceding:
      return emitter.expression(*bound.offset).text + " PRECEDING";
    case sql::BoundKind::Following:
      break;
  }
  return emitter.expression(*bound.offset).text + " FOLLOWING";
}

void refuseRangeOffset(const sql::Window& window, sql::Place place) {
  const bool offset = window.start.offset || window.end.offset;
  if (window.unit == sql::FrameUnit::Range && offset)
    throw sql::SqlError::unsupported("RANGE with an offset", place);
}

std::string partitionText(Emitter& emitter, const sql::Window& window) {
  std::string text;
  for (const sql::Expr* key : window.partitionBy)
    text += (text.empty() ? "PARTITION BY " : ", ") + emitter.expression(*key).text;
  return text;
}

std::string overText(Emitter& emitter, const sql::Window& window, sql::Place place) {
  refuseRangeOffset(window, place);
  std::string text = partitionText(emitter, window) + lowerOrder(emitter, window.orderBy, nullptr);
  if (window.unit != sql::FrameUnit::None) {
    text += window.unit == sql::FrameUnit::Rows ? " ROWS " : " RANGE ";
    text += window.between
                ? "BETWEEN " + boundText(emitter, window.start) + " AND " + boundText(emitter, window.end)
                : boundText(emitter, window.start);
  }
  return " OVER (" + text + ")";
}

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
  total.text = "num_sum(" + value.text + ") OVER (" + partitionText(emitter, *call.over) + ")";
  total.atom = true;
  return divided(emitter, value, total, call.place);
}

/// The share of the rows of the partition in front of the row (PERCENT_RANK) or up to its peers (CUME_DIST).
Piece rankShare(Emitter& emitter, const sql::Call& call) {
  const std::string over = overText(emitter, *call.over, call.place);
  const std::string all = "count(*) OVER (" + partitionText(emitter, *call.over) + ")";
  if (call.name == "CUME_DIST")
    return divided(emitter, rankPiece("count(*)" + over), rankPiece(all), call.place);
  return divided(emitter, rankPiece("(rank()" + over + " - 1)"), rankPiece("max(" + all + " - 1, 1)"),
                 call.place);
}

/// The same with IGNORE NULLS: the nearest or outermost row that has a value.
Piece otherKnownRow(Emitter& emitter, const sql::Call& call) {
  Piece result;
  result.kind = call.type.kind;
  result.atom = true;
  const Piece value = emitter.converted(emitter.expression(*call.args[0]), result.kind, call.args[0]->place);
  result.number = value.number;
  if (call.name == "FIRST_VALUE" || call.name == "LAST_VALUE") {
    result.text = std::string(call.name == "FIRST_VALUE" ? "first_known(" : "last_known(") + value.text +
                  ")" + overText(emitter, *call.over, call.place);
    return result;
  }
  const bool byOne = call.args.size() < 2 || emitter.expression(*call.args[1]).text == "1";
  if ((call.name != "LAG" && call.name != "LEAD") || !byOne || call.args.size() > 2)
    throw sql::SqlError::unsupported("IGNORE NULLS of " + std::string(call.name) + " over more than one row",
                                     call.place);
  const bool lag = call.name == "LAG";
  result.text = std::string(lag ? "last_known(" : "first_known(") + value.text + ") OVER (" +
                partitionText(emitter, *call.over) + lowerOrder(emitter, call.over->orderBy, nullptr) +
                (lag ? " ROWS BETWEEN UNBOUNDED PRECEDING AND 1 PRECEDING)"
                     : " ROWS BETWEEN 1 FOLLOWING AND UNBOUNDED FOLLOWING)");
  return result;
}

/// LAG, LEAD, FIRST_VALUE, LAST_VALUE, NTH_VALUE: the value of another row.
Piece otherRow(Emitter& emitter, const sql::Call& call) {
  if (call.nulls == sql::NullTreatment::Ignore) return otherKnownRow(emitter, call);
  Piece result;
  result.kind = call.type.kind;
  result.atom = true;
  CommonFacts facts;
  const Piece value = emitter.converted(emitter.expression(*call.args[0]), result.kind, call.args[0]->place);
  facts.add(value);
  const bool shifts = call.name == "LAG" || call.name == "LEAD";
  std::string list = value.text;
  if (call.args.size() > 1) list += ", " + emitter.expression(*call.args[1]).text;
  if (call.args.size() > 2) {
    const Piece missing =
        emitter.converted(emitter.expression(*call.args[2]), result.kind, call.args[2]->place);
    facts.add(missing);
    list += ", " + missing.text;
  }
  const char* function = call.name == "LAG"           ? "lag("
                         : call.name == "LEAD"        ? "lead("
                         : call.name == "FIRST_VALUE" ? "first_value("
                         : call.name == "LAST_VALUE"  ? "last_value("
                                                      : "nth_value(";
  if (shifts && call.over->unit != sql::FrameUnit::None)
    throw sql::SqlError::unsupported("a frame of " + std::string(call.name), call.place);
  result.text = function + list + ")" + overText(emitter, *call.over, call.place);
  result.number = facts.facts();
  return result;
}

}  // namespace

Piece lowerWindow(Emitter& emitter, const sql::Call& call) {
  const std::string_view name = call.name;
  if (name == "RATIO_TO_REPORT") return ratioToReport(emitter, call);
  if (name == "ROW_NUMBER") return rankPiece("row_number()" + overText(emitter, *call.over, call.place));
  if (name == "RANK") return rankPiece("rank()" + overText(emitter, *call.over, call.place));
  if (name == "DENSE_RANK") return rankPiece("dense_rank()" + overText(emitter, *call.over, call.place));
  if (name == "NTILE")
    return rankPiece("ntile(" + emitter.expression(*call.args[0]).text + ")" +
                     overText(emitter, *call.over, call.place));
  if (name == "PERCENT_RANK" || name == "CUME_DIST") return rankShare(emitter, call);
  if (name == "LAG" || name == "LEAD" || name == "FIRST_VALUE" || name == "LAST_VALUE" || name == "NTH_VALUE")
    return otherRow(emitter, call);
  if (call.distinct && !call.keep && name == "COUNT")
    return rankPiece("count_distinct(" + emitter.expression(*call.args[0]).text + ")" +
                     overText(emitter, *call.over, call.place));
  if (call.distinct && !call.keep)
    throw sql::SqlError::unsupported("DISTINCT in this window function", call.place);
  Piece result = lowerAggregate(emitter, call);
  // The extreme of a frame that moves needs every value in it.
  for (const char* extreme : {"num_min(", "num_max("})
    if (result.text.rfind(extreme, 0) == 0) result.text.insert(7, "_moving");
  result.text += overText(emitter, *call.over, call.place);
  return result;
}

}  // namespace kestrelix::embedded
