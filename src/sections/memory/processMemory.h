// Pieces of the statements on the memory of processes.
#pragma once

#include <string>

namespace kestrelix {

/// Bytes in megabytes, blank for null.
std::string megabytes(const std::string& column, int decimals, const std::string& alias);

}  // namespace kestrelix
