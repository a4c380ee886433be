#include "repository_file/test_repository.h"

#include <stdexcept>

#include "repository_file/writing/repository_writer.h"

namespace kestrelix::repository_file {
namespace {

statspack::Type typeOf(const std::string& name) {
  if (name == "NUMBER") return statspack::Type::Number;
  if (name == "VARCHAR2") return statspack::Type::Varchar2;
  if (name == "CHAR") return statspack::Type::Char;
  if (name == "DATE") return statspack::Type::Date;
  if (name == "RAW") return statspack::Type::Raw;
  throw std::invalid_argument(name);
}

}  // namespace

void writeRepository(const std::filesystem::path& file, const std::vector<conformance::TestTable>& tables) {
  RepositoryWriter writer(file, NewAccount{}, "test");
  for (const auto& table : tables) {
    std::vector<NewColumn> columns;
    for (const auto& column : table.columns) columns.push_back({column.name, typeOf(column.type)});
    TableWriter& out = writer.addTable(table.name, columns);
    for (const auto& row : table.rows) {
      std::vector<std::string> scratch(row.size());
      std::vector<Cell> cells;
      for (std::size_t i = 0; i < row.size(); ++i)
        cells.push_back(row[i] ? Cell::fromText(columns[i].type, *row[i], scratch[i]) : Cell());
      out.insert(cells);
    }
  }
  writer.finish();
}

}  // namespace kestrelix::repository_file
