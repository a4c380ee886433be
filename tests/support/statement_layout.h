// A statement's one line broken into lines to be read, and back again to the byte.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace testing_support {

/// True if the text goes on with that word, without regard to case.
inline bool goesOnWith(std::string_view text, std::string_view word) {
  const auto upper = [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; };
  return text.size() > word.size() && (text[word.size()] == ' ' || text[word.size()] == '(') &&
         std::equal(word.begin(), word.end(), text.begin(), [&](char a, char b) { return a == upper(b); });
}

/// Breaks at blanks before the clauses of each query and behind the commas of its lists, with two blanks of
/// indentation for each query around. A line break with its indentation stands for one blank, so a blank at
/// the end of the statement shows as an empty last line.
inline std::string laidOut(std::string_view text) {
  std::string lines;
  std::vector<bool> isQuery{true};  // of each open bracket
  char quote = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    const std::string_view rest = text.substr(i + 1);
    if (quote != 0) {
      if (c == quote) quote = 0;
    } else if (c == '\'' || c == '"') {
      quote = c;
    } else if (c == '(') {
      isQuery.push_back(goesOnWith(rest.substr(rest.starts_with(' ')), "SELECT"));
    } else if (c == ')' && isQuery.size() > 1) {
      isQuery.pop_back();
    } else if (c == ' ' && !rest.starts_with(' ') && i > 0 && text[i - 1] != ' ' && isQuery.back()) {
      const bool clause = [&] {
        for (const char* word : {"SELECT", "FROM", "WHERE", "AND", "OR", "GROUP", "ORDER", "HAVING", "UNION"})
          if (goesOnWith(rest, word)) return true;
        return false;
      }();
      if (rest.empty() || clause || text[i - 1] == ',') {
        const auto depth = static_cast<std::size_t>(std::count(isQuery.begin(), isQuery.end(), true)) - 1;
        lines += "\n" + std::string(rest.empty() ? 0 : 2 * depth, ' ');
        continue;
      }
    }
    lines += c;
  }
  return lines + "\n";
}

/// The statement that was laid out so.
inline std::string joined(std::string_view lines) {
  std::string text;
  for (std::size_t at = 0; at < lines.size();) {
    if (at > 0) text += ' ';
    while (at < lines.size() && lines[at] == ' ') ++at;
    const std::size_t end = std::min(lines.find('\n', at), lines.size());
    text += lines.substr(at, end - at);
    at = end + 1;
  }
  return text;
}

}  // namespace testing_support
