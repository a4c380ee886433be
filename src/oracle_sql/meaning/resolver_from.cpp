// FROM: what tables, inline views, joins and PIVOT offer.
#include "oracle_sql/meaning/resolver_state.h"
#include "oracle_sql/syntax/walk.h"

namespace oracle_sql {

namespace {

/// The name that a value of PIVOT gives to its column where it has no alias: the literal as it is written.
std::string literalName(const Expr& e) {
  if (e.kind == ExprKind::Null) return "NULL";
  if (const auto* n = as<NumberLiteral>(&e)) return std::string(n->text);
  if (const auto* n = as<Negate>(&e)) return (n->plus ? "+" : "-") + literalName(*n->operand);
  const auto* d = as<DateLiteral>(&e);
  const auto* s = as<StringLiteral>(&e);
  if (!d && !s) throw SqlError::unsupported("a value of PIVOT that is no literal, without an alias", e.place);
  std::string name = d ? "DATE '" : "'";
  for (const char c : d ? d->value : s->value) name += c == '\'' ? "''" : std::string(1, c);
  return name + "'";
}

}  // namespace

void Resolver::from(FromItem& f, const Scope* outer, const WithScope* with, SelectBlock& b) {
  switch (f.kind) {
    case FromKind::Table:
      table(static_cast<TableItem&>(f), with);
      break;
    case FromKind::Derived: {
      // An inline view sees nothing of the queries around it.
      Query& q = *static_cast<DerivedItem&>(f).query;
      query(q, nullptr, with);
      expose(f, q.columns);
      break;
    }
    case FromKind::Join:
      join(static_cast<JoinItem&>(f), outer, with, b);
      break;
    case FromKind::Pivot: {
      auto& p = static_cast<PivotItem&>(f);
      from(*p.source, outer, with, b);
      pivot(p, with);
      break;
    }
  }
}

/// As the columns of a view: a bare NULL is a VARCHAR2 there.
void Resolver::expose(FromItem& f, const List<OutputColumn>& columns) {
  f.columns.reserve(columns.size());
  for (const OutputColumn& c : columns)
    f.columns.push_back({c.name, c.type.kind == TypeKind::Null ? Type{TypeKind::Varchar2} : c.type, nullptr});
}

void Resolver::table(TableItem& t, const WithScope* with) {
  const WithItem* recursive = nullptr;
  for (const WithScope* w = with; w && t.schema.empty(); w = w->outer) {
    for (std::size_t i = w->visible; i-- > 0;) {
      WithItem& item = *(*w->items)[i];
      if (item.name != t.name) continue;
      t.with = &item;
      ++item.uses;
      expose(t, *item.columns);
      return;
    }
    if (w->visible < w->items->size() && (*w->items)[w->visible]->name == t.name)
      recursive = (*w->items)[w->visible];
  }
  t.table = catalogue_.table(t.schema, t.name);
  if (t.table) {
    t.columns.reserve(t.table->columns.size());
    for (const CatalogueColumn& c : t.table->columns) t.columns.push_back({c.name, c.type, nullptr});
    return;
  }
  if (t.name == "DUAL" && (t.schema.empty() || t.schema == "SYS")) {
    t.isDual = true;
    t.columns.push_back({"DUMMY", {TypeKind::Varchar2}, nullptr});
    return;
  }
  if (recursive && !recursive->columnNames.empty()) throw SqlError::unsupported("a recursive WITH", t.place);
  fail(942, "table or view does not exist", t.place);
}

void Resolver::join(JoinItem& j, const Scope* outer, const WithScope* with, SelectBlock& b) {
  from(*j.left, outer, with, b);
  from(*j.right, outer, with, b);
  for (const std::string_view name : j.usingNames) merge(j, name, j.place);
  if (!j.on) return;
  const Scope scope{outer, with, &b, {j.left, j.right}, active_.size()};
  condition(*j.on, {.scope = &scope, .joins = true});
}

void Resolver::merge(JoinItem& j, std::string_view name, Place place) {
  Found left;
  Found right;
  search(*j.left, name, left);
  search(*j.right, name, right);
  if (left.matches == 0 || right.matches == 0)
    fail(904, "\"" + std::string(name) + "\": invalid identifier", place);
  if (left.matches > 1 || right.matches > 1) fail(918, "column ambiguously defined", place);
  OutputColumn room;
  const Type a = columnAt(left, room).type;
  const Type b = columnAt(right, room).type;
  comparable(a, b, place);
  const Type common = commonType(a, b);
  j.merged.push_back({name, common.kind == TypeKind::Unresolved ? a : common, left.source, left.column,
                      right.source, right.column});
}

/// Every column that * stands for, in its order.
void Resolver::visible(const FromItem& f, std::vector<Found>& list) const {
  const auto* j = as<JoinItem>(&f);
  if (!j) {
    for (int i = 0; i < static_cast<int>(f.columns.size()); ++i) list.push_back({&f, i, 1});
    return;
  }
  for (int i = 0; i < static_cast<int>(j->merged.size()); ++i) list.push_back({j, i, 1});
  std::vector<Found> sides;
  visible(*j->left, sides);
  visible(*j->right, sides);
  for (const Found& s : sides) {
    OutputColumn room;
    const std::string_view name = columnAt(s, room).name;
    bool merged = false;
    for (const MergedColumn& m : j->merged) merged = merged || m.name == name;
    if (!merged) list.push_back(s);
  }
}

void Resolver::pivot(PivotItem& p, const WithScope* with) {
  const Scope inside{nullptr, with, nullptr, {p.source}, active_.size()};
  const Scope nothing{nullptr, nullptr, nullptr, {}, active_.size()};
  std::vector<bool> named(p.source->columns.size());
  const auto markNames = [&](const auto& self, const Expr& e) -> void {
    if (const auto* c = as<ColumnRef>(&e)) named[static_cast<std::size_t>(c->column)] = true;
    forEachOperand(e, [&](const Expr& o) { self(self, o); });
  };
  for (PivotAggregate& a : p.aggregates) {
    value(*a.call, {.scope = &inside, .aggregates = true});
    if (a.call->role != CallRole::Aggregate)
      fail(56902, "expect aggregate function inside pivot operation", a.call->place);
    markNames(markNames, *a.call);
  }
  for (ColumnRef* c : p.forColumns) {
    value(*c, {.scope = &inside});
    markNames(markNames, *c);
  }
  for (std::size_t i = 0; i < named.size(); ++i) {
    if (named[i]) continue;
    p.groupColumns.push_back(static_cast<int>(i));
    p.columns.push_back(p.source->columns[i]);
  }
  for (const PivotValue& v : p.values) {
    for (std::size_t i = 0; i < v.values.size(); ++i)
      comparable(p.forColumns[i]->type, value(*v.values[i], {.scope = &nothing}), v.values[i]->place);
    std::string lead(v.alias);
    if (v.alias.empty())
      for (const Expr* e : v.values) lead += (lead.empty() ? "" : "_") + literalName(*e);
    for (const PivotAggregate& a : p.aggregates) {
      const std::string name = a.alias.empty() ? lead : lead + "_" + std::string(a.alias);
      p.columns.push_back({tree_.copy(name), a.call->type, nullptr});
    }
  }
}

}  // namespace oracle_sql
