#include "output.h"

#include <iostream>

#include "documents/csv.h"
#include "documents/text.h"

namespace kestrelix::report_tool {

Table cells(const Grid& grid) {
  Table table;
  for (int r = 0; r < grid.Rows(); ++r) {
    table.emplace_back();
    for (int c = 0; c < grid.Cols(); ++c) table.back().push_back(grid.TextMatrix(r, c));
  }
  return table;
}

void print(std::ostream& out, const Table& table, bool csv) {
  if (csv)
    documents::writeCsv(out, table);
  else
    documents::writeText(out, table);
}

void StderrBoxes::show(BoxIcon icon, const std::string& text, const std::string& underlying) {
  any_ = true;
  critical_ = critical_ || icon == BoxIcon::Critical;
  std::cerr << (icon == BoxIcon::Critical ? "[Critical] " : "[Exclamation] ") << text << '\n';
  if (!underlying.empty()) std::cerr << underlying << '\n';
}

}  // namespace kestrelix::report_tool
