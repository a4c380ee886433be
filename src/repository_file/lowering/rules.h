// The rules of the lowering: each stands in the file of its name and is tried in the order of the list in
// rules.cpp.
#pragma once

#include <optional>

#include "repository_file/lowering/lowerer.h"

namespace kestrelix::repository_file {

/// What a rule makes of a node; nothing where it leaves the node to the rules behind it.
using Lowered = std::optional<Value>;

// ---- values ----

/// literals: literals and binds; '' is NULL.
Lowered lowerLiteral(Lowerer& to, const sql::Expr& expr);
/// columns: a column of a FROM item or, in ORDER BY, of the select list; ROWNUM.
Lowered lowerColumn(Lowerer& to, const sql::ColumnRef& ref);
Lowered lowerRownum(Lowerer& to, const sql::RownumExpr& rownum);
/// arithmetic: decimal, exact where SQLite's integers are.
Lowered lowerNegate(Lowerer& to, const sql::Negate& negate);
Lowered lowerDates(Lowerer& to, const sql::Arithmetic& arithmetic);
Lowered lowerArithmetic(Lowerer& to, const sql::Arithmetic& arithmetic);
/// chains: many operators in a row, with less depth than they have terms.
Lowered lowerLongChain(Lowerer& to, const sql::Arithmetic& arithmetic);
/// concatenation: NULL counts as the empty text.
Lowered lowerConcat(Lowerer& to, const sql::Concat& concat);
/// case: both forms of CASE.
Lowered lowerCase(Lowerer& to, const sql::CaseExpr& expr);
/// cast: CAST(x AS type).
Lowered lowerCast(Lowerer& to, const sql::CastExpr& cast);
/// subqueries: a scalar subquery of two rows is an error.
Lowered lowerScalarSubquery(Lowerer& to, const sql::SubqueryExpr& subquery);

// ---- calls ----

/// decode: null equals null, and what is not chosen is not evaluated.
Lowered lowerDecodeOfNull(Lowerer& to, const sql::Call& call);
Lowered lowerDecode(Lowerer& to, const sql::Call& call);
/// nvl: the first value that is there.
Lowered lowerNvl(Lowerer& to, const sql::Call& call);
Lowered lowerNvl2(Lowerer& to, const sql::Call& call);
Lowered lowerCoalesce(Lowerer& to, const sql::Call& call);
Lowered lowerNullif(Lowerer& to, const sql::Call& call);
/// rounding: ROUND and TRUNC of numbers, which every report does thousands of times.
Lowered lowerRound(Lowerer& to, const sql::Call& call);
/// translate: TRANSLATE of one character by another, which is SQLite's replace.
Lowered lowerTranslate(Lowerer& to, const sql::Call& call);
/// calls: every other function that takes and gives single values.
Lowered lowerCall(Lowerer& to, const sql::Call& call);
/// keep: the aggregate over the rows that are first or last in an order.
Lowered lowerKeep(Lowerer& to, const sql::Call& call);
/// aggregates: counts, extremes, lists, and sums in NUMBER.
Lowered lowerCount(Lowerer& to, const sql::Call& call);
Lowered lowerExtreme(Lowerer& to, const sql::Call& call);
Lowered lowerList(Lowerer& to, const sql::Call& call);
Lowered lowerNumberAggregate(Lowerer& to, const sql::Call& call);
/// percentiles: MEDIAN and the percentiles.
Lowered lowerMedian(Lowerer& to, const sql::Call& call);
Lowered lowerPercentile(Lowerer& to, const sql::Call& call);
/// windows: ranks and shares.
Lowered lowerRank(Lowerer& to, const sql::Call& call);
Lowered lowerRankShare(Lowerer& to, const sql::Call& call);
Lowered lowerRatioToReport(Lowerer& to, const sql::Call& call);
Lowered lowerNtile(Lowerer& to, const sql::Call& call);
/// other_rows: LAG and its like.
Lowered lowerOtherRow(Lowerer& to, const sql::Call& call);

// ---- conditions ----

/// logic: AND, OR, NOT, IS NULL, LNNVL, and functions that are conditions.
Lowered lowerAnd(Lowerer& to, const sql::AndExpr& both);
Lowered lowerOr(Lowerer& to, const sql::OrExpr& either);
Lowered lowerNot(Lowerer& to, const sql::NotExpr& negation);
Lowered lowerIsNull(Lowerer& to, const sql::IsNull& test);
Lowered lowerLnnvl(Lowerer& to, const sql::Lnnvl& test);
/// subqueries: against the rows of a query, with all three truth values.
Lowered lowerExists(Lowerer& to, const sql::Exists& exists);
Lowered lowerInQuery(Lowerer& to, const sql::InExpr& in);
Lowered lowerRowAgainstQuery(Lowerer& to, const sql::Compare& compare);
/// comparison: by the type that Oracle compares in.
Lowered lowerCompare(Lowerer& to, const sql::Compare& compare);
Lowered lowerBetween(Lowerer& to, const sql::Between& between);
Lowered lowerIn(Lowerer& to, const sql::InExpr& in);
/// like: by SQLite's own functions where the pattern is plain, else by one of Oracle's rules.
Lowered lowerPlainLike(Lowerer& to, const sql::LikeExpr& like);
Lowered lowerLike(Lowerer& to, const sql::LikeExpr& like);

}  // namespace kestrelix::repository_file
