#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {
namespace {

/// Whether the query has one row by its form: an aggregate without GROUP BY.
bool givesOneRow(const sql::Query& query) {
  const sql::SelectBlock* block = query.single();
  return block && block->grouped && block->groupBy.empty() && !block->having;
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

std::string lowerInQuery(Emitter& emitter, const std::vector<Piece>& operand, bool negated,
                         const sql::Query& query, sql::Place place) {
  const QueryText text = emitter.query(query);
  std::string left;
  std::string list;
  bool converts = false;
  for (std::size_t i = 0; i < operand.size(); ++i) {
    const SourceColumn& column = text.columns.at(i);
    Piece item;
    item.kind = column.kind;
    item.text = quoted(column.name);
    item.atom = true;
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
