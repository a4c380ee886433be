// ROWNUM numbers the rows that pass the rest of WHERE, before the block that it stands in groups, sorts or
// drops doubles. A bound from above is a LIMIT; where more is asked, the rows are taken from an inner block
// that numbers them.
#include "platform/embedded/lowering/rules.h"
#include "platform/embedded/lowering/walk.h"

namespace kestrelix::embedded {
namespace {

using sql::CompareOp;

CompareOp mirrored(CompareOp op) {
  switch (op) {
    case CompareOp::Less:
      return CompareOp::Greater;
    case CompareOp::LessEqual:
      return CompareOp::GreaterEqual;
    case CompareOp::Greater:
      return CompareOp::Less;
    case CompareOp::GreaterEqual:
      return CompareOp::LessEqual;
    default:
      return op;
  }
}

bool isOne(const sql::Expr& expr) {
  const auto* number = sql::as<sql::NumberLiteral>(&expr);
  return number && number->text == "1";
}

/// The LIMIT that `term` sets, or nothing where it is more than a bound from above.
std::string limitOf(Emitter& emitter, const sql::Expr& term) {
  const auto* compare = sql::as<sql::Compare>(&term);
  if (!compare || compare->quantifier != sql::Quantifier::None) return {};
  const sql::Expr* bound = compare->right;
  CompareOp op = compare->op;
  if (bound->kind == sql::ExprKind::Rownum) {
    bound = compare->left;
    op = mirrored(op);
  } else if (compare->left->kind != sql::ExprKind::Rownum) {
    return {};
  }
  if (!isRowFree(*bound)) return {};
  if (op == CompareOp::Equal && isOne(*bound)) return "1";
  if (op != CompareOp::Less && op != CompareOp::LessEqual) return {};
  const Piece value = emitter.converted(emitter.expression(*bound), sql::TypeKind::Number, bound->place);
  return (op == CompareOp::Less ? "rows_below(" : "rows_up_to(") + value.text + ")";
}

bool namesRownumOutsideWhere(const sql::SelectBlock& block, const sql::List<sql::OrderItem>* order) {
  for (const auto& column : block.columns)
    if (namesRownum(*column.expr)) return true;
  for (const sql::Expr* key : block.groupBy)
    if (namesRownum(*key)) return true;
  if (block.having && namesRownum(*block.having)) return true;
  if (order)
    for (const auto& item : *order)
      if (item.output < 0 && namesRownum(*item.expr)) return true;
  return false;
}

/// Whether the block reads nothing but one inline view with an order.
bool isSortedView(const sql::SelectBlock& block) {
  if (block.from.size() != 1) return false;
  const auto* view = sql::as<sql::DerivedItem>(block.from.front());
  return view && !view->query->orderBy.empty();
}

/// The limit goes into the view: SQLite then keeps only so many rows while it sorts.
std::string limitedView(Emitter& emitter, const sql::SelectBlock& block, const std::string& from,
                        const std::string& limit) {
  const std::string end = ") AS " + quoted(emitter.sourceOf(block.from.front()).alias);
  return from.substr(0, from.size() - end.size()) + " LIMIT " + limit + end;
}

}  // namespace

QueryText lowerRownumBlock(Emitter& emitter, const sql::SelectBlock& block, const BlockParts& parts,
                           const sql::List<sql::OrderItem>* order) {
  std::string limit;
  std::vector<const sql::Expr*> plain;
  std::vector<const sql::Expr*> others;
  for (const sql::Expr* term : parts.conjuncts) {
    if (!namesRownum(*term)) {
      plain.push_back(term);
      continue;
    }
    const std::string bound = limitOf(emitter, *term);
    if (bound.empty())
      others.push_back(term);
    else
      limit = limit.empty() ? bound : "min(" + limit + ", " + bound + ")";
  }

  const std::string where = whereOf(emitter, plain);

  const bool sorted = order && !order->empty();
  if (others.empty() && !sorted && !block.grouped && !block.distinct && !block.windowed &&
      !namesRownumOutsideWhere(block, order)) {
    const bool inner = !limit.empty() && where.empty() && isSortedView(block);
    QueryText text = assembleBlock(
        emitter, block, inner ? limitedView(emitter, block, parts.from, limit) : parts.from, where, nullptr);
    if (!limit.empty() && !inner) text.text += " LIMIT " + limit;
    return text;
  }

  // The block reads its rows, numbered, from an inner one.
  emitter.deepen(others.empty() ? 1 : 2);
  Wrap numbered = wrapOf(emitter, block, "NUMBERED");
  emitter.wraps().push_back(&numbered);
  emitter.rownum() = quoted(numbered.alias) + ".\"ROWNUM\"";
  const std::string mark = "\x01";  // where the inner block goes once its columns are known
  QueryText text = assembleBlock(emitter, block, mark, "", order);
  emitter.wraps().pop_back();

  std::string inner;
  if (others.empty()) {
    const std::string list = exportList(emitter, numbered);
    inner = "SELECT " + list + (list.empty() ? "" : ", ") + "row_number() OVER () AS \"ROWNUM\" FROM " +
            parts.from + where + " LIMIT " + (limit.empty() ? "-1" : limit);
  } else {
    // A row is given the next number to try; the number is used up when the row passes. The first row starts
    // anew, since a correlated subquery runs once for each row around it.
    Wrap tried = wrapOf(emitter, block, "TRIED");
    const std::string counter =
        std::to_string(emitter.newRownumCounter()) + ", " + quoted(tried.alias) + ".\"row\"";
    emitter.wraps().push_back(&tried);
    emitter.rownum() = "rownum_to_try(" + counter + ")";
    std::string passes;
    for (const sql::Expr* term : others) passes += (passes.empty() ? "" : " AND ") + emitter.condition(*term);
    const std::string list = exportList(emitter, numbered);
    emitter.wraps().pop_back();
    const std::string triedList = exportList(emitter, tried);
    inner = "SELECT " + list + (list.empty() ? "" : ", ") +
            "row_number() OVER () AS \"ROWNUM\" FROM (SELECT " + triedList + (triedList.empty() ? "" : ", ") +
            "row_number() OVER () AS \"row\" FROM " + parts.from + where + " LIMIT -1) AS " +
            quoted(tried.alias) + " WHERE rownum_passes(" + counter + ", " + passes + ") LIMIT " +
            (limit.empty() ? "-1" : limit);
  }
  text.text.replace(text.text.find(mark), mark.size(), "(" + inner + ") AS " + quoted(numbered.alias));
  return text;
}

}  // namespace kestrelix::embedded
