#include "platform/embedded/lowering/emitter.h"

#include <algorithm>

#include "oracle_sql/catalogue.h"
#include "platform/ascii.h"
#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {
namespace {

/// SQLite's parser keeps a hundred open rules, of which a query inside another one takes up to eight.
constexpr int kMostLevels = 5;

// Groups of a table's rows that are made at each use are made of the rows that the use asks for, and not of
// all that there are: SQLite hands no test down into a named query that is used twice. Rows that are counted
// could be others at each use, so there is no ROWNUM below.
bool isPlainGroup(const sql::Query& query) {
  const sql::SelectBlock* block = query.single();
  return block && !block->groupBy.empty() && !block->usesRownum &&
         std::all_of(block->from.begin(), block->from.end(), [](const sql::FromItem* item) {
           const auto* table = sql::as<sql::TableItem>(item);
           return table && !table->with;
         });
}

}  // namespace

std::string quoted(std::string_view name) {
  std::string text = "\"";
  for (const char c : name) {
    if (c == '"') text += '"';
    text += c;
  }
  return text + '"';
}

// A '#' may stand in Oracle's names and not in SQLite's parameters.
std::string bindMarker(std::string_view bind) {
  std::string marker = ":";
  for (const char c : bind) marker += c == '#' ? "$$" : std::string(1, c);
  return marker;
}

std::string bindOfMarker(std::string_view marker) {
  std::string bind(marker.substr(1));
  for (std::size_t at; (at = bind.find("$$")) != std::string::npos;) bind.replace(at, 2, "#");
  return bind;
}

void CommonFacts::add(const Piece& piece) {
  if (piece.kind == sql::TypeKind::Null) return;
  if (!any_) {
    facts_ = piece.number;
    any_ = true;
    return;
  }
  facts_.integral = facts_.integral && piece.number.integral;
  facts_.largest = std::max(facts_.largest, piece.number.largest);
}

std::string bracketed(const Piece& piece) { return piece.atom ? piece.text : "(" + piece.text + ")"; }

StoredKind storedKind(sql::TypeKind kind) {
  switch (kind) {
    case sql::TypeKind::Number:
      return StoredKind::Number;
    case sql::TypeKind::Varchar2:
      return StoredKind::Text;
    case sql::TypeKind::Char:
      return StoredKind::Char;
    case sql::TypeKind::Date:
      return StoredKind::Date;
    case sql::TypeKind::Raw:
      return StoredKind::Raw;
    default:
      return StoredKind::Null;
  }
}

LoweredStatement lower(const sql::Tree& tree, const LoweringFacts& facts) {
  return Emitter(tree, facts).statement();
}

LoweredStatement Emitter::statement() {
  const sql::Query& whole = *tree_.query();
  markUsedColumns(whole, usedColumns_);
  const std::string text = query(whole).text;
  result_.text = with_.empty() ? text : "WITH " + with_ + " " + text;
  for (const auto& column : whole.columns)
    result_.columns.push_back({std::string(column.name), column.type.kind});
  return std::move(result_);
}

std::string Emitter::uniqueAlias(std::string_view wish) {
  const std::string base = wish.empty() ? "V" : std::string(wish);
  std::string alias = base;
  // SQLite folds the letter case of names, so two aliases must differ in more than that.
  for (int i = 2; !aliases_.insert(asciiUpper(alias)).second; ++i) alias = base + "_" + std::to_string(i);
  return alias;
}

const Source& Emitter::sourceOf(const sql::FromItem* item) const {
  const auto found = sources_.find(item);
  if (found == sources_.end()) throw sql::SqlError::internal("a column of a source that is not lowered yet");
  return found->second;
}

// A named query sees nothing of the queries around it, so all of them stand in front of the statement, under
// names that no table has.
std::string Emitter::nameQuery(std::string_view wish, const std::string& text) {
  std::string name = uniqueAlias("with " + std::string(wish));
  with_ += (with_.empty() ? "" : ", ") + quoted(name) + " AS (" + text + ")";
  return name;
}

