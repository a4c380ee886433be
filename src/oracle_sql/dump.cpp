// The tree as indented lines, and equality of trees by these lines.
#include "oracle_sql/printer.h"
#include "oracle_sql/spelling.h"

namespace oracle_sql {

namespace {

class Dump {
 public:
  explicit Dump(bool resolved) : resolved_(resolved) {}

  std::string take() { return std::move(out_); }

  void query(const Query& q) {
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

  void expr(const Expr& e) {
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
        head(e, "date " + quotedText(static_cast<const DateLiteral&>(e).value));
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
      case ExprKind::Compare: {
        const auto& c = static_cast<const Compare&>(e);
        const char* q = c.quantifier == Quantifier::None  ? ""
                        : c.quantifier == Quantifier::Any ? " any"
                                                          : " all";
        head(e, std::string(spelling(c.op)) + q);
        below({c.left, c.right});
        below(c.list);
        below(c.query);
        break;
      }
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
      case ExprKind::CallTest:
        head(e, "test");
        below({static_cast<const CallTest&>(e).call});
        break;
      case ExprKind::Exists:
        head(e, "exists");
        below(static_cast<const Exists&>(e).query);
        break;
    }
  }

 private:
  class Indent {
   public:
    explicit Indent(Dump& d) : dump_(d) { ++dump_.depth_; }
    ~Indent() { --dump_.depth_; }
    Indent(const Indent&) = delete;
    Indent& operator=(const Indent&) = delete;

   private:
    Dump& dump_;
  };

  void line(const std::string& text) { out_ += std::string(depth_ * 2, ' ') + text + '\n'; }

  static std::string typeText(Type type) {
    if (type.kind == TypeKind::Unresolved) return {};
    return std::string(": ") + typeName(type.kind) + (type.integral ? " integral" : "");
  }

  void head(const Expr& e, const std::string& text) {
    const bool typed = resolved_ && !isCondition(e);
    line(text + (typed ? typeText(e.type) : ""));
  }

  void below(std::initializer_list<const Expr*> parts) {
    const Indent in(*this);
    for (const Expr* p : parts)
      if (p) expr(*p);
  }
  void below(const ExprList& parts) {
    const Indent in(*this);
    for (const Expr* p : parts) expr(*p);
  }
  void below(const Query* q) {
    if (!q) return;
    const Indent in(*this);
    query(*q);
  }
  void part(const char* name, const Expr* e) {
    const Indent in(*this);
    line(name);
    below({e});
  }

  void column(const ColumnRef& c) {
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

  void block(const SelectBlock& b) {
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

  void groupings(const List<GroupingTerm*>& terms) {
    const Indent in(*this);
    for (const GroupingTerm* t : terms) {
      line(t->kind == GroupingKind::Keys ? "keys" : std::string(spelling(t->kind)));
      below(t->keys);
      groupings(t->terms);
    }
  }

  void grouping(GroupingSet set, std::size_t keys) {
    std::string text = "grouping";
    for (std::size_t i = 0; i < keys; ++i)
      if ((set >> i & 1) != 0) text += " " + std::to_string(i + 1);
    line(text);
  }

  void columns(const List<OutputColumn>& list) {
    const Indent in(*this);
    for (const OutputColumn& c : list) line(quotedIfNeeded(c.name) + typeText(c.type));
  }

  void from(const FromItem& f) {
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

  void join(const JoinItem& j) {
    line((j.natural ? "NATURAL " : "") + std::string(spelling(j.join)) + " JOIN");
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

  void pivot(const PivotItem& p, const std::string& alias) {
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

  void order(const char* title, const List<OrderItem>& items) {
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

  void call(const Call& c) {
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
    line(std::string(c.over->unit == FrameUnit::Rows ? "rows" : "range") +
         (c.over->between ? " between" : ""));
    bound(c.over->start);
    if (c.over->between) bound(c.over->end);
  }

  void bound(const FrameBound& b) {
    const Indent in(*this);
    line(std::string(spelling(b.kind)));
    below({b.offset});
  }

  bool resolved_;
  std::size_t depth_ = 0;
  std::string out_;
};

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
