#include "commands.h"

#include <filesystem>
#include <iostream>

namespace kestrelix {

bool refuseToReplace(const std::string& file) {
  // A link that leads nowhere is there as well.
  std::error_code unknown;
  if (!std::filesystem::exists(std::filesystem::symlink_status(file, unknown))) return false;
  std::cerr << file << ": is there already; --force replaces it\n";
  return true;
}

}  // namespace kestrelix
