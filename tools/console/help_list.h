#pragma once

#include <string>
#include <vector>

namespace kestrelix::console {

/// What may be typed, and what it does, in lines.
struct HelpEntry {
  std::string typed;
  std::string help;
};

/// The entries under each other, what they do in one column; an entry too long for that has a line of its own
/// first.
std::string helpList(const std::vector<HelpEntry>& entries);

}  // namespace kestrelix::console
