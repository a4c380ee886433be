// Files of cases "source, and what became of it", approved by reading the difference.
#pragma once

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace golden {

/// One case: "=== name", then sections "--- title" with their text. The first section is the source; each
/// driver writes its own ones behind it and leaves the others alone.
struct Case {
  std::string name;
  std::vector<std::pair<std::string, std::string>> sections;

  std::string* section(const std::string& title) {
    for (auto& [t, text] : sections)
      if (t == title) return &text;
    return nullptr;
  }
  void set(const std::string& title, const std::string& text) {
    if (std::string* old = section(title))
      *old = text;
    else
      sections.emplace_back(title, text);
  }
  void drop(const std::string& title) {
    std::erase_if(sections, [&](const auto& s) { return s.first == title; });
  }
};

struct File {
  std::string head;  ///< what stands before the first case
  std::vector<Case> cases;
};

inline File read(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw std::runtime_error("cannot read " + path);
  File file;
  std::string line;
  while (std::getline(in, line)) {
    if (line.starts_with("=== ")) {
      file.cases.push_back({line.substr(4), {}});
    } else if (line.starts_with("--- ") && !file.cases.empty()) {
      file.cases.back().sections.emplace_back(line.substr(4), "");
    } else if (file.cases.empty()) {
      file.head += line + "\n";
    } else if (file.cases.back().sections.empty()) {
      throw std::runtime_error(path + ": text before the first section of " + file.cases.back().name);
    } else {
      file.cases.back().sections.back().second += line + "\n";
    }
  }
  return file;
}

inline void write(const std::string& path, const File& file) {
  std::ostringstream out;
  out << file.head;
  for (const Case& c : file.cases) {
    out << "=== " << c.name << "\n";
    for (const auto& [title, text] : c.sections) out << "--- " << title << "\n" << text;
  }
  std::ofstream(path, std::ios::binary) << out.str();
}

/// True if the tests were started with --update: then a difference is written into the file instead of
/// failing.
inline bool& updating() {
  static bool flag = false;
  return flag;
}

}  // namespace golden
