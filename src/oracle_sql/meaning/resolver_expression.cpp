// Types of expressions, and what may be compared with what.
#include "oracle_sql/date/date_format.h"
#include "oracle_sql/function_error.h"
#include "oracle_sql/meaning/resolver_state.h"
#include "oracle_sql/number/number.h"

namespace oracle_sql {

namespace {

/// The longest text literal in a statement, in bytes.
constexpr std::size_t kMaxTextLiteral = 4000;

/// Whole and certainly within 64 bits: up to 18 digits.
bool isWhole(std::string_view number) {
  return number.find_first_not_of("0123456789") == std::string_view::npos && number.size() <= 18;
}

/// ORA-01426 for 1E200.
void checkNumber(std::string_view text, Place place) {
  try {
    if (Number::parse(text)) return;
  } catch (const FunctionError& e) {
    throw SqlError::wrong(e.code(), e.what(), place);
  }
  throw SqlError::wrong(1722, "invalid number", place);
}

}  // namespace

void Resolver::inconsistent(Type expected, Type got, Place place) {
  fail(932,
       std::string("inconsistent datatypes: expected ") + typeName(expected.kind) + " got " +
           typeName(got.kind),
       place);
}

Type Resolver::value(Expr& e, const Env& env) { return e.type = resolved(e, env); }

void Resolver::comparable(Type left, Type right, Place place) const {
  if (comparisonOf(left, right) == Comparison::Invalid) inconsistent(left, right, place);
}

Type Resolver::resolved(Expr& e, const Env& env) {
  switch (e.kind) {
    case ExprKind::Null:
      return {TypeKind::Null};
    case ExprKind::Number: {
      const std::string_view text = static_cast<NumberLiteral&>(e).text;
      if (isWhole(text)) return {TypeKind::Number, true};
      checkNumber(text, e.place);
      return {TypeKind::Number};
    }
    case ExprKind::String: {
      const std::size_t bytes = static_cast<StringLiteral&>(e).value.size();
      if (bytes > kMaxTextLiteral) fail(1704, "string literal too long", e.place);
      return {TypeKind::Char, false, static_cast<std::uint16_t>(bytes)};
    }
    case ExprKind::DateLiteral:
      checkDate(static_cast<DateLiteral&>(e));
      return {TypeKind::Date};
    case ExprKind::Column:
      column(static_cast<ColumnRef&>(e), env);
      return e.type;
    case ExprKind::Rownum:
      if (env.scope->block) env.scope->block->usesRownum = true;
      return {TypeKind::Number, true};
    case ExprKind::Bind: {
      const auto type = binds_(static_cast<BindExpr&>(e).name);
      if (!type)
        fail(1008, "not all variables bound: :" + std::string(static_cast<BindExpr&>(e).name), e.place);
      return {*type};
    }
    case ExprKind::Negate: {
      auto& n = static_cast<Negate&>(e);
      const Type t = value(*n.operand, env);
      if (t.kind == TypeKind::Date || t.kind == TypeKind::Raw) inconsistent({TypeKind::Number}, t, e.place);
      return {TypeKind::Number, t.integral && (n.plus || n.operand->kind == ExprKind::Number)};
    }
    case ExprKind::Arithmetic: {
      auto& a = static_cast<Arithmetic&>(e);
      const Type left = value(*a.left, env);
      return arithmeticType(a, left, value(*a.right, env));
    }
    case ExprKind::Concat:
      value(*static_cast<Concat&>(e).left, env);
      value(*static_cast<Concat&>(e).right, env);
      return {TypeKind::Varchar2};
    case ExprKind::Case:
      return caseType(static_cast<CaseExpr&>(e), env);
    case ExprKind::Call:
      return call(static_cast<Call&>(e), env);
    case ExprKind::Cast: {
      auto& c = static_cast<CastExpr&>(e);
      const Type from = value(*c.operand, env);
      const bool numbers = from.kind == TypeKind::Number || c.target == TypeKind::Number;
      if ((from.kind == TypeKind::Date && (numbers || c.target == TypeKind::Raw)) ||
          (c.target == TypeKind::Date && (numbers || from.kind == TypeKind::Raw)) ||
          (numbers && (from.kind == TypeKind::Raw || c.target == TypeKind::Raw)))
        inconsistent({c.target}, from, e.place);
      const bool whole = c.target == TypeKind::Number && c.precision > 0 && c.precision <= 18 &&
                         c.scale <= 0 && c.precision - c.scale <= 18;
      return {c.target, whole, static_cast<std::uint16_t>(c.target == TypeKind::Char ? c.precision : 0)};
    }
    case ExprKind::Subquery: {
      Query& q = *static_cast<SubqueryExpr&>(e).query;
      subquery(q, env);
      if (q.columns.size() > 1) fail(913, "too many values", e.place);
      return q.columns.front().type;
    }
    case ExprKind::Row:
      for (Expr* item : static_cast<RowExpr&>(e).items) value(*item, env);
      return {};
    default:
      condition(e, env);
      return {TypeKind::Condition};
  }
}

Type Resolver::arithmeticType(const Arithmetic& a, Type left, Type right) const {
  for (const Type t : {left, right})
    if (t.kind == TypeKind::Raw) inconsistent({TypeKind::Number}, t, a.place);
  const bool leftDate = left.kind == TypeKind::Date;
  const bool rightDate = right.kind == TypeKind::Date;
  if (!leftDate && !rightDate) return {TypeKind::Number};
  switch (a.op) {
    case ArithmeticOp::Add:
      if (leftDate && rightDate) fail(975, "date + date not allowed", a.place);
      return {TypeKind::Date};
    case ArithmeticOp::Subtract:
      if (leftDate && rightDate) return {TypeKind::Number};
      if (leftDate) return {TypeKind::Date};
      break;
    case ArithmeticOp::Multiply:
    case ArithmeticOp::Divide:
      break;
  }
  inconsistent({TypeKind::Number}, {TypeKind::Date}, a.place);
}

Type Resolver::caseType(CaseExpr& c, const Env& env) {
  Type operand{TypeKind::Null};
  if (c.operand) operand = value(*c.operand, env);
  Type result{TypeKind::Null};
  const auto branch = [&](Expr& e) {
    const Type t = value(e, env);
    const Type common = commonType(result, t);
    if (common.kind == TypeKind::Unresolved) inconsistent(result, t, e.place);
    result = common;
  };
  for (CaseWhen& w : c.whens) {
    if (c.operand) {
      // The simple form converts nothing.
      const Type t = value(*w.when, env);
      if (commonType(operand, t).kind == TypeKind::Unresolved) inconsistent(operand, t, w.when->place);
    } else {
      condition(*w.when, env);
    }
    branch(*w.then);
  }
  if (c.otherwise) branch(*c.otherwise);
  if (result.kind == TypeKind::Null) result = {TypeKind::Varchar2};
  return result;
}

void Resolver::condition(Expr& e, const Env& env) {
  e.type = {TypeKind::Condition};
  switch (e.kind) {
    case ExprKind::Compare: {
      auto& c = static_cast<Compare&>(e);
      value(*c.left, env);
      const auto* row = as<RowExpr>(c.left);
      if (auto* sub = as<SubqueryExpr>(c.right); row && sub) {
        subqueryAgainst(*c.left, *sub->query, env, c.place);
        return;
      }
      value(*c.right, env);
      if (row)
        compareRows(*c.left, *c.right);
      else
        comparable(c.left->type, c.right->type, c.place);
      return;
    }
    case ExprKind::And:
      for (Expr* t : static_cast<AndExpr&>(e).terms) condition(*t, env);
      return;
    case ExprKind::Or:
      for (Expr* t : static_cast<OrExpr&>(e).terms) condition(*t, env);
      return;
    case ExprKind::Not:
      condition(*static_cast<NotExpr&>(e).operand, env);
      return;
    case ExprKind::Lnnvl:
      condition(*static_cast<Lnnvl&>(e).operand, env);
      return;
    case ExprKind::Between: {
      auto& b = static_cast<Between&>(e);
      value(*b.operand, env);
      for (Expr* bound : {b.low, b.high}) {
        value(*bound, env);
        comparable(b.operand->type, bound->type, bound->place);
      }
      return;
    }
    case ExprKind::In: {
      auto& in = static_cast<InExpr&>(e);
      value(*in.operand, env);
      listAgainst(*in.operand, in.list, env);
      if (in.query) subqueryAgainst(*in.operand, *in.query, env, in.place);
      return;
    }
    case ExprKind::Like: {
      auto& l = static_cast<LikeExpr&>(e);
      value(*l.operand, env);
      value(*l.pattern, env);
      if (l.escape) value(*l.escape, env);
      return;
    }
    case ExprKind::IsNull:
      value(*static_cast<IsNull&>(e).operand, env);
      return;
    case ExprKind::Exists:
      subquery(*static_cast<Exists&>(e).query, env);
      return;
    default:
      throw SqlError::internal("a value where a condition stands", e.place);
  }
}

/// The list of IN. Of rows there may be any number.
void Resolver::listAgainst(const Expr& left, const ExprList& list, const Env& env) {
  const bool rows = left.kind == ExprKind::Row;
  if (!rows && list.size() > kMaxListValues)
    fail(1795, "maximum number of expressions in a list is 1000", list[kMaxListValues]->place);
  for (Expr* item : list) {
    value(*item, env);
    if (rows)
      compareRows(left, *item);
    else
      comparable(left.type, item->type, item->place);
  }
}

void Resolver::compareRows(const Expr& left, const Expr& right) const {
  const ExprList& a = static_cast<const RowExpr&>(left).items;
  const ExprList& b = static_cast<const RowExpr&>(right).items;
  if (a.size() > b.size()) fail(947, "not enough values", right.place);
  if (a.size() < b.size()) fail(913, "too many values", right.place);
  for (std::size_t i = 0; i < a.size(); ++i) comparable(a[i]->type, b[i]->type, b[i]->place);
}

/// IN with a query: as many columns as the other side has, each of a type that fits.
void Resolver::subqueryAgainst(const Expr& operand, Query& q, const Env& env, Place place) {
  subquery(q, env);
  const auto* row = as<RowExpr>(&operand);
  const std::size_t wanted = row ? row->items.size() : 1;
  if (q.columns.size() < wanted) fail(947, "not enough values", place);
  if (q.columns.size() > wanted) fail(913, "too many values", place);
  for (std::size_t i = 0; i < wanted; ++i)
    comparable(row ? row->items[i]->type : operand.type, q.columns[i].type, place);
}

/// A query inside an expression: no ORDER BY there.
void Resolver::subquery(Query& q, const Env& env) {
  if (!q.orderBy.empty()) fail(907, "missing right parenthesis", q.orderBy.front().place);
  query(q, env.scope, env.scope->with);
}

void Resolver::checkDate(const DateLiteral& d) const {
  try {
    dateOfLiteral(d.value);
  } catch (const FunctionError& e) {
    if (e.code() == FunctionError::kUnsupported) throw SqlError::unsupported(e.what(), d.place);
    fail(e.code(), e.what(), d.place);
  }
}

}  // namespace oracle_sql
