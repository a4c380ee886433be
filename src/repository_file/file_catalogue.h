// The tables of a repository file, as the resolver and the lowering ask for them.
#pragma once

#include <sqlite3.h>

#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "oracle_sql/meaning/catalogue.h"
#include "repository_file/lowering/lowering.h"

namespace kestrelix::repository_file {

class FileCatalogue final : public sql::Catalogue {
 public:
  /// Reads the file's own list of columns; throws DatabaseError.
  explicit FileCatalogue(sqlite3* connection);

  const sql::CatalogueTable* table(std::string_view schema, std::string_view name) const override;
  const sql::Function* packageFunction(std::string_view name) const override;
  NumberFacts facts(const sql::CatalogueTable& table, int column) const;

 private:
  struct Entry {
    sql::CatalogueTable table;
    std::vector<NumberFacts> facts;
  };
  std::deque<Entry> entries_;
  std::unordered_map<std::string, Entry*> byName_;
  std::string owner_;
};

}  // namespace kestrelix::repository_file
