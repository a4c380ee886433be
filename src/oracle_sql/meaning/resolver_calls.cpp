// Calls: functions of one row, aggregates, window functions.
#include <algorithm>

#include "oracle_sql/functions/functions.h"
#include "oracle_sql/meaning/resolver_state.h"
#include "oracle_sql/meaning/same_expression.h"
#include "oracle_sql/syntax/walk.h"

namespace oracle_sql {

Type Resolver::call(Call& c, const Env& env) {
  if (c.package.empty())
    if (const SetFunction* f = findSetFunction(c.name)) return setFunction(c, *f, env);
  if (tellsOfGrouping(c)) return groupingFunction(c, env);
  return scalarCall(c, env);
}

void Resolver::countArguments(const Call& c, int low, int high) const {
  const int given = static_cast<int>(c.args.size());
  if (given >= low && given <= high) return;
  if (low == high) fail(909, "invalid number of arguments", c.place);
  if (given < low) fail(938, "not enough arguments for function", c.place);
  fail(939, "too many arguments for function", c.place);
}

Type Resolver::scalarCall(Call& c, const Env& env) {
  const std::string name =
      c.package.empty() ? std::string(c.name) : std::string(c.package) + "." + std::string(c.name);
  c.function = c.package.empty() ? findFunction(name) : catalogue_.packageFunction(name);
  if (!c.function) {
    if (c.package.empty() && isOracleFunction(c.name))
      throw SqlError::unsupported("function " + name, c.place);
    const std::string package = c.package.empty() ? "" : "\"" + std::string(c.package) + "\".";
    fail(904, package + "\"" + std::string(c.name) + "\": invalid identifier", c.place);
  }
  c.role = CallRole::Scalar;
  if (c.star) fail(936, "missing expression", c.place);
  if (c.distinct) fail(30482, "DISTINCT option not allowed for this function", c.place);
  if (c.over || c.keep || !c.withinGroup.empty() || c.nulls != NullTreatment::Default)
    fail(923, "FROM keyword not found where expected", c.place);
  std::vector<Type> types;
  types.reserve(c.args.size());
  for (Expr* arg : c.args) types.push_back(value(*arg, env));
  if (c.name == "EXTRACT" && !c.option.empty()) {
    if (c.option != "YEAR" && c.option != "MONTH" && c.option != "DAY")
      fail(30076, "invalid extract field for extract source", c.place);
    return {TypeKind::Number, true};
  }
  const bool converts = c.name == "TO_CHAR" || c.name == "TO_NUMBER" || c.name == "TO_DATE";
  if (converts && c.args.size() == 3)
    throw SqlError::unsupported("NLS parameters of " + name, c.args[2]->place);
  countArguments(c, c.function->minArguments, c.function->maxArguments);
  if (c.package.empty()) checkArguments(c);
  return c.function->resultType(types);
}

namespace {

/// The functions that take nothing but numbers, and text that is one.
constexpr std::string_view kOfNumbers[] = {"ABS", "BITAND", "CEIL",  "EXP",       "FLOOR", "LN",
                                           "LOG", "MOD",    "POWER", "REMAINDER", "SIGN",  "SQRT"};

}  // namespace

/// ORA-00932 where the arguments do not go together, whatever their values are.
void Resolver::checkArguments(const Call& c) const {
  const auto type = [&](std::size_t i) { return c.args[i]->type; };
  const auto go = [&](Type wanted, std::size_t i) { comparable(wanted, type(i), c.args[i]->place); };
  const std::size_t count = c.args.size();
  if (c.name == "COALESCE" || c.name == "NULLIF") {
    // These convert nothing.
    if (c.name == "NULLIF" && c.args[0]->kind == ExprKind::Null)
      fail(932, "inconsistent datatypes: expected - got CHAR", c.args[0]->place);
    Type common = type(0);
    for (std::size_t i = 1; i < count; ++i) {
      const Type next = commonType(common, type(i));
      if (next.kind == TypeKind::Unresolved) inconsistent(common, type(i), c.args[i]->place);
      common = next;
    }
  } else if (c.name == "NVL" || c.name == "GREATEST" || c.name == "LEAST") {
    for (std::size_t i = 1; i < count; ++i) go(type(0), i);
  } else if (c.name == "NVL2") {
    go(type(1), 2);
  } else if (c.name == "DECODE") {
    go(type(1), 0);
    for (std::size_t i = 3; i < count; ++i) go(type(i + 1 < count && i % 2 != 0 ? 1 : 2), i);
  } else if (std::ranges::find(kOfNumbers, c.name) != std::end(kOfNumbers)) {
    for (std::size_t i = 0; i < count; ++i) go({TypeKind::Number}, i);
  }
}

Type Resolver::setFunction(Call& c, const SetFunction& f, const Env& env) {
  if (!f.window && c.over) fail(923, "FROM keyword not found where expected", c.place);
  if (!f.aggregate && !c.over) {
    if (!c.withinGroup.empty()) throw SqlError::unsupported(std::string(c.name) + " WITHIN GROUP", c.place);
    fail(30484, "missing window specification for this function", c.place);
  }
  if (c.keep && !f.keeps) fail(923, "FROM keyword not found where expected", c.place);
  if (!c.withinGroup.empty() && !f.sortsWithinGroup())
    fail(30495, "WITHIN GROUP is not allowed here", c.place);
  if (f.sortsWithinGroup() && c.withinGroup.empty()) fail(2000, "missing WITHIN keyword", c.place);
  if (c.withinGroup.size() > 1 && f.result != SetResult::Text)
    throw SqlError::unsupported(std::string(c.name) + " by several keys", c.withinGroup[1].place);
  const bool picksRow = f.name == "LAG" || f.name == "LEAD" || f.name == "FIRST_VALUE" ||
                        f.name == "LAST_VALUE" || f.name == "NTH_VALUE";
  if (c.nulls != NullTreatment::Default && !picksRow) fail(907, "missing right parenthesis", c.place);
  if (c.star && f.name != "COUNT") fail(936, "missing expression", c.place);
  if (c.distinct && !f.keeps) fail(30482, "DISTINCT option not allowed for this function", c.place);
  if (!c.star) countArguments(c, f.minArguments, f.maxArguments);

  SelectBlock* b = env.scope->block;
  Env inside = env;
  inside.windows = false;
  inside.aliases = false;
  if (c.over) {
    c.role = CallRole::Window;
    if (!env.windows) fail(30483, "window functions are not allowed here", c.place);
    if (b) b->windowed = true;
  } else {
    c.role = CallRole::Aggregate;
    if (!env.aggregates) fail(934, "group function is not allowed here", c.place);
    if (env.aggregateDepth == 1 && (!b || b->groupBy.empty()))
      fail(978, "nested group function without GROUP BY", c.place);
    if (env.aggregateDepth > (env.having ? 0 : 1)) fail(935, "group function is nested too deeply", c.place);
    if (b) {
      b->grouped = true;
      b->nestedAggregates = b->nestedAggregates || env.aggregateDepth == 1;
    }
    ++inside.aggregateDepth;
  }
  for (Expr* arg : c.args) value(*arg, inside);
  for (OrderItem& item : c.withinGroup) value(*item.expr, inside);
  if (c.keep)
    for (OrderItem& item : c.keep->orderBy) value(*item.expr, inside);
  if (c.over) window(c, f, inside);
  checkConstancy(c, env);
  return setFunctionType(c, f);
}

namespace {

/// Whether the rows that share the keys share the value, too.
bool followsFrom(const Expr& e, const ExprList& keys) {
  for (const Expr* key : keys)
    if (sameExpression(*key, e)) return true;
  const auto* c = as<ColumnRef>(&e);
  if ((c && c->levelsOut == 0) || e.kind == ExprKind::Rownum) return false;
  bool follows = true;
  forEachOperand(e, [&](const Expr& o) { follows = follows && followsFrom(o, keys); });
  return follows;
}

}  // namespace

/// What must be one value for all rows of a group or partition: the separator of LISTAGG, the count of NTILE,
/// the share of a percentile.
void Resolver::checkConstancy(const Call& c, const Env& env) const {
  const Expr* fixed = nullptr;
  if (c.name == "NTILE" || c.name == "PERCENTILE_CONT" || c.name == "PERCENTILE_DISC") fixed = c.args[0];
  if (c.name == "LISTAGG" && c.args.size() > 1) fixed = c.args[1];
  const SelectBlock* b = env.scope->block;
  if (!fixed || !b || followsFrom(*fixed, c.over ? c.over->partitionBy : b->groupBy)) return;
  if (c.over) fail(30488, "argument should be a function of expressions in PARTITION BY", fixed->place);
  fail(30497, "Argument should be a constant or a function of expressions in GROUP BY.", fixed->place);
}

void Resolver::window(Call& c, const SetFunction& f, const Env& inside) {
  Window& w = *c.over;
  if (f.needsOrder && w.orderBy.empty())
    fail(30485, "missing ORDER BY expression in the window specification", c.place);
  const bool noOrder =
      c.distinct || c.keep || f.name == "RATIO_TO_REPORT" || f.sortsWithinGroup() || f.name == "MEDIAN";
  if (noOrder && !w.orderBy.empty()) fail(30487, "ORDER BY not allowed here", w.orderBy.front().place);
  if (f.needsOrder && w.unit != FrameUnit::None) fail(907, "missing right parenthesis", c.place);
  for (Expr* p : w.partitionBy) value(*p, inside);
  for (OrderItem& item : w.orderBy) value(*item.expr, inside);
  for (const FrameBound& bound : {w.start, w.end}) {
    if (!bound.offset) continue;
    value(*bound.offset, inside);
    if (w.unit == FrameUnit::Range && w.orderBy.size() != 1)
      fail(30486, "invalid window aggregation group in the window specification", bound.offset->place);
  }
}

Type Resolver::setFunctionType(const Call& c, const SetFunction& f) const {
  const bool ofOrder = f.result == SetResult::LikeOrder || f.result == SetResult::NumberOrDateOfOrder;
  const Expr* deciding = ofOrder ? c.withinGroup.front().expr : c.args.empty() ? nullptr : c.args.front();
  const Type first = deciding ? deciding->type : Type{TypeKind::Null};
  const auto requireNumber = [](Type type, Place place) {
    if (type.kind == TypeKind::Date || type.kind == TypeKind::Raw)
      inconsistent({TypeKind::Number}, type, place);
  };
  if (ofOrder) requireNumber(c.args.front()->type, c.args.front()->place);
  switch (f.result) {
    case SetResult::Whole:
      return {TypeKind::Number, true};
    case SetResult::Text:
      return {TypeKind::Varchar2};
    case SetResult::NumberOrDate:
    case SetResult::NumberOrDateOfOrder:
      if (first.kind == TypeKind::Date) return first;
      [[fallthrough]];
    case SetResult::Number:
      if (deciding) requireNumber(first, deciding->place);
      return {TypeKind::Number};
    case SetResult::LikeOrder:
    case SetResult::LikeArgument:
      break;
  }
  Type result = first.kind == TypeKind::Null ? Type{TypeKind::Varchar2} : first;
  if (c.args.size() < 3) return result;
  // The default of LAG and LEAD.
  const Type other = c.args[2]->type;
  if (first.kind == TypeKind::Null) return other.kind == TypeKind::Null ? result : other;
  comparable(first, other, c.args[2]->place);
  if (result.isText()) return {TypeKind::Varchar2};
  result.integral = result.integral && (other.integral || other.kind == TypeKind::Null);
  return result;
}

}  // namespace oracle_sql
