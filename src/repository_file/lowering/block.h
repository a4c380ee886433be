// The ways to lower a block, which build on each other.
#pragma once

#include "repository_file/lowering/lowerer.h"

namespace kestrelix::repository_file {

/// A block while it is lowered: what it reads, and the conditions that are lowered already.
struct BlockParts {
  const sql::SelectBlock& block;
  const sql::List<sql::OrderItem>* order;  ///< may be null
  lite::From from;
  std::vector<const lite::Expr*> where;

  bool isOrdered() const { return order && !order->empty(); }
};

/// outer_marks: FROM, with "(+)" as LEFT JOIN; takes from `conjuncts` what goes to a join.
lite::From lowerFrom(Lowerer& to, const sql::SelectBlock& block, std::vector<const sql::Expr*>& conjuncts);

/// key_tests: `view.column = value` on the rows that the view reads, before they are grouped or windowed.
void passKeyTests(Lowerer& to, const sql::SelectBlock& block, const std::vector<const sql::Expr*>& conjuncts);
/// The tests that the blocks around have handed to this one.
void addGivenKeyTests(Lowerer& to, BlockParts& parts);

/// rownum: counted before the block groups, sorts or drops doubles. `conjuncts` are the conditions of WHERE.
LoweredQuery lowerRownumBlock(Lowerer& to, BlockParts parts, const std::vector<const sql::Expr*>& conjuncts);

/// block: the select list, GROUP BY, HAVING and ORDER BY around the parts.
LoweredQuery assembleBlock(Lowerer& to, BlockParts parts);
/// The select list with FROM and WHERE alone.
LoweredQuery assembleList(Lowerer& to, BlockParts parts);
/// The keys that group; without any all rows are one group, and no row is none.
void addGroupKeys(Lowerer& to, lite::Select& select, const std::vector<const lite::Expr*>& keys);

/// groups: aggregates over aggregates, ROLLUP, CUBE and GROUPING SETS to a query of the groups in FROM. Tells
/// whether the block has them.
bool readsGroups(const sql::SelectBlock& block);
LoweredQuery assembleGroups(Lowerer& to, BlockParts parts);

/// outer_aggregates: adds an item to FROM that ties aggregates of outer columns to the block, and gives its
/// column; null where none needs it.
const lite::Expr* addAnchor(Lowerer& to, BlockParts& parts);

/// A wrap of the FROM items of the block, and the columns that were asked of one.
Wrap wrapOf(Lowerer& to, const sql::SelectBlock& block, const char* alias);
void addExports(Lowerer& to, const Wrap& wrap, lite::Select& select);

}  // namespace kestrelix::repository_file
