#include "documents/csv.h"

#include <ostream>

namespace kestrelix::documents {
namespace {

void writeField(std::ostream& out, const std::string& text) {
  if (text.find_first_of(",\"\r\n") == std::string::npos) {
    out << text;
    return;
  }
  out << '"';
  for (const char c : text) {
    if (c == '"') out << '"';
    out << c;
  }
  out << '"';
}

void writeField(std::ostream& out, const std::optional<std::string>& text) {
  if (text) writeField(out, *text);
}

template <class Field>
void writeLine(std::ostream& out, std::span<const Field> fields) {
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (i > 0) out << ',';
    writeField(out, fields[i]);
  }
  out << "\r\n";
}

}  // namespace

void writeCsvLine(std::ostream& out, std::span<const std::string> fields) { writeLine(out, fields); }

void writeCsvLine(std::ostream& out, std::span<const std::optional<std::string>> fields) {
  writeLine(out, fields);
}

void writeCsv(std::ostream& out, const Table& table) {
  for (const auto& line : table) writeCsvLine(out, line);
}

}  // namespace kestrelix::documents
