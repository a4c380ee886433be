// The command line of kestrelix-report.
#pragma once

#include <optional>
#include <span>
#include <string>

#include "console/password.h"

namespace kestrelix::report_tool {

using console::UsageError;

/// Rows, pairs and instances count from 0, but a grid row from 1, as the grid's own "NO" does.
struct Options {
  std::string repository;
  std::string tns;
  std::string user = "PERFSTAT";
  console::PasswordSource password;
  bool csv = false;

  std::string command;
  std::string name;  ///< of the Section, for the commands that take one
  std::optional<int> instance;
  std::optional<int> pair;
  std::optional<int> row;
  std::optional<int> column;
  std::optional<int> from;
  std::optional<int> to;
  std::string page;
  std::string version;
  bool shaped = false;
};

/// Nothing when the help was asked for, which is printed then. Fails with UsageError.
std::optional<Options> readOptions(std::span<const std::string> words);

/// The user and the password as a database takes them, "USER/password". Fails with UsageError.
std::string connectText(const Options& options);

}  // namespace kestrelix::report_tool
