#pragma once

#include <string>
#include <string_view>

#include "platform/database.h"

namespace kestrelix::odbc {

/// A value of a connection string: in braces, with each closing brace doubled, so that a password with ";",
/// "=", braces or quotes reaches the driver unchanged.
std::string quotedAttribute(std::string_view value);

/// The connection string of an ODBC data source.
std::string dataSourceText(std::string_view dataSource, const Credentials& credentials);
/// The connection string of an Oracle driver, for a net service name (an alias of tnsnames.ora,
/// host:port/service).
std::string oracleDriverText(std::string_view driver, std::string_view netServiceName,
                             const Credentials& credentials);

}  // namespace kestrelix::odbc
