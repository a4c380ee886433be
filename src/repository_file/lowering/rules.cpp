#include "repository_file/lowering/rules.h"

#include <algorithm>
#include <array>

namespace kestrelix::repository_file {
namespace {

using sql::ExprKind;

struct Rule {
  ExprKind kind;
  std::string_view function;  ///< of a call; empty for any
  Lowered (*lower)(Lowerer&, const sql::Expr&);
};

template <auto Apply>
struct On;
template <class Node, Lowered (*Apply)(Lowerer&, const Node&)>
struct On<Apply> {
  static Lowered lower(Lowerer& to, const sql::Expr& expr) {
    return Apply(to, static_cast<const Node&>(expr));
  }
  static constexpr Rule rule(std::string_view function = {}) { return {Node::kKind, function, lower}; }
};

template <auto Apply>
constexpr Rule on(std::string_view function = {}) {
  return On<Apply>::rule(function);
}

/// The first rule that takes a node lowers it. The kinds stand in their order.
constexpr Rule kRules[] = {
    {ExprKind::Null, {}, lowerLiteral},
    {ExprKind::Number, {}, lowerLiteral},
    {ExprKind::String, {}, lowerLiteral},
    {ExprKind::DateLiteral, {}, lowerLiteral},
    on<lowerColumn>(),
    on<lowerRownum>(),
    {ExprKind::Bind, {}, lowerLiteral},
    on<lowerNegate>(),
    on<lowerLongChain>(),
    on<lowerDates>(),
    on<lowerArithmetic>(),
    on<lowerConcat>(),
    on<lowerCase>(),
    on<lowerDecodeOfNull>("DECODE"),
    on<lowerDecode>("DECODE"),
    on<lowerNvl>("NVL"),
    on<lowerNvl2>("NVL2"),
    on<lowerCoalesce>("COALESCE"),
    on<lowerNullif>("NULLIF"),
    on<lowerRound>("ROUND"),
    on<lowerRound>("TRUNC"),
    on<lowerTranslate>("TRANSLATE"),
    on<lowerMedian>("MEDIAN"),
    on<lowerPercentile>("PERCENTILE_CONT"),
    on<lowerPercentile>("PERCENTILE_DISC"),
    on<lowerKeep>(),
    on<lowerCount>("COUNT"),
    on<lowerExtreme>("MIN"),
    on<lowerExtreme>("MAX"),
    on<lowerList>("LISTAGG"),
    on<lowerNumberAggregate>(),
    on<lowerRank>("ROW_NUMBER"),
    on<lowerRank>("RANK"),
    on<lowerRank>("DENSE_RANK"),
    on<lowerRankShare>("PERCENT_RANK"),
    on<lowerRankShare>("CUME_DIST"),
    on<lowerRatioToReport>("RATIO_TO_REPORT"),
    on<lowerNtile>("NTILE"),
    on<lowerOtherRow>(),
    on<lowerCall>(),
    on<lowerCast>(),
    on<lowerScalarSubquery>(),
    on<lowerRowAgainstQuery>(),
    on<lowerCompare>(),
    on<lowerAnd>(),
    on<lowerOr>(),
    on<lowerNot>(),
    on<lowerBetween>(),
    on<lowerInQuery>(),
    on<lowerIn>(),
    on<lowerPlainLike>(),
    on<lowerLike>(),
    on<lowerIsNull>(),
    on<lowerExists>(),
    on<lowerLnnvl>(),
};
static_assert(std::ranges::is_sorted(kRules, {}, &Rule::kind));

}  // namespace

Value Lowerer::lower(const sql::Expr& expr) {
  if (const auto found = replacements.find(&expr); found != replacements.end()) return found->second;
  const auto* call = sql::as<sql::Call>(&expr);
  for (const Rule& rule : std::ranges::equal_range(kRules, expr.kind, {}, &Rule::kind)) {
    if (!rule.function.empty() && (rule.function != call->name || !call->package.empty())) continue;
    if (const Lowered lowered = rule.lower(*this, expr)) return *lowered;
  }
  throw sql::SqlError::unsupported("this construct", expr.place);
}

}  // namespace kestrelix::repository_file
