// Comma-separated values as RFC 4180 tells: lines end in CRLF, what holds a comma, a quote or a line end is
// quoted.
#pragma once

#include <iosfwd>
#include <optional>
#include <span>
#include <string>

#include "documents/table.h"

namespace kestrelix::documents {

void writeCsv(std::ostream& out, const Table& table);

/// One line, for rows that come one at a time; what is NULL is an empty field.
void writeCsvLine(std::ostream& out, std::span<const std::string> fields);
void writeCsvLine(std::ostream& out, std::span<const std::optional<std::string>> fields);

}  // namespace kestrelix::documents
