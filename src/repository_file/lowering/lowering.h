// From a resolved Oracle statement to SQLite's text.
#pragma once

#include <functional>
#include <limits>
#include <set>
#include <string>
#include <vector>

#include "oracle_sql/syntax/tree.h"
#include "repository_file/names.h"

namespace kestrelix::repository_file {

/// What is known of the numbers of a column, a bind or an expression before the statement runs. Where every
/// value is whole and small enough, SQLite's own operators give the exact result.
struct NumberFacts {
  bool integral = false;                                     ///< always stored as INTEGER
  double largest = std::numeric_limits<double>::infinity();  ///< no absolute value is above
};

/// A function that the lowered text calls by `name`: `function` of the language with the types `signature`,
/// one letter of StoredKind an argument.
struct FunctionUse {
  std::string name;
  std::string function;
  std::string signature;
  auto operator<=>(const FunctionUse&) const = default;
};

struct LoweredColumn {
  std::string name;
  sql::TypeKind type;
};

struct LoweredStatement {
  std::string text;
  std::vector<LoweredColumn> columns;
  std::set<FunctionUse> functions;
  int rownumCounters = 0;               ///< how many ROWNUMs are counted while it runs
  std::vector<std::string> frameBinds;  ///< the binds that are offsets of frames, which SQLite checks itself
  bool nearBounds = false;              ///< may be more than SQLite takes at once
};

/// What the lowering asks of its surroundings.
struct LoweringFacts {
  /// Of column `index` of a table.
  std::function<NumberFacts(const sql::CatalogueTable& table, int index)> column;
  /// Of a bind variable of type NUMBER, by its upper-case name.
  std::function<NumberFacts(std::string_view bind)> bind;
  /// Sums of whole numbers go beyond 64 bits: SQLite's own sum, which fails there, will not do.
  bool wideSums = false;
};

/// The text for SQLite of a tree that resolve() has been through. Throws SqlError, of kind Unsupported for
/// what Oracle knows and SQLite cannot be brought to do.
LoweredStatement lower(const sql::Tree& tree, const LoweringFacts& facts);

}  // namespace kestrelix::repository_file
