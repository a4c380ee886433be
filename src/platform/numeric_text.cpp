#include "platform/numeric_text.h"

namespace kestrelix {
namespace {

/// Moves past a run of digits; tells whether there was any.
bool digits(std::string_view text, std::size_t& at) {
  const std::size_t start = at;
  while (at < text.size() && text[at] >= '0' && text[at] <= '9') ++at;
  return at > start;
}

void sign(std::string_view text, std::size_t& at) {
  if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
}

}  // namespace

std::string_view trimBlanks(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool isNumericText(std::string_view text) {
  std::size_t at = 0;
  sign(text, at);
  bool any = digits(text, at);
  if (at < text.size() && text[at] == '.') {
    ++at;
    any = digits(text, at) || any;
  }
  if (!any) return false;
  if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
    ++at;
    sign(text, at);
    if (!digits(text, at)) return false;
  }
  return at == text.size();
}

}  // namespace kestrelix
