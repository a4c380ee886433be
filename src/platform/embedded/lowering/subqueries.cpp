#include "platform/embedded/lowering/rules.h"

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
  std::string left;
  std::string list;
  bool converts = false;
  for (std::size_t i = 0; i < operand.size(); ++i) {
    const Piece item = memberOf(text.columns.at(i));
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
    converts = converts || member != item.text;
    left += (left.empty() ? "" : ", ") + value;
    list += (list.empty() ? "" : ", ") + member;
  }
  return "((" + left + (negated ? ") NOT IN (" : ") IN (") +
         (converts || !query.orderBy.empty() ? "SELECT " + list + " FROM (" + text.text + ")" : text.text) +
         "))";
}

}  // namespace kestrelix::embedded
