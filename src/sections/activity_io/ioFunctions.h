// Pieces of the statements on I/O by database function.
#pragma once

#include <string>

namespace kestrelix {

/// Growth of a counter of stats$iostat_function in the pair.
std::string ioDelta(const std::string& counter);

/// From the tables to the filter: the functions that read in the pair. One that only wrote is left out, and
/// so is one without a row at either snapshot.
std::string readingFunctions();

/// A count or a rate of operations as a text of four digits and a unit, in steps of 1000.
std::string countText(const std::string& column, int decimals, const std::string& alias);
/// Megabytes as a text of four digits and a unit, in steps of 1024.
std::string sizeText(const std::string& column, int decimals, const std::string& alias);

}  // namespace kestrelix
