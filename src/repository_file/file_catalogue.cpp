#include "repository_file/file_catalogue.h"

#include <algorithm>

#include "platform/ascii.h"
#include "platform/database.h"
#include "repository_file/sqlite_handle.h"
#include "statspack/package.h"

namespace kestrelix::repository_file {
namespace {

sql::TypeKind typeKind(const std::string& name) {
  if (name == "NUMBER") return sql::TypeKind::Number;
  if (name == "VARCHAR2") return sql::TypeKind::Varchar2;
  if (name == "CHAR") return sql::TypeKind::Char;
  if (name == "DATE") return sql::TypeKind::Date;
  if (name == "RAW") return sql::TypeKind::Raw;
  throw DatabaseError("HY000", 0, "the repository has a column of the unknown type " + name);
}

}  // namespace

FileCatalogue::FileCatalogue(sqlite3* connection) {
  const auto user = prepare(connection, "SELECT value FROM \"kestrelix$setting\" WHERE name = 'user_name'");
  if (step(user.get())) owner_ = asciiUpper(columnText(user.get(), 0));
  const auto columns = prepare(connection,
                               "SELECT table_name, column_name, oracle_type, integral, largest "
                               "FROM \"kestrelix$column\" ORDER BY table_name, position");
  while (step(columns.get())) {
    const std::string name = asciiUpper(columnText(columns.get(), 0));
    if (entries_.empty() || entries_.back().table.name != name) {
      entries_.emplace_back().table.name = name;
      byName_[name] = &entries_.back();
    }
    Entry& entry = entries_.back();
    sql::CatalogueColumn column;
    column.name = asciiUpper(columnText(columns.get(), 1));
    column.type.kind = typeKind(columnText(columns.get(), 2));
    NumberFacts facts;
    if (column.type.kind == sql::TypeKind::Number && sqlite3_column_int(columns.get(), 3) != 0) {
      column.type.integral = facts.integral = true;
      if (sqlite3_column_type(columns.get(), 4) == SQLITE_INTEGER)
        facts.largest = static_cast<double>(sqlite3_column_int64(columns.get(), 4));
    }
    entry.table.columns.push_back(std::move(column));
    entry.facts.push_back(facts);
  }
}

const sql::CatalogueTable* FileCatalogue::table(std::string_view schema, std::string_view name) const {
  if (!schema.empty() && schema != owner_) return nullptr;
  const auto found = byName_.find(std::string(name));
  return found == byName_.end() ? nullptr : &found->second->table;
}

const sql::Function* FileCatalogue::packageFunction(std::string_view name) const {
  return statspack::packageFunction(name);
}

NumberFacts FileCatalogue::facts(const sql::CatalogueTable& table, int column) const {
  const auto found = byName_.find(table.name);
  return found == byName_.end() ? NumberFacts{} : found->second->facts.at(static_cast<std::size_t>(column));
}

}  // namespace kestrelix::repository_file
