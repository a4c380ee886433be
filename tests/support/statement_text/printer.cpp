#include "support/statement_text/printer.h"

#include "oracle_sql/syntax/spelling.h"
#include "support/statement_text/printer_state.h"
#include "support/statement_text/quoting.h"

namespace oracle_sql {

void Printer::query(const Query& q) {
  for (std::size_t i = 0; i < q.with.size(); ++i) {
    const WithItem& item = *q.with[i];
    out_ += i == 0 ? "WITH " : ", ";
    name(item.name);
    if (!item.columnNames.empty()) {
      out_ += " (";
      names(item.columnNames);
      out_ += ')';
    }
    out_ += " AS (";
    query(*item.query);
    out_ += ')';
  }
  if (!q.with.empty()) out_ += ' ';
  for (const SetTerm& term : q.terms) {
    if (term.op != SetOp::None) {
      out_ += ' ';
      out_ += spelling(term.op);
      out_ += ' ';
    }
    if (term.block)
      block(*term.block);
    else
      bracketed(*term.query);
  }
  if (!q.orderBy.empty()) {
    out_ += ' ';
    order(q.orderBy);
  }
}

void Printer::bracketed(const Query& q) {
  out_ += '(';
  query(q);
  out_ += ')';
}

void Printer::names(const List<std::string_view>& list) {
  for (std::size_t i = 0; i < list.size(); ++i) {
    if (i > 0) out_ += ", ";
    name(list[i]);
  }
}

void Printer::list(const ExprList& items) {
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (i > 0) out_ += ", ";
    expr(*items[i], kAdditive);
  }
}

void Printer::block(const SelectBlock& b) {
  out_ += "SELECT ";
  if (!b.hint.empty()) {
    out_ += b.hint;
    out_ += b.hint.front() == '-' ? '\n' : ' ';
  }
  if (b.distinct) out_ += "DISTINCT ";
  for (std::size_t i = 0; i < b.items.size(); ++i) {
    if (i > 0) out_ += ", ";
    item(b.items[i]);
  }
  out_ += " FROM ";
  for (std::size_t i = 0; i < b.from.size(); ++i) {
    if (i > 0) out_ += ", ";
    from(*b.from[i]);
  }
  if (b.where) {
    out_ += " WHERE ";
    expr(*b.where);
  }
  if (!b.groupBy.empty()) {
    out_ += " GROUP BY ";
    if (b.grouping.empty())
      list(b.groupBy);
    else
      groupings(b.grouping);
  }
  if (b.having) {
    out_ += " HAVING ";
    expr(*b.having);
  }
}

void Printer::groupings(const List<GroupingTerm*>& terms) {
  for (std::size_t i = 0; i < terms.size(); ++i) {
    if (i > 0) out_ += ", ";
    const GroupingTerm& t = *terms[i];
    if (t.rollup) out_ += "ROLLUP";
    out_ += '(';
    list(t.keys);
    groupings(t.terms);
    out_ += ')';
  }
}

void Printer::item(const SelectItem& s) {
  if (s.star) {
    if (!s.qualifier.empty()) {
      name(s.qualifier);
      out_ += '.';
    }
    out_ += '*';
    return;
  }
  expr(*s.expr, kAdditive);
  alias(" AS ", s.alias);
}

void Printer::alias(const char* lead, std::string_view a) {
  if (a.empty()) return;
  out_ += lead;
  name(a);
}

void Printer::from(const FromItem& f) {
  switch (f.kind) {
    case FromKind::Table: {
      const auto& t = static_cast<const TableItem&>(f);
      if (!t.schema.empty()) {
        name(t.schema);
        out_ += '.';
      }
      name(t.name);
      break;
    }
    case FromKind::Derived:
      bracketed(*static_cast<const DerivedItem&>(f).query);
      break;
    case FromKind::Join:
      join(static_cast<const JoinItem&>(f));
      return;
    case FromKind::Pivot:
      pivot(static_cast<const PivotItem&>(f));
      break;
  }
  alias(" ", f.alias);
}

void Printer::join(const JoinItem& j) {
  from(*j.left);
  out_ += ' ';
  out_ += spelling(j.join);
  out_ += " JOIN ";
  const bool brackets = j.right->kind == FromKind::Join;
  if (brackets) out_ += '(';
  from(*j.right);
  if (brackets) out_ += ')';
  if (j.on) {
    out_ += " ON ";
    expr(*j.on);
  }
  if (!j.usingNames.empty()) {
    out_ += " USING (";
    names(j.usingNames);
    out_ += ')';
  }
}

void Printer::pivot(const PivotItem& p) {
  from(*p.source);
  out_ += " PIVOT (";
  for (std::size_t i = 0; i < p.aggregates.size(); ++i) {
    if (i > 0) out_ += ", ";
    expr(*p.aggregates[i].call);
    alias(" AS ", p.aggregates[i].alias);
  }
  out_ += " FOR (";
  for (std::size_t i = 0; i < p.forColumns.size(); ++i) {
    if (i > 0) out_ += ", ";
    expr(*p.forColumns[i]);
  }
  out_ += ") IN (";
  for (std::size_t i = 0; i < p.values.size(); ++i) {
    const PivotValue& v = p.values[i];
    if (i > 0) out_ += ", ";
    if (v.values.size() > 1) out_ += '(';
    list(v.values);
    if (v.values.size() > 1) out_ += ')';
    alias(" AS ", v.alias);
  }
  out_ += "))";
}

void Printer::order(const List<OrderItem>& items) {
  out_ += "ORDER BY ";
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (i > 0) out_ += ", ";
    expr(*items[i].expr, kAdditive);
    if (items[i].descending) out_ += " DESC";
    if (items[i].nulls != NullsOrder::Default)
      out_ += items[i].nulls == NullsOrder::First ? " NULLS FIRST" : " NULLS LAST";
  }
}

std::string print(const Query& query) {
  Printer printer;
  printer.query(query);
  return printer.take();
}

std::string print(const Expr& expr) {
  Printer printer;
  printer.expr(expr);
  return printer.take();
}

}  // namespace oracle_sql
