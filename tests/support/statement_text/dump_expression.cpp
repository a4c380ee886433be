// Expressions as indented lines.
#include "oracle_sql/syntax/spelling.h"
#include "support/statement_text/dump_state.h"
#include "support/statement_text/quoting.h"

namespace oracle_sql {

void Dump::expr(const Expr& e) {
  switch (e.kind) {
    case ExprKind::Null:
      head(e, "null");
      break;
    case ExprKind::Number:
      head(e, "number " + std::string(static_cast<const NumberLiteral&>(e).text));
      break;
    case ExprKind::String:
      head(e, "text " + quotedText(static_cast<const StringLiteral&>(e).value));
      break;
    case ExprKind::DateLiteral:
      head(e, ("date ") + quotedText(static_cast<const DateLiteral&>(e).value));
      break;
    case ExprKind::Column:
      column(static_cast<const ColumnRef&>(e));
      break;
    case ExprKind::Rownum:
      head(e, "rownum");
      break;
    case ExprKind::Bind:
      head(e, "bind :" + std::string(static_cast<const BindExpr&>(e).name));
      break;
    case ExprKind::Negate: {
      const auto& n = static_cast<const Negate&>(e);
      head(e, n.plus ? "unary +" : "unary -");
      below({n.operand});
      break;
    }
    case ExprKind::Arithmetic: {
      const auto& a = static_cast<const Arithmetic&>(e);
      head(e, std::string(spelling(a.op)));
      below({a.left, a.right});
      break;
    }
    case ExprKind::Concat: {
      const auto& c = static_cast<const Concat&>(e);
      head(e, "||");
      below({c.left, c.right});
      break;
    }
    case ExprKind::Case: {
      const auto& c = static_cast<const CaseExpr&>(e);
      head(e, "case");
      below({c.operand});
      for (const CaseWhen& w : c.whens) {
        const Indent in(*this);
        line("when");
        below({w.when});
        line("then");
        below({w.then});
      }
      if (c.otherwise) part("else", c.otherwise);
      break;
    }
    case ExprKind::Call:
      call(static_cast<const Call&>(e));
      break;
    case ExprKind::Cast: {
      const auto& c = static_cast<const CastExpr&>(e);
      head(e, "cast to " + castSpelling(c));
      below({c.operand});
      break;
    }
    case ExprKind::Subquery:
      head(e, "subquery");
      below(static_cast<const SubqueryExpr&>(e).query);
      break;
    case ExprKind::Row:
      head(e, "row");
      below(static_cast<const RowExpr&>(e).items);
      break;
    case ExprKind::Compare:
      head(e, std::string(spelling(static_cast<const Compare&>(e).op)));
      below({static_cast<const Compare&>(e).left, static_cast<const Compare&>(e).right});
      break;
    case ExprKind::And:
      head(e, "and");
      below(static_cast<const AndExpr&>(e).terms);
      break;
    case ExprKind::Or:
      head(e, "or");
      below(static_cast<const OrExpr&>(e).terms);
      break;
    case ExprKind::Not:
      head(e, "not");
      below({static_cast<const NotExpr&>(e).operand});
      break;
    case ExprKind::Between: {
      const auto& b = static_cast<const Between&>(e);
      head(e, b.negated ? "not between" : "between");
      below({b.operand, b.low, b.high});
      break;
    }
    case ExprKind::In: {
      const auto& in = static_cast<const InExpr&>(e);
      head(e, in.negated ? "not in" : "in");
      below({in.operand});
      below(in.list);
      below(in.query);
      break;
    }
    case ExprKind::Like: {
      const auto& l = static_cast<const LikeExpr&>(e);
      head(e, l.negated ? "not like" : "like");
      below({l.operand, l.pattern});
      if (l.escape) part("escape", l.escape);
      break;
    }
    case ExprKind::IsNull: {
      const auto& i = static_cast<const IsNull&>(e);
      head(e, i.negated ? "is not null" : "is null");
      below({i.operand});
      break;
    }
    case ExprKind::Lnnvl:
      head(e, "lnnvl");
      below({static_cast<const Lnnvl&>(e).operand});
      break;
    case ExprKind::Exists:
      head(e, "exists");
      below(static_cast<const Exists&>(e).query);
      break;
  }
}

std::string Dump::typeText(Type type) {
  if (type.kind == TypeKind::Unresolved) return {};
  return std::string(": ") + typeName(type.kind) + (type.integral ? " integral" : "");
}

void Dump::head(const Expr& e, const std::string& text) {
  const bool typed = resolved_ && !isCondition(e);
  line(text + (typed ? typeText(e.type) : ""));
}

void Dump::below(std::initializer_list<const Expr*> parts) {
  const Indent in(*this);
  for (const Expr* p : parts)
    if (p) expr(*p);
}

void Dump::below(const ExprList& parts) {
  const Indent in(*this);
  for (const Expr* p : parts) expr(*p);
}

void Dump::below(const Query* q) {
  if (!q) return;
  const Indent in(*this);
  query(*q);
}

void Dump::part(const char* name, const Expr* e) {
  const Indent in(*this);
  line(name);
  below({e});
}

void Dump::column(const ColumnRef& c) {
  std::string text = "column ";
  for (const std::string_view p : {c.schema, c.qualifier})
    if (!p.empty()) text += quotedIfNeeded(p) + '.';
  text += quotedIfNeeded(c.name);
  if (c.outerMark) text += " (+)";
  if (resolved_ && c.output >= 0) text += " = item " + std::to_string(c.output + 1);
  if (resolved_ && c.source) {
    if (c.qualifier.empty() && !c.source->alias.empty()) text += " of " + quotedIfNeeded(c.source->alias);
    if (c.source->kind == FromKind::Join) text += " merged";
    if (c.levelsOut > 0) text += " (" + std::to_string(c.levelsOut) + " out)";
  }
  head(c, text);
}

void Dump::call(const Call& c) {
  std::string text =
      "call " + (c.package.empty() ? std::string() : quotedIfNeeded(c.package) + '.') + std::string(c.name);
  if (!c.option.empty()) text += " " + std::string(c.option);
  if (c.bare) text += " bare";
  if (c.star) text += " *";
  if (c.distinct) text += " distinct";
  if (c.nulls == NullTreatment::Ignore) text += " ignore nulls";
  if (c.nulls == NullTreatment::Respect) text += " respect nulls";
  if (resolved_ && c.role == CallRole::Aggregate) text += " [aggregate]";
  if (resolved_ && c.role == CallRole::Window) text += " [window]";
  if (resolved_ && c.role == CallRole::Grouping) text += " [grouping]";
  head(c, text);
  below(c.args);
  const Indent in(*this);
  order("within group", c.withinGroup);
  if (c.keep) order(c.keep->last ? "keep last" : "keep first", c.keep->orderBy);
  if (!c.over) return;
  line("over");
  const Indent deeper(*this);
  for (const Expr* p : c.over->partitionBy) {
    line("partition by");
    below({p});
  }
  order("order by", c.over->orderBy);
  if (c.over->unit == FrameUnit::None) return;
  line(std::string(c.over->unit == FrameUnit::Rows ? "rows" : "range") + (c.over->between ? " between" : ""));
  bound(c.over->start);
  if (c.over->between) bound(c.over->end);
}

void Dump::bound(const FrameBound& b) {
  const Indent in(*this);
  line(std::string(spelling(b.kind)));
  below({b.offset});
}

}  // namespace oracle_sql
