#include "platform/embedded/lowering/builders.h"
#include "platform/embedded/lowering/rules.h"
#include "platform/embedded/lowering/walk.h"

namespace kestrelix::embedded {
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

/// = ANY and <> ALL.
Lowered lowerQuantifiedIn(Lowerer& to, const sql::Compare& compare) {
  const bool any = compare.quantifier == sql::Quantifier::Any;
  if (!compare.query || compare.op != (any ? sql::CompareOp::Equal : sql::CompareOp::NotEqual)) return {};
  return inQuery(to, lowerRow(to, *compare.left), !any, *compare.query, compare.place);
}

Lowered lowerQuantifiedQuery(Lowerer& to, const sql::Compare& compare) {
  if (!compare.query) return {};
  const auto operand = lowerRow(to, *compare.left);
  if (operand.size() > 1) throw sql::SqlError::unsupported("a row against ANY or ALL", compare.place);
  walkExpressions(*compare.left, [&](const sql::Expr& e) {
    const auto* call = sql::as<sql::Call>(&e);
    if (call && call->over)
      throw sql::SqlError::unsupported("a window against ANY or ALL of a subquery", e.place);
    if (call && call->role == sql::CallRole::Aggregate && !to.replacements.count(&e))
      throw sql::SqlError::unsupported("an aggregate of all rows against ANY or ALL of a subquery", e.place);
  });
  const LoweredQuery lowered = to.lower(*compare.query);
  lite::Select* tests = selectFrom(to, lowered.query);
  tests->items.push_back(
      {compared(to, compare.op, operand.front(), to.column({}, lowered.columns.front()), compare.place),
       "test"});
  // One row decides; else a row that is neither true nor false leaves the whole so.
  const auto* test = to.name({}, "test");
  const bool any = compare.quantifier == sql::Quantifier::Any;
  const auto* decided = any ? to.call("max", {test}) : to.negatedIf(true, to.call("min", {test}));
  lite::Case& verdict = *to.choice();
  verdict.arms.push_back({decided, to.integer(any ? 1 : 0)});
  verdict.arms.push_back(
      {to.operation(Operator::Equal, {to.call("count", {to.star()}), to.call("count", {test})}),
       to.integer(any ? 0 : 1)});
  lite::Select* whole = selectFrom(to, to.query(tests));
  whole->items.push_back({&verdict, {}});
  return Value{to.subquery(to.query(whole))};
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

}  // namespace kestrelix::embedded
