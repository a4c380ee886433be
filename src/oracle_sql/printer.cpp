#include "oracle_sql/printer.h"

#include "oracle_sql/error.h"
#include "oracle_sql/keywords.h"
#include "oracle_sql/spelling.h"

namespace oracle_sql {

namespace {

// How tightly a construct binds; brackets go around what binds less than its place asks for.
enum Level { kOr = 1, kAnd, kNot, kPredicate, kAdditive, kMultiplicative, kUnary, kPrimary };

Level levelOf(const Expr& e) {
  switch (e.kind) {
    case ExprKind::Or:
      return kOr;
    case ExprKind::And:
      return kAnd;
    case ExprKind::Not:
      return kNot;
    case ExprKind::Compare:
    case ExprKind::Between:
    case ExprKind::In:
    case ExprKind::Like:
    case ExprKind::IsNull:
      return kPredicate;
    case ExprKind::Concat:
      return kAdditive;
    case ExprKind::Arithmetic: {
      const ArithmeticOp op = static_cast<const Arithmetic&>(e).op;
      return op == ArithmeticOp::Add || op == ArithmeticOp::Subtract ? kAdditive : kMultiplicative;
    }
    case ExprKind::Negate:
      return kUnary;
    default:
      return kPrimary;
  }
}

class Printer {
 public:
  std::string take() { return std::move(out_); }

