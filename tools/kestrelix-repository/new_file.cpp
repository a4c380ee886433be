#include <filesystem>

#include "commands.h"
#include "console/interrupt.h"
#include "platform/embedded/writing/unfinished_file.h"

namespace kestrelix {

void NewFile::addForceOption(console::CommandLine& line) {
  line.flag("--force", force, "replace FILE if it is there, once the new one is whole");
}

embedded::Existing NewFile::existing() const {
  // A link that leads nowhere is there as well.
  std::error_code unknown;
  if (!force && std::filesystem::exists(std::filesystem::symlink_status(name, unknown)))
    throw std::runtime_error(name + ": is there already; --force replaces it");
  return force ? embedded::Existing::Replace : embedded::Existing::Keep;
}

void NewFile::watchInterrupts() const {
  console::watchInterrupts("kestrelix-repository", embedded::unfinishedName(name).string());
}

}  // namespace kestrelix
