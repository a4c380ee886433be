#include "output.h"

#include <algorithm>
#include <iostream>

#include "platform/code_page.h"

namespace kestrelix::report_tool {
namespace {

std::string quoted(const std::string& cell) {
  if (cell.find_first_of(",\"\r\n") == std::string::npos) return cell;
  std::string text = "\"";
  for (const char c : cell) {
    if (c == '"') text += '"';
    text += c;
  }
  return text + '"';
}

void printCsv(std::ostream& out, const Table& table) {
  for (const auto& row : table) {
    for (std::size_t c = 0; c < row.size(); ++c) out << (c == 0 ? "" : ",") << quoted(row[c]);
    out << "\r\n";
  }
}

void printText(std::ostream& out, const Table& table) {
  std::vector<std::size_t> widths;
  for (const auto& row : table) {
    widths.resize(std::max(widths.size(), row.size()));
    for (std::size_t c = 0; c < row.size(); ++c) widths[c] = std::max(widths[c], displayColumns(row[c]));
  }
  for (const auto& row : table) {
    for (std::size_t c = 0; c < row.size(); ++c) {
      out << (c == 0 ? "" : "  ") << row[c];
      if (c + 1 < row.size()) out << std::string(widths[c] - displayColumns(row[c]), ' ');
    }
    out << '\n';
  }
}

}  // namespace

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
    printCsv(out, table);
  else
    printText(out, table);
}

void StderrBoxes::show(BoxIcon icon, const std::string& text, const std::string& underlying) {
  any_ = true;
  critical_ = critical_ || icon == BoxIcon::Critical;
  std::cerr << (icon == BoxIcon::Critical ? "[Critical] " : "[Exclamation] ") << text << '\n';
  if (!underlying.empty()) std::cerr << underlying << '\n';
}

}  // namespace kestrelix::report_tool
