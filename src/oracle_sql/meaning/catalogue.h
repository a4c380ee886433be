// What the resolver must know of the tables that a statement may name.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "oracle_sql/types.h"

namespace oracle_sql {

struct Function;

struct CatalogueColumn {
  std::string name;  ///< as Oracle stores it: upper case
  Type type;
};

struct CatalogueTable {
  std::string name;  ///< as Oracle stores it: upper case
  std::vector<CatalogueColumn> columns;
};

/// The tables of a repository file or of a STATSPACK release. DUAL need not be among them: the resolver knows
/// it. What table() returns must outlive every tree that was resolved against it.
class Catalogue {
 public:
  virtual ~Catalogue() = default;

  /// The table or view of that name (upper case unless it was quoted), or null. `schema` is empty where the
  /// statement names none.
  virtual const CatalogueTable* table(std::string_view schema, std::string_view name) const = 0;
  /// A function of a package by its upper-case name, as "STATSPACK.V1024", or null.
  virtual const Function* packageFunction(std::string_view /*name*/) const { return nullptr; }
};

}  // namespace oracle_sql
