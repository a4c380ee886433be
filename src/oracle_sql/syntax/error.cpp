#include "oracle_sql/syntax/error.h"

#include <algorithm>

namespace oracle_sql {

namespace {

/// Characters of a line that are shown on either side of the place.
constexpr std::size_t kWindow = 50;

bool continuesCharacter(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

std::string withCode(int oraCode, const std::string& message) {
  if (oraCode == 0) return message;
  const std::string digits = std::to_string(oraCode);
  return "ORA-" + std::string(digits.size() < 5 ? 5 - digits.size() : 0, '0') + digits + ": " + message;
}

std::size_t characterBack(std::string_view line, std::size_t at) {
  do --at;
  while (at > 0 && continuesCharacter(line[at]));
  return at;
}

std::size_t characterOn(std::string_view line, std::size_t at) {
  do ++at;
  while (at < line.size() && continuesCharacter(line[at]));
  return at;
}

/// Characters of East Asian scripts take two columns of a fixed-pitch font.
bool isWide(std::string_view line, std::size_t at) {
  if (at + 2 >= line.size() || (static_cast<unsigned char>(line[at]) & 0xF0) != 0xE0) return false;
  const unsigned code = (static_cast<unsigned char>(line[at]) & 0x0FU) << 12 |
                        (static_cast<unsigned char>(line[at + 1]) & 0x3FU) << 6 |
                        (static_cast<unsigned char>(line[at + 2]) & 0x3FU);
  return code >= 0x2E80 && code <= 0xFF60;
}

}  // namespace

SqlError::SqlError(ErrorKind kind, int oraCode, const std::string& message, Place place)
    : std::runtime_error(withCode(oraCode, message)), kind_(kind), oraCode_(oraCode), place_(place) {}

SqlError SqlError::wrong(int oraCode, const std::string& message, Place place) {
  return {ErrorKind::Wrong, oraCode, message, place};
}

SqlError SqlError::unsupported(const std::string& construct, Place place) {
  return {ErrorKind::Unsupported, 0, "not supported: " + construct, place};
}

SqlError SqlError::internal(const std::string& message, Place place) {
  return {ErrorKind::Internal, 0, "internal fault: " + message, place};
}

std::string SqlError::render(std::string_view statement) const {
  std::string shown = what();
  shown += "\n  at line " + std::to_string(place_.line) + ", column " + std::to_string(place_.column);

  const std::size_t at = std::min<std::size_t>(place_.offset, statement.size());
  const std::size_t before = at == 0 ? std::string_view::npos : statement.rfind('\n', at - 1);
  const std::size_t begin = before == std::string_view::npos ? 0 : before + 1;
  std::string_view line = statement.substr(begin, statement.find('\n', begin) - begin);
  if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
  const std::size_t mark = std::min(at - begin, line.size());

  std::size_t from = mark;
  for (std::size_t n = 0; n < kWindow && from > 0; ++n) from = characterBack(line, from);
  std::size_t to = mark;
  for (std::size_t n = 0; n < kWindow && to < line.size(); ++n) to = characterOn(line, to);

  const std::string lead = from > 0 ? "..." : "";
  shown += "\n  " + lead + std::string(line.substr(from, to - from)) + (to < line.size() ? "..." : "") +
           "\n  " + std::string(lead.size(), ' ');
  for (std::size_t i = from; i < mark; ++i) {
    if (line[i] == '\t')
      shown += '\t';
    else if (!continuesCharacter(line[i]))
      shown += isWide(line, i) ? "  " : " ";
  }
  return shown + '^';
}

}  // namespace oracle_sql
