// A release's schema as the resolver of Oracle's SQL asks for it.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "oracle_sql/meaning/catalogue.h"
#include "statspack/release.h"

namespace kestrelix::statspack {

/// The tables of one release alone, so that a statement resolves only if that release's server would take it.
/// Every table belongs to PERFSTAT and is found without a schema too; v$lock_type belongs to SYS.
class ReleaseCatalogue : public oracle_sql::Catalogue {
 public:
  /// `major` as in release().
  explicit ReleaseCatalogue(std::string_view major);

  const oracle_sql::CatalogueTable* table(std::string_view schema, std::string_view name) const override;
  /// statspack.v1024 came with release 11; no other function of a package is known.
  const oracle_sql::Function* packageFunction(std::string_view name) const override;

 private:
  bool hasUnitText_;
  std::map<std::string, oracle_sql::CatalogueTable, std::less<>> tables_;  // by upper-case name
};

}  // namespace kestrelix::statspack
