// The command line of kestrelix-report.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace kestrelix::report_tool {

/// A command line that can't be taken; its text is one line for the user.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Rows, pairs and instances count from 0, but a grid row from 1, as the grid's own "NO" does.
struct Options {
  std::string repository;
  std::string tns;
  std::string user = "PERFSTAT";
  std::string passwordFile;
  bool csv = false;
  bool help = false;

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

/// Fails with UsageError.
Options parseOptions(const std::vector<std::string>& arguments);

extern const char* const kUsage;

}  // namespace kestrelix::report_tool
