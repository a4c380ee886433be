#include "odbc/connection_text.h"

namespace kestrelix::odbc {
namespace {

std::string account(const Credentials& credentials) {
  return ";UID=" + quotedAttribute(credentials.user) + ";PWD=" + quotedAttribute(credentials.password);
}

}  // namespace

std::string quotedAttribute(std::string_view value) {
  const bool plain = value.find_first_of("[]{}(),;?*=!@'\" ") == std::string_view::npos;
  if (plain) return std::string(value);
  std::string text = "{";
  for (const char c : value) {
    text += c;
    if (c == '}') text += c;
  }
  return text + "}";
}

std::string dataSourceText(std::string_view dataSource, const Credentials& credentials) {
  return "DSN=" + std::string(dataSource) + account(credentials);
}

std::string oracleDriverText(std::string_view driver, std::string_view netServiceName,
                             const Credentials& credentials) {
  return "DRIVER={" + std::string(driver) + "};DBQ=" + quotedAttribute(netServiceName) + account(credentials);
}

}  // namespace kestrelix::odbc
