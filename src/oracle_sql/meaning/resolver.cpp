// Queries and blocks.
#include "oracle_sql/meaning/resolver.h"

#include <algorithm>
#include <charconv>

#include "oracle_sql/meaning/resolver_state.h"
#include "oracle_sql/meaning/same_expression.h"
#include "oracle_sql/syntax/walk.h"
#include "oracle_sql/text/ascii_case.h"

namespace oracle_sql {

namespace {

const Query* anyQuery(const Expr& e) {
  const Query* found = queryOf(e);
  forEachOperand(e, [&](const Expr& o) { found = found ? found : anyQuery(o); });
  return found;
}

/// Whether the operands of an ORDER BY expression are constants and expressions of the select list.
bool isOfSelected(const Expr& whole, const SelectBlock& b) {
  const auto isSelected = [&](const Expr& e) {
    const auto* c = as<ColumnRef>(&e);
    return (c && c->output >= 0) || std::any_of(b.columns.begin(), b.columns.end(), [&](const auto& column) {
             return sameExpression(e, *column.expr);
           });
  };
  std::vector<const Expr*> open{&whole};
  while (!open.empty()) {
    const Expr& e = *open.back();
    open.pop_back();
    if (isSelected(e)) continue;
    const auto* call = as<Call>(&e);
    if (e.kind == ExprKind::Column || e.kind == ExprKind::Rownum || queryOf(e) ||
        (call && call->role != CallRole::Scalar))
      return false;
    forEachOperand(e, [&](const Expr& o) { open.push_back(&o); });
  }
  return true;
}

}  // namespace

void resolve(Tree& tree, const Catalogue& catalogue, const BindTypes& binds) {
  Resolver(tree, catalogue, binds).statement();
}

void Resolver::statement() { query(*tree_.query(), nullptr, nullptr); }

void Resolver::query(Query& q, const Scope* outer, const WithScope* with) {
  active_.push_back(&q);
  WithScope own{with, &q.with, 0};
  withItems(q, own);
  const WithScope* inner = q.with.empty() ? with : &own;
  const bool single = q.single() != nullptr;
  for (SetTerm& term : q.terms) {
    if (term.block) {
      block(*term.block, outer, inner, single ? &q.orderBy : nullptr);
    } else {
      if (q.terms.size() > 1 && !term.query->orderBy.empty())
        fail(907, "missing right parenthesis", term.query->orderBy.front().place);
      query(*term.query, outer, inner);
    }
  }
  combineTerms(q);
  if (!single) orderCombined(q);
  active_.pop_back();
}

void Resolver::withItems(Query& q, WithScope& own) {
  for (WithItem* item : q.with) {
    query(*item->query, nullptr, &own);
    if (!item->columnNames.empty() && item->columnNames.size() != item->query->columns.size())
      fail(32038, "number of WITH clause column names does not match number of elements in select list",
           item->place);
    item->columns = new (tree_.memory()->allocate(sizeof(List<OutputColumn>), alignof(List<OutputColumn>)))
        List<OutputColumn>(item->query->columns, tree_.memory());
    for (std::size_t i = 0; i < item->columnNames.size(); ++i)
      (*item->columns)[i].name = item->columnNames[i];
    ++own.visible;
  }
}

/// The columns of the whole: names of the first branch, common types of all.
void Resolver::combineTerms(Query& q) {
  for (const SetTerm& term : q.terms) {
    const List<OutputColumn>& columns = term.block ? term.block->columns : term.query->columns;
    if (&term == &q.terms.front()) {
      for (const OutputColumn& c : columns) q.columns.push_back({c.name, c.type, nullptr});
      continue;
    }
    if (columns.size() != q.columns.size())
      fail(1789, "query block has incorrect number of result columns", term.place);
    for (std::size_t i = 0; i < columns.size(); ++i) {
      const Type common = commonType(q.columns[i].type, columns[i].type);
      if (common.kind == TypeKind::Unresolved)
        fail(1790, "expression must have same datatype as corresponding expression",
             columns[i].expr ? columns[i].expr->place : term.place);
      q.columns[i].type = common;
    }
  }
}

/// A whole number written as ORDER BY item is the position of a column, from 1.
int Resolver::position(const Expr& e, std::size_t columns) const {
  const auto* n = as<NumberLiteral>(&e);
  if (!n || n->text.find_first_not_of("0123456789") != std::string_view::npos) return -1;
  std::size_t at = 0;
  const auto [end, failure] = std::from_chars(n->text.data(), n->text.data() + n->text.size(), at);
  if (failure != std::errc() || at < 1 || at > columns)
    fail(1785, "ORDER BY item must be the number of a SELECT-list expression", e.place);
  return static_cast<int>(at) - 1;
}

int Resolver::outputNamed(const List<OutputColumn>& columns, const ColumnRef& c) const {
  if (!c.qualifier.empty() || c.outerMark) return -1;
  int found = -1;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (columns[i].name != c.name) continue;
    if (found < 0) {
      found = static_cast<int>(i);
      continue;
    }
    const Expr* first = columns[static_cast<std::size_t>(found)].expr;
    if (!first || !columns[i].expr || !sameExpression(*first, *columns[i].expr))
      fail(960, "ambiguous column naming in select list", c.place);
  }
  return found;
}

