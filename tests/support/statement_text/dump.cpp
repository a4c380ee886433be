// Queries as indented lines, and equality of trees by these lines.
#include "oracle_sql/syntax/spelling.h"
#include "support/statement_text/dump_state.h"
#include "support/statement_text/printer.h"
#include "support/statement_text/quoting.h"

namespace oracle_sql {

void Dump::query(const Query& q) {
  line("query" + std::string(resolved_ && q.correlated ? " correlated" : ""));
  const Indent in(*this);
  for (const WithItem* item : q.with) {
    std::string names;
    for (const std::string_view n : item->columnNames)
      names += (names.empty() ? " (" : ", ") + quotedIfNeeded(n);
    line("with " + quotedIfNeeded(item->name) + (names.empty() ? "" : names + ")"));
    const Indent deeper(*this);
    query(*item->query);
  }
  for (const SetTerm& term : q.terms) {
    if (term.op != SetOp::None) line(std::string(spelling(term.op)));
    if (term.block)
      block(*term.block);
    else
      query(*term.query);
  }
  order("order by", q.orderBy);
  if (resolved_ && q.terms.size() > 1) {
    line("columns");
    columns(q.columns);
  }
}

void Dump::block(const SelectBlock& b) {
  std::string text = "select";
  if (b.distinct) text += " distinct";
  if (!b.hint.empty()) text += " " + std::string(b.hint);
  if (resolved_ && b.grouped) text += " [grouped]";
  if (resolved_ && b.windowed) text += " [windowed]";
  if (resolved_ && b.usesRownum) text += " [rownum]";
  line(text);
  const Indent in(*this);
  for (const SelectItem& s : b.items) {
    if (s.star) {
      line("item " + (s.qualifier.empty() ? std::string() : quotedIfNeeded(s.qualifier) + '.') + '*');
      continue;
    }
    line("item" + (s.alias.empty() ? std::string() : " as " + quotedIfNeeded(s.alias)));
    below({s.expr});
  }
  if (resolved_) {
    line("columns");
    columns(b.columns);
  }
  for (const FromItem* f : b.from) {
    line("from");
    const Indent deeper(*this);
    from(*f);
  }
  if (b.where) {
    line("where");
    below({b.where});
  }
  if (!b.groupBy.empty()) {
    line("group by");
    if (b.grouping.empty()) below(b.groupBy);
    groupings(b.grouping);
    if (resolved_)
      for (const GroupingSet set : b.groupingSets) grouping(set, b.groupBy.size());
  }
  if (b.having) {
    line("having");
    below({b.having});
  }
}

void Dump::groupings(const List<GroupingTerm*>& terms) {
  const Indent in(*this);
  for (const GroupingTerm* t : terms) {
    line(t->rollup ? "ROLLUP" : "keys");
    below(t->keys);
    groupings(t->terms);
  }
}

void Dump::grouping(GroupingSet set, std::size_t keys) {
  std::string text = "grouping";
  for (std::size_t i = 0; i < keys; ++i)
    if ((set >> i & 1) != 0) text += " " + std::to_string(i + 1);
  line(text);
}

void Dump::columns(const List<OutputColumn>& list) {
  const Indent in(*this);
  for (const OutputColumn& c : list) line(quotedIfNeeded(c.name) + typeText(c.type));
}

void Dump::from(const FromItem& f) {
  const std::string alias = f.alias.empty() ? "" : " alias " + quotedIfNeeded(f.alias);
  switch (f.kind) {
    case FromKind::Table: {
      const auto& t = static_cast<const TableItem&>(f);
      line("table " + (t.schema.empty() ? std::string() : quotedIfNeeded(t.schema) + '.') +
           quotedIfNeeded(t.name) + alias + (resolved_ && t.with ? " [with]" : ""));
      break;
    }
    case FromKind::Derived:
      line("derived" + alias);
      below(static_cast<const DerivedItem&>(f).query);
      break;
    case FromKind::Join:
      join(static_cast<const JoinItem&>(f));
      break;
    case FromKind::Pivot:
      pivot(static_cast<const PivotItem&>(f), alias);
      break;
  }
}

void Dump::join(const JoinItem& j) {
  line(std::string(spelling(j.join)) + " JOIN");
  const Indent in(*this);
  from(*j.left);
  from(*j.right);
  if (j.on) {
    line("on");
    below({j.on});
  }
  for (const std::string_view n : j.usingNames) line("using " + quotedIfNeeded(n));
  if (!resolved_) return;
  for (const MergedColumn& m : j.merged) line("merged " + quotedIfNeeded(m.name) + typeText(m.type));
}

void Dump::pivot(const PivotItem& p, const std::string& alias) {
  line("pivot" + alias);
  const Indent in(*this);
  from(*p.source);
  for (const PivotAggregate& a : p.aggregates) {
    line("aggregate" + (a.alias.empty() ? std::string() : " as " + quotedIfNeeded(a.alias)));
    below({a.call});
  }
  line("for");
  for (const ColumnRef* c : p.forColumns) below({c});
  for (const PivotValue& v : p.values) {
    line("value" + (v.alias.empty() ? std::string() : " as " + quotedIfNeeded(v.alias)));
    below(v.values);
  }
  if (!resolved_) return;
  line("columns");
  columns(p.columns);
}

void Dump::order(const char* title, const List<OrderItem>& items) {
  for (const OrderItem& item : items) {
    std::string text = title;
    if (item.descending) text += " desc";
    if (item.nulls != NullsOrder::Default)
      text += item.nulls == NullsOrder::First ? " nulls first" : " nulls last";
    if (resolved_ && item.output >= 0) text += " = item " + std::to_string(item.output + 1);
    line(text);
    below({item.expr});
  }
}

namespace {

template <class T>
std::string structure(const T& what) {
  Dump d(false);
  if constexpr (std::is_same_v<T, Query>)
    d.query(what);
  else
    d.expr(what);
  return d.take();
}

}  // namespace

std::string dump(const Query& query) {
  Dump d(true);
  d.query(query);
  return d.take();
}

bool equal(const Query& a, const Query& b) { return structure(a) == structure(b); }
bool equal(const Expr& a, const Expr& b) { return structure(a) == structure(b); }

}  // namespace oracle_sql
