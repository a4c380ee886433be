#include "statspack/release_catalogue.h"

#include <cstdint>

#include "statspack/package.h"

namespace kestrelix::statspack {

namespace {

std::string raised(std::string_view text) {
  std::string result(text);
  for (char& c : result)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return result;
}

oracle_sql::Type typeOf(const Column& column) {
  using oracle_sql::TypeKind;
  switch (column.type) {
    case Type::Number:
      return {.kind = TypeKind::Number};
    case Type::Varchar2:
      return {.kind = TypeKind::Varchar2};
    case Type::Char:
      return {.kind = TypeKind::Char, .length = static_cast<std::uint16_t>(column.length)};
    case Type::Date:
      return {.kind = TypeKind::Date};
    case Type::Raw:
      return {.kind = TypeKind::Raw};
  }
  return {};
}

}  // namespace

ReleaseCatalogue::ReleaseCatalogue(std::string_view major) : hasUnitText_(major == "11") {
  for (const Table& table : release(major).tables()) {
    oracle_sql::CatalogueTable entry{raised(table.name), {}};
    for (const Column& column : table.columns) entry.columns.push_back({raised(column.name), typeOf(column)});
    tables_.emplace(entry.name, entry);
  }
}

const oracle_sql::CatalogueTable* ReleaseCatalogue::table(std::string_view schema,
                                                          std::string_view name) const {
  if (!schema.empty() && schema != (name.starts_with("V$") ? "SYS" : "PERFSTAT")) return nullptr;
  const auto found = tables_.find(name);
  return found == tables_.end() ? nullptr : &found->second;
}

const oracle_sql::Function* ReleaseCatalogue::packageFunction(std::string_view name) const {
  return hasUnitText_ ? statspack::packageFunction(name) : nullptr;
}

}  // namespace kestrelix::statspack
