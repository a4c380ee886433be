#include "repository_file/lowering/builders.h"
#include "repository_file/lowering/rules.h"
#include "repository_file/lowering/walk.h"

namespace kestrelix::repository_file {
namespace {

using lite::Operator;

/// Whether the query has one row by its form: an aggregate without GROUP BY.
bool givesOneRow(const sql::Query& query) {
  const sql::SelectBlock* block = query.single();
  return block && block->grouped && block->groupBy.empty() && !block->having;
}

/// A query that selects from another one.
lite::Select* selectFrom(Lowerer& to, lite::Query* query) {
  lite::Select* select = to.select();
  select->from.push_back(to.source({}, query));
  return select;
}

const lite::Expr* onlyRow(Lowerer& to, const lite::Expr* column, sql::Place place) {
  return to.call("only_row", {column, to.place(place)});
}

/// Both sides of a comparison with the columns of a query.
struct Members {
  std::vector<const lite::Expr*> values;
  std::vector<const lite::Expr*> columns;
  bool converts = false;  ///< a column does not stand as it is
};

Members membersOf(Lowerer& to, const std::vector<Value>& operand, const LoweredQuery& query,
                  sql::Place place) {
  Members members;
  for (std::size_t i = 0; i < operand.size(); ++i) {
    const Value column = to.column({}, query.columns.at(i));
    const Sides sides = comparable(to, operand[i], column, place);
    const bool padded =
        sql::comparisonOf(sql::Type{operand[i].kind}, sql::Type{column.kind}) == sql::Comparison::PaddedText;
    members.values.push_back(padded ? withoutBlanks(to, sides.left) : sides.left.node);
    members.columns.push_back(padded ? withoutBlanks(to, sides.right) : sides.right.node);
    members.converts = members.converts || members.columns.back() != column.node;
  }
  return members;
}

Value inQuery(Lowerer& to, const std::vector<Value>& operand, bool negated, const sql::Query& query,
              sql::Place place) {
  const LoweredQuery lowered = to.lower(query);
  const Members members = membersOf(to, operand, lowered, place);
  lite::Query* rows = lowered.query;
  if (members.converts || !query.orderBy.empty()) {
    lite::Select* select = selectFrom(to, rows);
    for (const lite::Expr* column : members.columns) select->items.push_back({column, {}});
    rows = to.query(select);
  }
  return {to.in(to.row(members.values), negated, {}, rows)};
}

}  // namespace

Lowered lowerScalarSubquery(Lowerer& to, const sql::SubqueryExpr& subquery) {
  const LoweredQuery lowered = to.lower(*subquery.query);
  const SourceColumn& column = lowered.columns.front();
  lite::Query* query = lowered.query;
  if (!givesOneRow(*subquery.query)) {
    // SQLite takes the first of several rows; in Oracle the second one is an error.
    lite::Select* only = selectFrom(to, query);
    only->items.push_back({onlyRow(to, to.name({}, column.name), subquery.place), {}});
    query = to.query(only);
  }
  return Value{to.subquery(query), subquery.type.kind, column.number};
}

Lowered lowerExists(Lowerer& to, const sql::Exists& exists) {
  return Value{to.exists(to.lower(*exists.query).query)};
}

Lowered lowerInQuery(Lowerer& to, const sql::InExpr& in) {
  if (!in.query) return {};
  return inQuery(to, lowerRow(to, *in.operand), in.negated, *in.query, in.place);
}

/// (a, b) = or <> the only row of a query, unknown without one.
Lowered lowerRowAgainstQuery(Lowerer& to, const sql::Compare& compare) {
  const auto* subquery = sql::as<sql::SubqueryExpr>(compare.right);
  if (!subquery || compare.left->kind != sql::ExprKind::Row) return {};
  const auto row = lowerRow(to, *compare.left);
  const LoweredQuery lowered = to.lower(*subquery->query);
  const Members members = membersOf(to, row, lowered, subquery->place);
  lite::Select* only = selectFrom(to, lowered.query);
  for (const lite::Expr* column : members.columns)
    only->items.push_back({onlyRow(to, column, subquery->place), {}});
  return Value{to.operation(compare.op == sql::CompareOp::NotEqual ? Operator::NotEqual : Operator::Equal,
                            {to.row(members.values), to.subquery(to.query(only))})};
}

}  // namespace kestrelix::repository_file
