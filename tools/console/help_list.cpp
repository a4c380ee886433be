#include "console/help_list.h"

#include <algorithm>
#include <sstream>

namespace kestrelix::console {

std::string helpList(const std::vector<HelpEntry>& entries) {
  constexpr std::size_t kLongest = 22;
  std::size_t column = 0;
  for (const HelpEntry& entry : entries)
    if (entry.typed.size() <= kLongest) column = std::max(column, 2 + entry.typed.size() + 2);
  std::string list;
  for (const HelpEntry& entry : entries) {
    std::string begin = "  " + entry.typed;
    if (entry.typed.size() > kLongest || entry.help.empty()) {
      list += begin + '\n';
      begin.clear();
    }
    std::istringstream lines(entry.help);
    for (std::string line; std::getline(lines, line); begin.clear()) {
      begin.resize(column, ' ');
      list += begin + line + '\n';
    }
  }
  return list;
}

}  // namespace kestrelix::console