void Resolver::orderCombined(Query& q) {
  for (OrderItem& item : q.orderBy) {
    item.output = position(*item.expr, q.columns.size());
    if (auto* c = as<ColumnRef>(item.expr)) {
      item.output = outputNamed(q.columns, *c);
      if (item.output < 0) unknownName(*c);
      c->output = item.output;
    }
    if (item.output < 0)
      fail(1785, "ORDER BY item must be the number of a SELECT-list expression", item.place);
    item.expr->type = q.columns[static_cast<std::size_t>(item.output)].type;
  }
}

void Resolver::block(SelectBlock& b, const Scope* outer, const WithScope* with, List<OrderItem>* orderBy) {
  Scope scope{outer, with, &b, {}, active_.size()};
  scope.items.reserve(b.from.size());
  for (FromItem* f : b.from) {
    from(*f, outer, with, b);
    scope.items.push_back(f);
  }
  if (b.where) {
    condition(*b.where, {.scope = &scope, .outerMarks = true});
    checkOuterMarks(b);
  }
  b.grouped = !b.groupBy.empty() || b.having != nullptr;
  for (Expr* g : b.groupBy) {
    value(*g, {.scope = &scope});
    if (const Query* q = anyQuery(*g)) fail(22818, "Subquery expressions not allowed here", q->place);
  }
  groupings(b);
  selectList(b, scope);
  if (b.having) condition(*b.having, {.scope = &scope, .aggregates = true, .having = true});
  if (orderBy) orderBlock(b, scope, *orderBy);
  if (b.grouped) checkGrouping(b, orderBy);
}

void Resolver::selectList(SelectBlock& b, const Scope& scope) {
  for (const SelectItem& item : b.items) {
    if (item.star) {
      star(b, scope, item);
      continue;
    }
    const Type type = value(*item.expr, {.scope = &scope, .aggregates = true, .windows = true});
    b.columns.push_back({columnName(item), type, item.expr});
  }
}

void Resolver::star(SelectBlock& b, const Scope& scope, const SelectItem& item) {
  std::vector<Found> all;
  if (item.qualifier.empty()) {
    for (const FromItem* f : scope.items) visible(*f, all);
  } else {
    ColumnRef name;
    name.qualifier = item.qualifier;
    name.place = item.place;
    const FromItem* leaf = nullptr;
    int leaves = 0;
    const JoinItem* merged = nullptr;
    for (const FromItem* f : scope.items)
      if (const FromItem* found = leafNamed(*f, name, leaves, merged)) leaf = found;
    if (!leaf) fail(904, "\"" + std::string(item.qualifier) + "\": invalid identifier", item.place);
    if (leaves > 1) fail(918, "column ambiguously defined", item.place);
    visible(*leaf, all);
  }
  for (const Found& f : all) {
    OutputColumn room;
    const OutputColumn& c = columnAt(f, room);
    if (f.source->kind == FromKind::Derived || f.source->kind == FromKind::Pivot)
      for (const OutputColumn& other : f.source->columns)
        if (&other != &c && other.name == c.name) fail(918, "column ambiguously defined", item.place);
    auto* ref = tree_.make<ColumnRef>();
    ref->place = item.place;
    ref->qualifier = f.source->alias;
    ref->name = c.name;
    ref->source = f.source;
    ref->column = f.column;
    ref->type = c.type;
    b.columns.push_back({c.name, c.type, ref});
  }
}

/// The name that the server gives to a column: the text of an expression is taken without blanks and
/// comments, in upper case, even inside quotes.
std::string_view Resolver::columnName(const SelectItem& item) {
  if (!item.alias.empty()) return item.alias;
  if (const auto* c = as<ColumnRef>(item.expr)) return c->name;
  std::string name;
  const std::string_view text = item.text;
  char quote = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (quote == 0 && c == '-' && text.substr(i, 2) == "--") {
      i = std::min(text.find('\n', i), text.size());
      continue;
    }
    if (quote == 0 && text.substr(i, 2) == "/*") {
      i = std::min(text.find("*/", i + 2), text.size()) + 1;
      continue;
    }
    if (quote == 0 && (c == '\'' || c == '"'))
      quote = c;
    else if (c == quote)
      quote = 0;
    if (c != ' ' && c != '\t' && c != '\n' && c != '\r') name += asciiUpper(c);
  }
  return tree_.copy(name);
}

void Resolver::orderBlock(SelectBlock& b, const Scope& scope, List<OrderItem>& items) {
  for (OrderItem& item : items) {
    item.output = position(*item.expr, b.columns.size());
    auto* c = as<ColumnRef>(item.expr);
    if (c && item.output < 0) c->output = item.output = outputNamed(b.columns, *c);
    if (item.output >= 0) {
      item.expr->type = b.columns[static_cast<std::size_t>(item.output)].type;
      continue;
    }
    value(*item.expr, {.scope = &scope, .aggregates = true, .windows = true, .aliases = true});
    if (!b.distinct) continue;
    for (std::size_t i = 0; i < b.columns.size() && item.output < 0; ++i)
      if (sameExpression(*item.expr, *b.columns[i].expr)) item.output = static_cast<int>(i);
    if (item.output < 0 && !isOfSelected(*item.expr, b)) fail(1791, "not a SELECTed expression", item.place);
  }
}

}  // namespace oracle_sql
