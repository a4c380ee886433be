#include "documents/text.h"

#include <algorithm>
#include <ostream>

#include "platform/code_page.h"

namespace kestrelix::documents {

void writeText(std::ostream& out, const Table& table) {
  std::vector<std::size_t> widths;
  for (const auto& line : table) {
    widths.resize(std::max(widths.size(), line.size()));
    for (std::size_t c = 0; c < line.size(); ++c) widths[c] = std::max(widths[c], displayColumns(line[c]));
  }
  for (const auto& line : table) {
    for (std::size_t c = 0; c < line.size(); ++c) {
      out << (c == 0 ? "" : "  ") << line[c];
      if (c + 1 < line.size()) out << std::string(widths[c] - displayColumns(line[c]), ' ');
    }
    out << '\n';
  }
}

}  // namespace kestrelix::documents
