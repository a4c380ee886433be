#include "repository_file/lowering/lowerer.h"

#include <algorithm>

#include "oracle_sql/meaning/catalogue.h"
#include "platform/ascii.h"
#include "repository_file/lowering/builders.h"
#include "repository_file/lowering/sqlite_printer.h"
#include "repository_file/storage.h"

namespace kestrelix::repository_file {
namespace {

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

/// The functions that give text or numbers from text by Oracle's implicit conversions.
std::string_view conversionName(sql::TypeKind target) {
  switch (target) {
    case sql::TypeKind::Number:
      return "TO_NUMBER";
    case sql::TypeKind::Date:
      return "TO_DATE";
    case sql::TypeKind::Raw:
      return "HEXTORAW";
    default:
      return "TO_CHAR";
  }
}

}  // namespace

LoweredStatement lower(const sql::Tree& tree, const LoweringFacts& facts) {
  return Lowerer(tree, facts).statement();
}

void CommonFacts::add(const Value& value) {
  if (value.kind == sql::TypeKind::Null) return;
  if (!any_) {
    facts_ = value.number;
    any_ = true;
    return;
  }
  facts_.integral = facts_.integral && value.number.integral;
  facts_.largest = std::max(facts_.largest, value.number.largest);
}

LoweredStatement Lowerer::statement() {
  const sql::Query& whole = *tree_.query();
  markUsedColumns(whole, usedColumns);
  lite::Query& query = *lower(whole).query;
  query.with.assign(named_.begin(), named_.end());
  lite::Printed printed = lite::print(query);
  result_.text = std::move(printed.text);
  result_.nearBounds = printed.nearBounds;
  for (const auto& column : whole.columns)
    result_.columns.push_back({std::string(column.name), column.type.kind});
  return std::move(result_);
}

LoweredQuery Lowerer::lower(const sql::Query& query) {
  for (const sql::WithItem* item : query.with) {
    if (item->uses == 0) continue;
    LoweredQuery lowered = lower(*item->query);
    Source source;
    if (isPlainGroup(*item->query)) {
      repeated_[item] = lowered.query;
    } else {
      // A named query sees nothing of the queries around it, so all of them stand in front of the statement,
      // under names that no table has.
      source.alias = uniqueAlias("with " + std::string(item->name));
      named_.push_back({source.alias, lowered.query});
    }
    source.columns = std::move(lowered.columns);
    sources_[item] = std::move(source);
  }
  LoweredQuery lowered =
      query.single() ? lower(*query.single(), &query.orderBy) : lowerSetOperators(*this, query);
  lowered.query->standsAlone = !query.correlated && &query != tree_.query();
  return lowered;
}

lite::From Lowerer::lower(const sql::FromItem& item) {
  if (const auto* join = sql::as<sql::JoinItem>(&item)) return lowerJoin(*this, *join);
  lite::From from(memory());
  Source source;
  if (const auto* pivot = sql::as<sql::PivotItem>(&item)) {
    from.push_back(lowerPivot(*this, *pivot));
    return from;
  }
  if (const auto* derived = sql::as<sql::DerivedItem>(&item)) {
    LoweredQuery lowered = lower(*derived->query);
    source = {uniqueAlias(item.alias), std::move(lowered.columns)};
    from.push_back(this->source(source.alias, lowered.query));
    define(&item, std::move(source));
    return from;
  }
  const auto& table = static_cast<const sql::TableItem&>(item);
  source.alias = uniqueAlias(item.alias.empty() ? table.name : item.alias);
  from.push_back(this->source(source.alias, nullptr));
  lite::Source& lowered = from.back();
  if (table.isDual) {
    source.columns = {{"DUMMY", sql::TypeKind::Varchar2}};
    lowered.query = oneRow(text("X"), "DUMMY");
  } else if (table.with) {
    const Source& named = sources_.at(table.with);
    source.columns = named.columns;
    const auto repeated = repeated_.find(table.with);
    lowered.query = repeated == repeated_.end() ? nullptr : repeated->second;
    lowered.table = named.alias;
  } else {
    const auto& columns = table.table->columns;
    for (std::size_t i = 0; i < columns.size(); ++i)
      source.columns.push_back(
          {columns[i].name, columns[i].type.kind, facts.column(*table.table, static_cast<int>(i))});
    lowered.table = table.table->name;
  }
  define(&item, std::move(source));
  return from;
}

std::string_view Lowerer::uniqueAlias(std::string_view wish) {
  const std::string base = wish.empty() ? "V" : std::string(wish);
  std::string alias = base;
  // SQLite folds the letter case of names, so two aliases must differ in more than that.
  for (int i = 2; !aliases_.insert(asciiUpper(alias)).second; ++i) alias = base + "_" + std::to_string(i);
  return keep(alias);
}

Value Lowerer::column(std::string_view source, const SourceColumn& column) {
  return {name(source, column.name), column.kind, column.number, true};
}

Value Lowerer::column(const sql::FromItem* item, int index) {
  if (const auto* join = sql::as<sql::JoinItem>(item)) {
    const auto& merged = join->merged.at(static_cast<std::size_t>(index));
    const bool right = join->join == sql::JoinKind::Right;
    Value value = column(right ? merged.rightSource : merged.leftSource,
                         right ? merged.rightColumn : merged.leftColumn);
    if (join->join == sql::JoinKind::Full) {
      const Value other = column(merged.rightSource, merged.rightColumn);
      value.node = coalesce({value.node, other.node});
      value.number.integral = value.number.integral && other.number.integral;
      value.number.largest = std::max(value.number.largest, other.number.largest);
    }
    return value;
  }
  const auto found = sources_.find(item);
  if (found == sources_.end()) throw sql::SqlError::internal("a column of a source that is not lowered yet");
  const Source& source = found->second;
  SourceColumn column = source.columns.at(static_cast<std::size_t>(index));
  std::string_view alias = source.alias;
  for (Wrap* wrap : wraps) {
    if (!wrap->sources.count(item)) continue;
    auto& name = wrap->exports[{item, index}];
    if (name.empty()) name = keep("c" + std::to_string(wrap->exports.size()));
    alias = wrap->alias;
    column.name = name;
  }
  return this->column(alias, column);
}

Value Lowerer::function(std::string_view name, std::span<const Value> arguments, sql::Type type,
                        sql::Place place) {
  FunctionUse use;
  use.function = name;
  for (const char c : name) use.name += c == '.' ? '_' : asciiLower(c);
  use.name += '_';
  std::vector<const lite::Expr*> nodes;
  for (const Value& argument : arguments) {
    use.signature += static_cast<char>(storedKind(argument.kind));
    nodes.push_back(argument.node);
  }
  use.name += use.signature;
  // The last argument is the place in the statement that an error is told at.
  nodes.push_back(this->place(place));
  const Value value{call(keep(use.name), nodes), type.kind};
  result_.functions.insert(std::move(use));
  return value;
}

Value Lowerer::converted(Value value, sql::TypeKind target, sql::Place place) {
  const bool same = value.kind == target || value.kind == sql::TypeKind::Null ||
                    target == sql::TypeKind::Null ||
                    (sql::Type{value.kind}.isText() && sql::Type{target}.isText());
  if (same) return value;
  if (value.kind == sql::TypeKind::Raw && sql::Type{target}.isText())
    return function("RAWTOHEX", {&value, 1}, {sql::TypeKind::Varchar2}, place);
  return function(conversionName(target), {&value, 1}, {target}, place);
}

}  // namespace kestrelix::repository_file
