#include "report/statement.h"

namespace kestrelix {

std::string fold(std::string_view layout) {
  std::string line;
  char quote = 0;
  for (const char c : layout) {
    const bool blank = quote == 0 && (c == ' ' || c == '\n' || c == '\t' || c == '\r');
    if (!blank) {
      line += c;
      if (quote != 0 && c == quote)
        quote = 0;
      else if (quote == 0 && (c == '\'' || c == '"'))
        quote = c;
    } else if (!line.empty() && line.back() != ' ') {
      line += ' ';
    }
  }
  if (!line.empty() && line.back() != ' ') line += ' ';
  return line;
}

}  // namespace kestrelix
