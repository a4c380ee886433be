#include "console/password.h"

#include <cstdlib>
#include <fstream>
#include <iostream>

namespace kestrelix::console {
namespace {

std::string firstLine(std::istream& in, const std::string& name) {
  std::string line;
  if (!std::getline(in, line)) throw UsageError("no password can be read from " + name);
  if (line.ends_with('\r')) line.pop_back();
  return line;
}

}  // namespace

void addPasswordOptions(CommandLine& line, PasswordSource& source, const std::string& otherwise) {
  const auto once = [&source] {
    if (source.standardInput || source.file)
      throw UsageError("--password-file and --password-stdin exclude each other");
  };
  line.add({"--password-file", "FILE", "the password is the file's first line",
            [once, &source](const std::string& file) {
              once();
              source.file = file;
            }});
  line.add({"--password-stdin", "",
            "the password is the first line of the standard input; without\n"
            "either it is the variable KESTRELIX_PASSWORD" +
                otherwise,
            [once, &source](const std::string&) {
              once();
              source.standardInput = true;
            }});
}

std::string readPassword(const PasswordSource& source, const std::string& otherwise) {
  if (source.standardInput) return firstLine(std::cin, "the standard input");
  if (source.file) {
    std::ifstream file(*source.file);
    return firstLine(file, *source.file);
  }
  const char* const variable = std::getenv("KESTRELIX_PASSWORD");
  return variable != nullptr && *variable != '\0' ? variable : otherwise;
}

}  // namespace kestrelix::console
