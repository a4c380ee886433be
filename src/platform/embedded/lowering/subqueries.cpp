#include "platform/embedded/lowering/rules.h"
#include "platform/embedded/lowering/walk.h"

namespace kestrelix::embedded {
namespace {

/// Whether the query has one row by its form: an aggregate without GROUP BY.
bool givesOneRow(const sql::Query& query) {
  const sql::SelectBlock* block = query.single();
  return block && block->grouped && block->groupBy.empty() && !block->having;
}

/// What a condition reads of a subquery in FROM.
Piece memberOf(const SourceColumn& column) {
  Piece member;
  member.text = quoted(column.name);
  member.kind = column.kind;
  member.number = column.number;
  member.atom = member.cheap = true;
  return member;
}

/// Both sides of a comparison with the columns of a query.
struct Members {
  std::vector<std::string> values;
  std::vector<std::string> columns;
  bool converts = false;  ///< a column does not stand as it is
};

Members membersOf(Emitter& emitter, const std::vector<Piece>& operand, const QueryText& query,
                  sql::Place place) {
  Members members;
  for (std::size_t i = 0; i < operand.size(); ++i) {
    const Piece item = memberOf(query.columns.at(i));
    const auto comparison = sql::comparisonOf(sql::Type{operand[i].kind}, sql::Type{item.kind});
    sql::TypeKind target = sql::TypeKind::Varchar2;
    if (comparison == sql::Comparison::Number) target = sql::TypeKind::Number;
    if (comparison == sql::Comparison::Date) target = sql::TypeKind::Date;
    if (comparison == sql::Comparison::Raw) target = sql::TypeKind::Raw;
    std::string value = emitter.converted(operand[i], target, place).text;
    std::string member = emitter.converted(item, target, place).text;
    if (comparison == sql::Comparison::PaddedText) {
      value = "rtrim(" + value + ", ' ')";
      member = "rtrim(" + member + ", ' ')";
    }
    members.converts = members.converts || member != item.text;
    members.values.push_back(std::move(value));
    members.columns.push_back(std::move(member));
  }
  return members;
}

std::string listed(const std::vector<std::string>& texts) {
  std::string list;
  for (const auto& text : texts) list += (list.empty() ? "" : ", ") + text;
  return list;
}

}  // namespace

Piece lowerScalarSubquery(Emitter& emitter, const sql::SubqueryExpr& subquery) {
  const bool oneRow = givesOneRow(*subquery.query);
  const QueryText text = emitter.query(*subquery.query);
  if (!oneRow) emitter.deepen(1);
  const SourceColumn& column = text.columns.front();
  Piece piece;
  piece.kind = subquery.type.kind;
  piece.number = column.number;
  piece.atom = true;
  // SQLite takes the first of several rows; in Oracle the second one is an error.
  piece.text = oneRow ? "(" + text.text + ")"
                      : "(SELECT only_row(" + quoted(column.name) + ", " +
                            std::to_string(subquery.place.offset) + ") FROM (" + text.text + "))";
  return piece;
}

std::string lowerExists(Emitter& emitter, const sql::Exists& exists) {
  return "EXISTS (" + emitter.query(*exists.query).text + ")";
}

std::string lowerQuantifiedQuery(Emitter& emitter, const sql::Compare& compare,
                                 const std::vector<Piece>& operand) {
  const bool any = compare.quantifier == sql::Quantifier::Any;
  if (any && compare.op == sql::CompareOp::Equal)
    return lowerInQuery(emitter, operand, false, *compare.query, compare.place);
  if (!any && compare.op == sql::CompareOp::NotEqual)
    return lowerInQuery(emitter, operand, true, *compare.query, compare.place);
  if (operand.size() > 1) throw sql::SqlError::unsupported("a row against ANY or ALL", compare.place);
  walkExpressions(*compare.left, [&](const sql::Expr& e) {
    const auto* call = sql::as<sql::Call>(&e);
    if (call && call->over)
      throw sql::SqlError::unsupported("a window against ANY or ALL of a subquery", e.place);
    if (call && call->role == sql::CallRole::Aggregate && !emitter.replacements().count(&e))
      throw sql::SqlError::unsupported("an aggregate of all rows against ANY or ALL of a subquery", e.place);
  });
  const QueryText text = emitter.query(*compare.query);
  const std::string test =
      compared(emitter, compare.op, operand.front(), memberOf(text.columns.front()), compare.place);
  // One row decides; else a row that is neither true nor false leaves the whole so.
  const std::string verdict = any ? "WHEN max(\"test\") THEN 1 WHEN count(*) = count(\"test\") THEN 0"
                                  : "WHEN NOT min(\"test\") THEN 0 WHEN count(*) = count(\"test\") THEN 1";
  return "(SELECT CASE " + verdict + " END FROM (SELECT " + test + " AS \"test\" FROM (" + text.text + ")))";
}

std::string lowerInQuery(Emitter& emitter, const std::vector<Piece>& operand, bool negated,
                         const sql::Query& query, sql::Place place) {
  const QueryText text = emitter.query(query);
  const Members members = membersOf(emitter, operand, text, place);
  const bool plain = !members.converts && query.orderBy.empty();
  return "((" + listed(members.values) + (negated ? ") NOT IN (" : ") IN (") +
         (plain ? text.text : "SELECT " + listed(members.columns) + " FROM (" + text.text + ")") + "))";
}

std::string lowerRowAgainstQuery(Emitter& emitter, const std::vector<Piece>& row, bool negated,
                                 const sql::SubqueryExpr& subquery) {
  const QueryText text = emitter.query(*subquery.query);
  Members members = membersOf(emitter, row, text, subquery.place);
  const std::string place = ", " + std::to_string(subquery.place.offset) + ")";
  for (auto& column : members.columns) column = "only_row(" + column + place;
  return "((" + listed(members.values) + (negated ? ") <> (" : ") = (") + "SELECT " +
         listed(members.columns) + " FROM (" + text.text + ")))";
}

}  // namespace kestrelix::embedded