QueryText Emitter::query(const sql::Query& query) {
  const int levelsAround = levels_;
  for (const sql::WithItem* item : query.with) {
    if (item->uses == 0) continue;
    QueryText text = this->query(*item->query);
    Source source;
    if (isPlainGroup(*item->query))
      repeated_[item] = std::move(text.text);
    else
      source.alias = nameQuery(item->name, text.text);
    source.columns = std::move(text.columns);
    sources_[item] = std::move(source);
  }
  levels_ = 0;
  QueryText text =
      query.single() ? lowerBlock(*this, *query.single(), &query.orderBy) : lowerSetOperators(*this, query);
  deepen(1);
  if (levels_ > kMostLevels && !query.correlated && &query != tree_.query()) {
    text.text = "SELECT * FROM " + quoted(nameQuery("view", text.text));
    text.outputs.clear();
    text.listEnd = 0;
    levels_ = 1;
  }
  levels_ = std::max(levels_, levelsAround);
  return text;
}

std::string Emitter::source(const sql::FromItem& item) {
  if (const auto* join = sql::as<sql::JoinItem>(&item)) return lowerJoin(*this, *join);
  if (const auto* pivot = sql::as<sql::PivotItem>(&item)) return lowerPivot(*this, *pivot);
  if (const auto* derived = sql::as<sql::DerivedItem>(&item)) {
    QueryText text = query(*derived->query);
    Source source{uniqueAlias(item.alias), std::move(text.columns)};
    std::string from = "(" + text.text + ") AS " + quoted(source.alias);
    define(&item, std::move(source));
    return from;
  }
  const auto& table = static_cast<const sql::TableItem&>(item);
  Source source;
  source.alias = uniqueAlias(item.alias.empty() ? table.name : item.alias);
  const std::string as = " AS " + quoted(source.alias);
  std::string from;
  if (table.isDual) {
    source.columns = {{"DUMMY", sql::TypeKind::Varchar2, {}}};
    from = "(SELECT 'X' AS \"DUMMY\")" + as;
  } else if (table.with) {
    const Source& named = sources_.at(table.with);
    source.columns = named.columns;
    const auto repeated = repeated_.find(table.with);
    from = (repeated == repeated_.end() ? quoted(named.alias) : "(" + repeated->second + ")") + as;
  } else {
    const auto& columns = table.table->columns;
    for (std::size_t i = 0; i < columns.size(); ++i)
      source.columns.push_back(
          {columns[i].name, columns[i].type.kind, facts_.column(*table.table, static_cast<int>(i))});
    from = quoted(table.table->name) + as;
  }
  define(&item, std::move(source));
  return from;
}

Piece Emitter::column(const sql::FromItem* item, int index) {
  if (const auto* join = sql::as<sql::JoinItem>(item)) {
    const auto& merged = join->merged.at(static_cast<std::size_t>(index));
    const bool right = join->join == sql::JoinKind::Right;
    Piece piece = column(right ? merged.rightSource : merged.leftSource,
                         right ? merged.rightColumn : merged.leftColumn);
    if (join->join == sql::JoinKind::Full) {
      const Piece other = column(merged.rightSource, merged.rightColumn);
      piece.text = "coalesce(" + piece.text + ", " + other.text + ")";
      piece.number.integral = piece.number.integral && other.number.integral;
      piece.number.largest = std::max(piece.number.largest, other.number.largest);
    }
    return piece;
  }
  const Source& source = sourceOf(item);
  const SourceColumn& column = source.columns.at(static_cast<std::size_t>(index));
  Piece piece;
  piece.kind = column.kind;
  piece.number = column.number;
  piece.atom = true;
  piece.cheap = true;
  piece.text = quoted(source.alias) + "." + quoted(column.name);
  for (Wrap* wrap : wraps_) {
    if (!wrap->sources.count(item)) continue;
    const auto [place, isNew] =
        wrap->exports.try_emplace({item, index}, "c" + std::to_string(wrap->exports.size() + 1));
    piece.text = quoted(wrap->alias) + "." + quoted(place->second);
  }
  return piece;
}

}  // namespace kestrelix::embedded
