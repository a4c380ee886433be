// The help that was compiled, and its pages taken apart.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "chm/HelpFile.h"

namespace kestrelix::testing_support {

inline const std::string kCompiledHelp = std::string(KESTRELIX_BIN_DIR) + "/Kestrelix.chm";

inline std::string fileBytes(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("can't open " + path.string());
  return {std::istreambuf_iterator<char>(file), {}};
}

inline std::unique_ptr<HelpFile> compiledHelp() {
  auto help = HelpFile::open(kCompiledHelp);
  if (!help) throw std::runtime_error("can't open " + kCompiledHelp);
  return help;
}

/// The pages of the compiled help by their names, without the leading "/".
inline std::map<std::string, std::string> helpPages() {
  const auto help = compiledHelp();
  std::map<std::string, std::string> pages;
  for (const std::string& name : help->names())
    if (name.ends_with(".html")) pages[name.substr(1)] = help->read(name).value();
  return pages;
}

/// What a pattern's first group finds in a text, in order.
inline std::vector<std::string> allMatches(const std::string& text, const std::string& pattern) {
  const std::regex expression(pattern);
  std::vector<std::string> found;
  for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end; ++match)
    found.push_back((*match)[1]);
  return found;
}

/// The paragraph of a Section: from its heading to the next heading. Empty if no page has it.
inline std::string sectionParagraph(const std::map<std::string, std::string>& pages, int code) {
  const std::string heading = "<h2><a name=\"section-" + std::to_string(code) + "\"></a>";
  for (const auto& [name, page] : pages) {
    const auto begin = page.find(heading);
    if (begin != std::string::npos) return page.substr(begin, page.find("<h2>", begin + 1) - begin);
  }
  return {};
}

}  // namespace kestrelix::testing_support
