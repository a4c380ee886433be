// What the rules of the lowering share: the names given out, the facts found, the text made so far.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "oracle_sql/error.h"
#include "oracle_sql/tree.h"
#include "platform/embedded/lowering/lowering.h"
#include "platform/embedded/storage.h"

namespace kestrelix::embedded {

/// A whole number divided by a power of ten, which is exact: another division may be joined to it.
struct ExactQuotient {
  std::string dividend;  ///< empty for any other expression
  std::int64_t divisor = 1;
  double largest = 0;  ///< no absolute value of the dividend is above
};

/// An expression in SQLite's words, with what is known of its values.
struct Piece {
  std::string text;
  sql::TypeKind kind = sql::TypeKind::Null;
  NumberFacts number;
  bool atom = false;     ///< in need of no brackets
  bool cheap = false;    ///< a name or a literal: may stand more than once
  bool present = false;  ///< never NULL
  ExactQuotient quotient;
  bool searched = false;                  ///< was made as CASE WHEN ... END, see elseOf()
  std::vector<std::string> alternatives;  ///< was made as the COALESCE of these, see alternativesOf()
};

/// A column of a FROM item under the name that SQLite knows it by.
struct SourceColumn {
  std::string name;
  sql::TypeKind kind = sql::TypeKind::Null;
  NumberFacts number;
};

/// A FROM item under its alias, which is unique in the whole statement: so no inner name can hide an outer
/// one.
struct Source {
  std::string alias;
  std::vector<SourceColumn> columns;
};

/// A subquery that a block has been put into, so that ROWNUM is counted before the block groups or sorts. The
/// block's own expressions then read these columns, which are found while they are lowered.
struct Wrap {
  std::string alias;
  std::unordered_set<const sql::FromItem*> sources;
  std::map<std::pair<const sql::FromItem*, int>, std::string> exports;
};

/// A column of a block whose rows matter only where it has that value.
struct KeyTest {
  const sql::ColumnRef* column;
  const sql::Expr* value;  ///< a bind or a literal
  sql::Place place;
};

/// Which columns of a block's select list are read by the blocks around it.
using UsedColumns = std::unordered_map<const sql::SelectBlock*, std::vector<bool>>;

/// A lowered query with the facts of its columns.
struct QueryText {
  std::string text;
  std::vector<SourceColumn> columns;

  // Of a block on its own:
  std::vector<Piece> outputs;  ///< its select list, in words that hold inside the block
  std::size_t listEnd = 0;     ///< where in `text` more could be selected
};

class Emitter {
 public:
  Emitter(const sql::Tree& tree, const LoweringFacts& facts) : tree_(tree), facts_(facts) {}

  LoweredStatement statement();

  // Queries and blocks.
  QueryText query(const sql::Query& query);
  std::string from(const sql::SelectBlock& block, std::vector<const sql::Expr*>& conjuncts);
  /// The FROM item with its alias, made known to the expressions that follow.
  std::string source(const sql::FromItem& item);
  const Source& sourceOf(const sql::FromItem* item) const;
  void define(const sql::FromItem* item, Source source) { sources_[item] = std::move(source); }
  Piece column(const sql::FromItem* item, int index);

  // Expressions and conditions.
  Piece expression(const sql::Expr& expr);
  std::string condition(const sql::Expr& expr);

  /// A value of the function `name` of the language with these arguments, failing at `place`.
  Piece call(std::string_view name, const std::vector<Piece>& arguments, sql::Type type, sql::Place place);
  /// `piece` brought to the type, as Oracle converts it by itself.
  Piece converted(Piece piece, sql::TypeKind target, sql::Place place);

  std::string uniqueAlias(std::string_view wish);
  /// Tells that what is lowered stands in so many more queries inside each other than the tree shows.
  void deepen(int levels) { levels_ += levels; }
  int newRownumCounter() { return result_.rownumCounters++; }

  /// The aggregate calls of a block whose results are taken from an inner block, by node.
  std::unordered_map<const sql::Expr*, Piece>& replacements() { return replacements_; }
  /// The tests that a block takes from the blocks around it.
  std::unordered_map<const sql::SelectBlock*, std::vector<KeyTest>>& keyTests() { return keyTests_; }
  const UsedColumns& usedColumns() const { return usedColumns_; }
  std::vector<Wrap*>& wraps() { return wraps_; }
  /// ROWNUM's text in the block that is being lowered; empty where it cannot stand.
  std::string& rownum() { return rownum_; }
  /// A column of the block that is being lowered which ties an aggregate to it; empty where none needs it.
  std::string& anchor() { return anchor_; }
  /// The select list that names in ORDER BY may stand for, while that is lowered; else null.
  const std::vector<Piece>*& outputs() { return outputs_; }
  const LoweringFacts& facts() const { return facts_; }

 private:
  Piece lowered(const sql::Expr& expr);
  std::string loweredCondition(const sql::Expr& expr);
  std::string nameQuery(std::string_view wish, const std::string& text);

  const sql::Tree& tree_;
  const LoweringFacts& facts_;
  LoweredStatement result_;
  std::unordered_map<const void*, Source> sources_;
  std::unordered_map<const sql::WithItem*, std::string> repeated_;  ///< texts that stand at each use
  std::string with_;  ///< the named queries of the whole statement
  int levels_ = 0;    ///< queries inside each other in what has been lowered of the current one
  std::unordered_set<std::string> aliases_;
  std::unordered_map<const sql::Expr*, Piece> replacements_;
  std::unordered_map<const sql::SelectBlock*, std::vector<KeyTest>> keyTests_;
  UsedColumns usedColumns_;
  std::vector<Wrap*> wraps_;
  std::string rownum_;
  std::string anchor_;
  const std::vector<Piece>* outputs_ = nullptr;
};

/// The facts of a value that is one of several; NULL adds none.
class CommonFacts {
 public:
  void add(const Piece& piece);
  /// What all the pieces have in common.
  NumberFacts facts() const { return any_ ? facts_ : NumberFacts{}; }

 private:
  NumberFacts facts_;
  bool any_ = false;
};

/// The parameter of SQLite that stands for a bind variable, and the variable that a parameter stands for.
std::string bindMarker(std::string_view bind);
std::string bindOfMarker(std::string_view marker);
/// A name as SQLite's quoted identifier.
std::string quoted(std::string_view name);
/// "(" text ")" unless it is an atom.
std::string bracketed(const Piece& piece);
StoredKind storedKind(sql::TypeKind kind);

}  // namespace kestrelix::embedded
