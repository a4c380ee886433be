// Every rule of the lowering, in the order in which a query meets them. Each stands in the file of its name.
#pragma once

#include <vector>

#include "platform/embedded/lowering/emitter.h"

namespace kestrelix::embedded {

// ---- queries ----

/// set_operators: UNION, MINUS and INTERSECT, one precedence, left to right.
QueryText lowerSetOperators(Emitter& emitter, const sql::Query& query);

/// block: one SELECT with the order of the query that it alone makes up (`order` may be null).
QueryText lowerBlock(Emitter& emitter, const sql::SelectBlock& block, const sql::List<sql::OrderItem>* order);

/// used_columns: what nobody reads of an inline view is not selected.
void markUsedColumns(const sql::Query& query, UsedColumns& used);
bool isUsed(const UsedColumns& used, const sql::SelectBlock& block, std::size_t column);

/// The parts of a block that the rules below put together.
struct BlockParts {
  std::string from;
  std::vector<const sql::Expr*> conjuncts;  ///< of WHERE, without those that went to a join
};

/// " WHERE " and the conditions; empty without any.
std::string whereOf(Emitter& emitter, const std::vector<const sql::Expr*>& conjuncts);

/// outer_marks: "(+)" to LEFT JOIN.
BlockParts lowerFrom(Emitter& emitter, const sql::SelectBlock& block);

/// key_tests: `view.column = value` on the rows that the view reads, before they are grouped or windowed.
void passKeyTests(Emitter& emitter, const sql::SelectBlock& block,
                  const std::vector<const sql::Expr*>& conjuncts);
/// The tests that the blocks around have handed to this one, as a condition; empty without any.
std::string givenKeyTests(Emitter& emitter, const sql::SelectBlock& block);

/// A wrap of the FROM items of the block, and the select list that gives what was asked of one.
Wrap wrapOf(Emitter& emitter, const sql::SelectBlock& block, const char* alias);
std::string exportList(Emitter& emitter, const Wrap& wrap);

/// joins: ANSI joins, with USING and NATURAL.
std::string lowerJoin(Emitter& emitter, const sql::JoinItem& join);

/// pivot: PIVOT to grouped CASE aggregates.
std::string lowerPivot(Emitter& emitter, const sql::PivotItem& pivot);

/// rownum: counted before the block groups, sorts or drops doubles.
QueryText lowerRownumBlock(Emitter& emitter, const sql::SelectBlock& block, const BlockParts& parts,
                           const sql::List<sql::OrderItem>* order);

/// The select list, GROUP BY, HAVING and ORDER BY around a FROM and WHERE that stand as text.
QueryText assembleBlock(Emitter& emitter, const sql::SelectBlock& block, const std::string& from,
                        const std::string& where, const sql::List<sql::OrderItem>* order);
/// The select list with FROM and WHERE alone.
QueryText assembleList(Emitter& emitter, const sql::SelectBlock& block, const std::string& from,
                       const std::string& where);
/// " GROUP BY ..."; without keys all rows are one group, and no row is none.
std::string groupByText(const std::vector<std::string>& keys);

/// groups: aggregates over aggregates, ROLLUP, CUBE and GROUPING SETS to a query of the groups in FROM. Tells
/// whether the block has them.
bool readsGroups(const sql::SelectBlock& block);
QueryText assembleGroups(Emitter& emitter, const sql::SelectBlock& block, const std::string& from,
                         const std::string& where, const sql::List<sql::OrderItem>* order);

/// outer_aggregates: an item at the end of FROM that ties aggregates of outer columns to the block; empty
/// where none needs it. Sets the anchor of the emitter.
std::string lowerAnchor(Emitter& emitter, const sql::SelectBlock& block,
                        const sql::List<sql::OrderItem>* order);
/// An aggregate that stays in its block.
Piece lowerOwnAggregate(Emitter& emitter, const sql::Call& call);

/// ordering: NULL sorts as the greatest value; a NUMBER that may be broken sorts by its key.
std::string lowerOrder(Emitter& emitter, const sql::List<sql::OrderItem>& items,
                       const std::vector<Piece>* outputs);
/// Whether the text is a whole number, signs and brackets included, that SQLite could take for the place of a
/// column.
bool isPlainNumber(const std::string& text);
/// What SQLite sorts, groups extremes and compares `piece` by.
std::string sortKey(const Piece& piece);
/// The order as further arguments of an aggregate (", key, how, ..."); `backwards` from its end.
std::string sortKeys(Emitter& emitter, const sql::List<sql::OrderItem>& items, bool backwards);

// ---- conditions ----

/// comparison: by the type that Oracle compares in.
std::string lowerCompare(Emitter& emitter, const sql::Compare& compare);
std::string lowerBetween(Emitter& emitter, const sql::Between& between);
std::string lowerIn(Emitter& emitter, const sql::InExpr& in);
/// `left op right` for two values.
std::string compared(Emitter& emitter, sql::CompareOp op, const Piece& left, const Piece& right,
                     sql::Place place);
/// like: by a function, or by SQLite's own where the pattern is plain.
std::string lowerLike(Emitter& emitter, const sql::LikeExpr& like);

// ---- expressions ----

/// literals: literals and binds; '' is NULL.
Piece lowerLiteral(Emitter& emitter, const sql::Expr& expr);
/// arithmetic: decimal, exact where SQLite's integers are.
Piece lowerArithmetic(Emitter& emitter, const sql::Arithmetic& arithmetic);
Piece lowerNegate(Emitter& emitter, const sql::Negate& negate);
Piece divided(Emitter& emitter, const Piece& left, const Piece& right, sql::Place place);
/// chains: many operators in a row, with less depth than they have terms.
bool isLongChain(const sql::Arithmetic& arithmetic);
Piece lowerLongChain(Emitter& emitter, const sql::Arithmetic& arithmetic);
/// The terms with `op`, which is associative, between them; in brackets where they are many.
std::string chained(std::vector<std::string> terms, const std::string& op);
/// The end of a searched CASE that gives `piece` where nothing else is chosen.
std::string elseOf(const Piece& piece);
/// The values of which `piece` is the first that is there: one, unless it is a COALESCE and nothing else.
std::vector<std::string> alternativesOf(const Piece& piece);
/// Makes `piece` the first of `alternatives` that is there.
void setAlternatives(Piece& piece, std::vector<std::string> alternatives);
/// concatenation: NULL counts as the empty text.
Piece lowerConcat(Emitter& emitter, const sql::Concat& concat);
/// case: both forms of CASE.
Piece lowerCase(Emitter& emitter, const sql::CaseExpr& expr);
/// decode: null equals null, and what is not chosen is not evaluated.
Piece lowerDecode(Emitter& emitter, const sql::Call& call);
/// nvl: NVL, NVL2, COALESCE, NULLIF, LNNVL.
Piece lowerNvl(Emitter& emitter, const sql::Call& call);
/// `first` where it is there, else `second`, as values of `call`.
/// `computesBoth` where the second one must be computed even if the first one is there.
Piece lowerEither(Emitter& emitter, const sql::Call& call, const sql::Expr& first, const sql::Expr& second,
                  bool computesBoth = false);
Piece lowerNvl2(Emitter& emitter, const sql::Call& call);
Piece lowerCoalesce(Emitter& emitter, const sql::Call& call);
Piece lowerNullif(Emitter& emitter, const sql::Call& call);
/// rounding: ROUND and TRUNC of numbers, which every report does thousands of times.
Piece lowerRound(Emitter& emitter, const sql::Call& call);
/// translate: TRANSLATE of one character by another, which is SQLite's replace.
Piece lowerTranslate(Emitter& emitter, const sql::Call& call);
/// calls: every other function that takes and gives single values.
Piece lowerCall(Emitter& emitter, const sql::Call& call);
/// aggregates: sums and averages in NUMBER.
Piece lowerAggregate(Emitter& emitter, const sql::Call& call);
/// keep: the aggregate over the rows that are first or last in an order.
Piece lowerKeep(Emitter& emitter, const sql::Call& call, const std::vector<Piece>& arguments);
/// percentiles: MEDIAN and the percentiles.
bool isPercentile(const sql::Call& call);
Piece lowerPercentile(Emitter& emitter, const sql::Call& call);
/// windows: ranks, and aggregates over a frame.
Piece lowerWindow(Emitter& emitter, const sql::Call& call);
/// other_rows: LAG and its like.
bool givesOtherRow(const sql::Call& call);
Piece lowerOtherRow(Emitter& emitter, const sql::Call& call);
/// frames: " OVER (...)", and PARTITION BY alone, which may be empty.
std::string overText(Emitter& emitter, const sql::Window& window);
std::string partitionText(Emitter& emitter, const sql::Window& window);
/// A count of rows, not below `least` (ORA-01428).
std::string rowOffset(Emitter& emitter, const sql::Expr& expr, int least);
/// cast: CAST(x AS type).
Piece lowerCast(Emitter& emitter, const sql::CastExpr& cast);
/// subqueries: a scalar subquery of two rows is an error.
Piece lowerScalarSubquery(Emitter& emitter, const sql::SubqueryExpr& subquery);
std::string lowerExists(Emitter& emitter, const sql::Exists& exists);
/// `operand` op ANY|ALL (subquery), with all three truth values.
std::string lowerQuantifiedQuery(Emitter& emitter, const sql::Compare& compare,
                                 const std::vector<Piece>& operand);
std::string lowerInQuery(Emitter& emitter, const std::vector<Piece>& operand, bool negated,
                         const sql::Query& query, sql::Place place);
/// (a, b) = or <> the only row of a query, unknown without one.
std::string lowerRowAgainstQuery(Emitter& emitter, const std::vector<Piece>& row, bool negated,
                                 const sql::SubqueryExpr& subquery);

}  // namespace kestrelix::embedded
