#include "output.h"

#include <iostream>

#include "documents/csv.h"
#include "documents/text.h"

namespace kestrelix::report_tool {

Table cells(const ReportTable& table) {
  Table lines{{"NO"}};
  for (const TableColumn& column : table.columns) lines.front().push_back(column.heading);
  for (const auto& row : table.rows) {
    lines.push_back({std::to_string(lines.size())});
    lines.back().insert(lines.back().end(), row.begin(), row.end());
  }
  return lines;
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
