// ROWNUM numbers the rows that pass the rest of WHERE, before the block that it stands in groups, sorts or
// drops doubles. A bound from above is a LIMIT; where more is asked, the rows are taken from an inner block
// that numbers them.
#include "repository_file/lowering/block.h"
#include "repository_file/lowering/builders.h"
#include "repository_file/lowering/walk.h"

namespace kestrelix::repository_file {
namespace {

using sql::CompareOp;

bool isOne(const sql::Expr& expr) {
  const auto* number = sql::as<sql::NumberLiteral>(&expr);
  return number && number->text == "1";
}

/// The LIMIT that `term` sets, or null where it is more than a bound from above.
const lite::Expr* limitOf(Lowerer& to, const sql::Expr& term) {
  const auto* compare = sql::as<sql::Compare>(&term);
  if (!compare) return nullptr;
  const sql::Expr* bound = compare->right;
  CompareOp op = compare->op;
  if (bound->kind == sql::ExprKind::Rownum) {
    bound = compare->left;
    op = mirrored(op);
  } else if (compare->left->kind != sql::ExprKind::Rownum) {
    return nullptr;
  }
  if (!isRowFree(*bound)) return nullptr;
  if (op == CompareOp::Equal && isOne(*bound)) return to.integer(1);
  if (op != CompareOp::Less && op != CompareOp::LessEqual) return nullptr;
  return to.call(op == CompareOp::Less ? "rows_below" : "rows_up_to",
                 {to.lowerAs(*bound, sql::TypeKind::Number).node});
}

bool namesRownumOutsideWhere(const sql::SelectBlock& block) {
  for (const auto& column : block.columns)
    if (namesRownum(*column.expr)) return true;
  for (const sql::Expr* key : block.groupBy)
    if (namesRownum(*key)) return true;
  return block.having && namesRownum(*block.having);
}

/// Whether the block reads nothing but one inline view with an order.
bool isSortedView(const sql::SelectBlock& block) {
  if (block.from.size() != 1) return false;
  const auto* view = sql::as<sql::DerivedItem>(block.from.front());
  return view && !view->query->orderBy.empty();
}

void addNumber(Lowerer& to, lite::Select& select, std::string_view name) {
  lite::Call* number = to.call("row_number", {});
  number->over = to.window();
  select.items.push_back({number, name});
}

lite::Select* rowsOf(Lowerer& to, BlockParts parts, const Wrap& wrap) {
  lite::Select* rows = to.select();
  rows->from = std::move(parts.from);
  rows->where.assign(parts.where.begin(), parts.where.end());
  addExports(to, wrap, *rows);
  return rows;
}

/// The rows of the block of which one after the other tries the next number: it is used up when the row
/// passes. The first row starts anew, since a correlated subquery runs once for each row around it.
lite::Select* passingRows(Lowerer& to, BlockParts parts, const std::vector<const sql::Expr*>& tests,
                          const Wrap& numbered) {
  Wrap tried = wrapOf(to, parts.block, "TRIED");
  const auto* counter = to.integer(to.newRownumCounter());
  const auto* row = to.name(tried.alias, "row");
  to.wraps.push_back(&tried);
  const Within<const lite::Expr*> number(to.rownum, to.call("rownum_to_try", {counter, row}));
  std::vector<const lite::Expr*> passes;
  for (const sql::Expr* term : tests) passes.push_back(to.condition(*term));
  lite::Select* passing = to.select();
  addExports(to, numbered, *passing);
  to.wraps.pop_back();

  lite::Select* rows = rowsOf(to, std::move(parts), tried);
  addNumber(to, *rows, "row");
  lite::Query* query = to.query(rows);
  query->limit = to.integer(-1);
  passing->from.push_back(to.source(tried.alias, query));
  passing->where.push_back(to.call("rownum_passes", {counter, row, to.allOf(passes)}));
  return passing;
}

}  // namespace

LoweredQuery lowerRownumBlock(Lowerer& to, BlockParts parts, const std::vector<const sql::Expr*>& conjuncts) {
  const sql::SelectBlock& block = parts.block;
  const lite::Expr* limit = nullptr;
  std::vector<const sql::Expr*> others;
  for (const sql::Expr* term : conjuncts) {
    if (!namesRownum(*term))
      parts.where.push_back(to.condition(*term));
    else if (const lite::Expr* bound = limitOf(to, *term))
      limit = limit ? to.call("min", {limit, bound}) : bound;
    else
      others.push_back(term);
  }

  if (others.empty() && !parts.isOrdered() && !block.grouped && !block.distinct && !block.windowed &&
      !namesRownumOutsideWhere(block)) {
    if (limit && parts.where.empty() && isSortedView(block)) {
      // The limit goes into the view: SQLite then keeps only so many rows while it sorts.
      parts.from.front().query->limit = limit;
      limit = nullptr;
    }
    LoweredQuery result = assembleBlock(to, std::move(parts));
    result.query->limit = limit;
    return result;
  }

  // The block reads its rows, numbered, from an inner one, which is made once its columns are known.
  lite::Query* inner = to.query();
  Wrap numbered = wrapOf(to, block, "NUMBERED");
  BlockParts around{block, parts.order, lite::From(to.memory()), {}};
  around.from.push_back(to.source(numbered.alias, inner));
  to.wraps.push_back(&numbered);
  to.rownum = to.name(numbered.alias, "ROWNUM");
  LoweredQuery result = assembleBlock(to, std::move(around));
  to.wraps.pop_back();

  lite::Select* rows = others.empty() ? rowsOf(to, std::move(parts), numbered)
                                      : passingRows(to, std::move(parts), others, numbered);
  addNumber(to, *rows, "ROWNUM");
  inner->branches.push_back({{}, rows});
  inner->limit = limit ? limit : to.integer(-1);
  return result;
}

}  // namespace kestrelix::repository_file
