#pragma once

#include <iosfwd>

#include "documents/table.h"

namespace kestrelix::documents {

/// In columns two blanks apart, for a fixed-pitch font where a Japanese character is two wide. The last field
/// of a line is not padded.
void writeText(std::ostream& out, const Table& table);

}  // namespace kestrelix::documents
