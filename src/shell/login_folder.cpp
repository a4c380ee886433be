#include "shell/login_folder.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace kestrelix {
namespace {

constexpr mode_t kOwnerOnly = 0600;

/// Does the folder, or the file in it, refuse to be written? An answer of another kind is a damaged file,
/// which isn't passed over in silence. The test makes the file if there is none, as the store would.
bool refuses(const std::filesystem::path& folder) {
  const int file =
      ::open((folder / "Login.txt").c_str(), O_RDWR | O_APPEND | O_CREAT | O_CLOEXEC, kOwnerOnly);
  if (file < 0) return errno == EACCES || errno == EPERM || errno == EROFS || errno == ENOENT;
  ::close(file);
  return false;
}

}  // namespace

std::filesystem::path loginFolder(const std::filesystem::path& programFolder,
                                  const std::filesystem::path& home) {
  if (home.empty() || !refuses(programFolder)) return programFolder;
  const std::filesystem::path own = home / ".local/share/kestrelix";
  std::error_code error;
  if (std::filesystem::create_directories(own, error))
    std::filesystem::permissions(own, std::filesystem::perms::owner_all, error);
  return std::filesystem::is_directory(own, error) ? own : programFolder;
}

}  // namespace kestrelix
