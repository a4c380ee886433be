#include "oracle_sql/syntax/spelling.h"
#include "support/statement_text/printer_state.h"
#include "support/statement_text/quoting.h"

namespace oracle_sql {

Printer::Level Printer::levelOf(const Expr& e) {
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

void Printer::expr(const Expr& e, Level least) {
  const bool brackets = levelOf(e) < least;
  if (brackets) out_ += '(';
  bare(e);
  if (brackets) out_ += ')';
}

void Printer::binary(const Expr& left, Level leftLeast, std::string_view op, const Expr& right,
                     Level rightLeast) {
  expr(left, leftLeast);
  out_ += ' ';
  out_ += op;
  out_ += ' ';
  expr(right, rightLeast);
}

void Printer::terms(const ExprList& list, const char* op, Level least) {
  for (std::size_t i = 0; i < list.size(); ++i) {
    if (i > 0) out_ += op;
    expr(*list[i], least);
  }
}

void Printer::bare(const Expr& e) {
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
    case ExprKind::Compare: {
      const auto& c = static_cast<const Compare&>(e);
      binary(*c.left, kAdditive, spelling(c.op), *c.right, kAdditive);
      break;
    }
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
    case ExprKind::Exists:
      out_ += "EXISTS ";
      bracketed(*static_cast<const Exists&>(e).query);
      break;
  }
}

void Printer::caseExpr(const CaseExpr& c) {
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

}  // namespace oracle_sql
