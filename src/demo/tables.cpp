#include "demo/tables.h"

#include <stdexcept>

namespace kestrelix::demo {

Rows::Rows(TableWriter* table, const statspack::Table* known, std::string_view columns) : table_(table) {
  if (table_ == nullptr) return;
  row_.resize(table_->columns().size());
  for (std::size_t at = 0; (at = columns.find_first_not_of(" \n", at)) != std::string_view::npos;) {
    const std::size_t end = std::min(columns.find_first_of(" \n", at), columns.size());
    const std::string name(columns.substr(at, end - at));
    at = end;
    int place = -1;
    for (std::size_t i = 0; i < table_->columns().size(); ++i)
      if (table_->columns()[i].name == name) place = static_cast<int>(i);
    if (place < 0) throw std::logic_error("no column " + name + " in " + table_->name());
    places_.push_back(known->column(name) == nullptr ? -1 : place);
  }
}

void Rows::insert(std::size_t told) {
  if (told != places_.size()) throw std::logic_error("a row of another length in " + table_->name());
  table_->insert(row_);
}

Tables::Tables(RepositoryWriter& writer) : writer_(writer) {
  for (const statspack::Table& table : statspack::everyRelease().tables()) {
    std::vector<NewColumn> columns;
    for (const statspack::Column& column : table.columns) columns.push_back({column.name, column.type});
    writer_.addTable(table.name, std::move(columns));
  }
}

Rows Tables::rows(const Database& database, std::string_view table, std::string_view columns) {
  const statspack::Table* known = statspack::release(database.major).table(table);
  return Rows(known == nullptr ? nullptr : writer_.table(table), known, columns);
}

Rows Tables::perSnapshot(const Database& database, std::string_view table, std::string_view columns) {
  return rows(database, table, "snap_id dbid instance_number " + std::string(columns));
}

}  // namespace kestrelix::demo