  void query(const Query& q) {
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

  void expr(const Expr& e, Level least = kOr) {
    const bool brackets = levelOf(e) < least;
    if (brackets) out_ += '(';
    bare(e);
    if (brackets) out_ += ')';
  }

 private:
  void bracketed(const Query& q) {
    out_ += '(';
    query(q);
    out_ += ')';
  }

  void name(std::string_view n) { out_ += quotedIfNeeded(n); }

  void names(const List<std::string_view>& list) {
    for (std::size_t i = 0; i < list.size(); ++i) {
      if (i > 0) out_ += ", ";
      name(list[i]);
    }
  }

  void list(const ExprList& items) {
    for (std::size_t i = 0; i < items.size(); ++i) {
      if (i > 0) out_ += ", ";
      expr(*items[i], kAdditive);
    }
  }

  void block(const SelectBlock& b) {
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

  void groupings(const List<GroupingTerm*>& terms) {
    for (std::size_t i = 0; i < terms.size(); ++i) {
      if (i > 0) out_ += ", ";
      const GroupingTerm& t = *terms[i];
      out_ += spelling(t.kind);
      out_ += '(';
      list(t.keys);
      groupings(t.terms);
      out_ += ')';
    }
  }

  void item(const SelectItem& s) {
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

  void alias(const char* lead, std::string_view a) {
    if (a.empty()) return;
    out_ += lead;
    name(a);
  }

  void from(const FromItem& f) {
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

  void join(const JoinItem& j) {
    from(*j.left);
    out_ += j.natural ? " NATURAL " : " ";
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

  void pivot(const PivotItem& p) {
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

  void order(const List<OrderItem>& items) {
    out_ += "ORDER BY ";
    for (std::size_t i = 0; i < items.size(); ++i) {
      if (i > 0) out_ += ", ";
      expr(*items[i].expr, kAdditive);
      if (items[i].descending) out_ += " DESC";
      if (items[i].nulls != NullsOrder::Default)
        out_ += items[i].nulls == NullsOrder::First ? " NULLS FIRST" : " NULLS LAST";
    }
  }

  void binary(const Expr& left, Level leftLeast, std::string_view op, const Expr& right, Level rightLeast) {
    expr(left, leftLeast);
    out_ += ' ';
    out_ += op;
    out_ += ' ';
    expr(right, rightLeast);
  }

  void terms(const ExprList& list, const char* op, Level least) {
    for (std::size_t i = 0; i < list.size(); ++i) {
      if (i > 0) out_ += op;
      expr(*list[i], least);
    }
  }

  void bare(const Expr& e) {
    switch (e.kind) {
      case ExprKind::Null:
        out_ += "NULL";
        break;
      case ExprKind::Number:
        out_ += static_cast<const NumberLiteral&>(e).text;
        break;
      case ExprKind::String:
        out_ += quotedText(static_cast<const StringLiteral&>(e).value);
        break;
      case ExprKind::DateLiteral:
        out_ += "DATE " + quotedText(static_cast<const DateLiteral&>(e).value);
        break;
      case ExprKind::Column: {
        const auto& c = static_cast<const ColumnRef&>(e);
        for (const std::string_view part : {c.schema, c.qualifier}) {
          if (part.empty()) continue;
          name(part);
          out_ += '.';
        }
        name(c.name);
        if (c.outerMark) out_ += "(+)";
        break;
      }
      case ExprKind::Rownum:
        out_ += "ROWNUM";
        break;
      case ExprKind::Bind:
        out_ += ':';
        out_ += static_cast<const BindExpr&>(e).name;
        break;
      case ExprKind::Negate: {
        const auto& n = static_cast<const Negate&>(e);
        out_ += n.plus ? '+' : '-';
        // Two signs in a row would start a comment.
        if (n.operand->kind == ExprKind::Negate) out_ += ' ';
        expr(*n.operand, kUnary);
        break;
      }
      case ExprKind::Arithmetic: {
        const auto& a = static_cast<const Arithmetic&>(e);
        const Level level = levelOf(e);
        binary(*a.left, level, spelling(a.op), *a.right, static_cast<Level>(level + 1));
        break;
      }
      case ExprKind::Concat: {
        const auto& c = static_cast<const Concat&>(e);
        binary(*c.left, kAdditive, "||", *c.right, kMultiplicative);
        break;
      }
      case ExprKind::Case:
        caseExpr(static_cast<const CaseExpr&>(e));
        break;
      case ExprKind::Call:
        call(static_cast<const Call&>(e));
        break;
      case ExprKind::Cast: {
        const auto& c = static_cast<const CastExpr&>(e);
        out_ += "CAST(";
        expr(*c.operand, kAdditive);
        out_ += " AS " + castSpelling(c) + ')';
        break;
      }
      case ExprKind::Subquery:
        bracketed(*static_cast<const SubqueryExpr&>(e).query);
        break;
      case ExprKind::Row:
        out_ += '(';
        list(static_cast<const RowExpr&>(e).items);
        out_ += ')';
        break;
      case ExprKind::Compare:
        compare(static_cast<const Compare&>(e));
        break;
      case ExprKind::And:
        terms(static_cast<const AndExpr&>(e).terms, " AND ", kNot);
        break;
      case ExprKind::Or:
        terms(static_cast<const OrExpr&>(e).terms, " OR ", kAnd);
        break;
      case ExprKind::Not:
        out_ += "NOT ";
        expr(*static_cast<const NotExpr&>(e).operand, kNot);
        break;
      case ExprKind::Between: {
        const auto& b = static_cast<const Between&>(e);
        expr(*b.operand, kAdditive);
        out_ += b.negated ? " NOT BETWEEN " : " BETWEEN ";
        binary(*b.low, kAdditive, "AND", *b.high, kAdditive);
        break;
      }
      case ExprKind::In: {
        const auto& in = static_cast<const InExpr&>(e);
        expr(*in.operand, kAdditive);
        out_ += in.negated ? " NOT IN (" : " IN (";
        if (in.query)
          query(*in.query);
        else
          list(in.list);
        out_ += ')';
        break;
      }
      case ExprKind::Like: {
        const auto& l = static_cast<const LikeExpr&>(e);
        binary(*l.operand, kAdditive, l.negated ? "NOT LIKE" : "LIKE", *l.pattern, kAdditive);
        if (l.escape) {
          out_ += " ESCAPE ";
          expr(*l.escape, kAdditive);
        }
        break;
      }
      case ExprKind::IsNull:
        expr(*static_cast<const IsNull&>(e).operand, kAdditive);
        out_ += static_cast<const IsNull&>(e).negated ? " IS NOT NULL" : " IS NULL";
        break;
      case ExprKind::Lnnvl:
        out_ += "LNNVL(";
        expr(*static_cast<const Lnnvl&>(e).operand);
        out_ += ')';
        break;
      case ExprKind::CallTest:
        expr(*static_cast<const CallTest&>(e).call);
        break;
      case ExprKind::Exists:
        out_ += "EXISTS ";
        bracketed(*static_cast<const Exists&>(e).query);
        break;
    }
  }

  void compare(const Compare& c) {
    expr(*c.left, kAdditive);
    out_ += ' ';
    out_ += spelling(c.op);
    out_ += ' ';
    if (c.quantifier == Quantifier::None) {
      expr(*c.right, kAdditive);
      return;
    }
    out_ += c.quantifier == Quantifier::Any ? "ANY (" : "ALL (";
    if (c.query)
      query(*c.query);
    else
      list(c.list);
    out_ += ')';
  }

  void caseExpr(const CaseExpr& c) {
    out_ += "CASE";
    if (c.operand) {
      out_ += ' ';
      expr(*c.operand, kAdditive);
    }
    for (const CaseWhen& w : c.whens) {
      out_ += " WHEN ";
      expr(*w.when);
      out_ += " THEN ";
      expr(*w.then, kAdditive);
    }
    if (c.otherwise) {
      out_ += " ELSE ";
      expr(*c.otherwise, kAdditive);
    }
    out_ += " END";
  }

  // Whether the name of a call is read as that call without quotes.
  static bool plainCallName(const Call& c) {
    switch (wordOf(c.name).keyword) {
      case Keyword::None:
        return quotedIfNeeded(c.name).front() != '"';
      case Keyword::Listagg:
        return c.name == "LISTAGG";
      case Keyword::DenseRank:
        return c.name == "DENSE_RANK";
      case Keyword::Trim:
        return c.name == "TRIM" && (!c.option.empty() || (c.args.size() == 1 && !c.distinct && !c.star));
      case Keyword::Extract:
        return c.name == "EXTRACT" && !c.option.empty();
      default:
        return c.bare;
    }
  }

  void call(const Call& c) {
    if (!c.package.empty()) {
      name(c.package);
      out_ += '.';
    }
    if (plainCallName(c))
      out_ += c.name;
    else
      out_ += '"' + std::string(c.name) + '"';
    if (c.bare) return;
    out_ += '(';
    if (c.star) out_ += '*';
    if (c.distinct) out_ += "DISTINCT ";
    if (!c.option.empty()) {
      out_ += c.option;
      if (c.args.size() > 1) {
        out_ += ' ';
        expr(*c.args[1], kAdditive);
      }
      out_ += " FROM ";
      expr(*c.args[0], kAdditive);
    } else {
      list(c.args);
    }
    out_ += ')';
    if (c.nulls != NullTreatment::Default)
      out_ += c.nulls == NullTreatment::Ignore ? " IGNORE NULLS" : " RESPECT NULLS";
    if (c.keep) {
      out_ += c.keep->last ? " KEEP (DENSE_RANK LAST " : " KEEP (DENSE_RANK FIRST ";
      order(c.keep->orderBy);
      out_ += ')';
    }
    if (!c.withinGroup.empty()) {
      out_ += " WITHIN GROUP (";
      order(c.withinGroup);
      out_ += ')';
    }
    if (c.over) window(*c.over);
  }

  void window(const Window& w) {
    out_ += " OVER (";
    const char* gap = "";
    if (!w.partitionBy.empty()) {
      out_ += "PARTITION BY ";
      list(w.partitionBy);
      gap = " ";
    }
    if (!w.orderBy.empty()) {
      out_ += gap;
      order(w.orderBy);
    }
    if (w.unit != FrameUnit::None) {
      out_ += w.unit == FrameUnit::Rows ? " ROWS " : " RANGE ";
      if (w.between) out_ += "BETWEEN ";
      bound(w.start);
      if (w.between) {
        out_ += " AND ";
        bound(w.end);
      }
    }
    out_ += ')';
  }

  void bound(const FrameBound& b) {
    if (b.offset) {
      expr(*b.offset, kAdditive);
      out_ += ' ';
    }
    out_ += spelling(b.kind);
  }

  std::string out_;
};

}  // namespace

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
