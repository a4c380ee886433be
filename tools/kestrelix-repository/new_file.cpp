#include <filesystem>

#include "commands.h"
#include "console/interrupt.h"
#include "repository_file/writing/unfinished_file.h"

namespace kestrelix {

void NewFile::addForceOption(console::CommandLine& line) {
  line.flag("--force", force, "replace FILE if it is there, once the new one is whole");
}

repository_file::Existing NewFile::existing() const {
  // A link that leads nowhere is there as well.
  std::error_code unknown;
  if (!force && std::filesystem::exists(std::filesystem::symlink_status(name, unknown)))
    throw std::runtime_error(name + ": is there already; --force replaces it");
  return force ? repository_file::Existing::Replace : repository_file::Existing::Keep;
}

void NewFile::watchInterrupts() const {
  console::watchInterrupts("kestrelix-repository", repository_file::unfinishedName(name).string());
}

}  // namespace kestrelix
