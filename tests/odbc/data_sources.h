#pragma once

#include <filesystem>
#include <string>

namespace kestrelix::testing_support {

/// Names an ODBC data source for this program alone: ODBCINI leads to a file of its own from then on.
void addDataSource(const std::string& name, const std::string& lines);

/// The driver's library in the system's ODBC folder, empty if it isn't installed.
std::filesystem::path odbcDriver(const std::string& library);

}  // namespace kestrelix::testing_support
