#include "repository_file/writing/unfinished_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <vector>

namespace kestrelix::repository_file {

namespace {

constexpr std::string_view kMark = ".unfinished-";

// The finished file takes the place of what bears its name: that may be a file, never a device or a folder.
void checkTarget(const std::filesystem::path& target) {
  if (target.filename().empty()) throw RepositoryError("'" + target.string() + "' is no name of a file");
  std::error_code ignored;
  if (std::filesystem::exists(target, ignored) && !std::filesystem::is_regular_file(target, ignored))
    throw RepositoryError(unwritable(target, "it is no plain file"));
}

/// SQLite holds a lock on the file that it writes, and the system drops it with the process.
bool isLocked(const std::filesystem::path& file) {
  const int opened = ::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
  if (opened < 0) return errno == EACCES;
  struct flock lock = {};
  lock.l_type = F_WRLCK;
  lock.l_whence = SEEK_SET;
  const bool free = ::fcntl(opened, F_GETLK, &lock) == 0 && lock.l_type == F_UNLCK;
  ::close(opened);
  return !free;
}

bool isRunning(pid_t process) { return ::kill(process, 0) == 0 || errno != ESRCH; }

/// The process that a file's name tells of, 0 if it is no unfinished file of the target's.
pid_t writerOf(const std::filesystem::path& file, const std::string& beginning) {
  const std::string name = file.filename().string();
  if (!name.starts_with(beginning)) return 0;
  pid_t process = 0;
  const char* const last = name.data() + name.size();
  const auto [end, error] = std::from_chars(name.data() + beginning.size(), last, process);
  return error == std::errc() && end == last && process > 0 ? process : 0;
}

/// A process that was killed could not clean up behind itself. The number of a process of another machine or
/// container means nothing here, so the lock is asked too.
void clearLeftovers(const std::filesystem::path& target) {
  const std::string beginning = target.filename().string() + std::string(kMark);
  const auto folder = target.has_parent_path() ? target.parent_path() : std::filesystem::path(".");
  std::error_code error;
  std::vector<std::filesystem::path> left;
  for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    const pid_t process = writerOf(entry->path(), beginning);
    std::error_code ignored;
    if (process != 0 && process != ::getpid() &&
        entry->symlink_status(ignored).type() == std::filesystem::file_type::regular && !isRunning(process) &&
        !isLocked(entry->path()))
      left.push_back(entry->path());
  }
  for (const auto& file : left) std::filesystem::remove(file, error);
}

// On disk before the rename, so that a power cut cannot leave a named file with holes.
void flush(const std::filesystem::path& file, const std::filesystem::path& target) {
  const int opened = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
  const bool flushed = opened >= 0 && ::fsync(opened) == 0;
  const int reason = errno;
  if (opened >= 0) ::close(opened);
  if (!flushed) throw RepositoryError(unwritable(target, std::strerror(reason)));
}

}  // namespace

std::string unwritable(const std::filesystem::path& file, const std::string& why) {
  return file.string() + ": cannot be written: " + why;
}

std::filesystem::path unfinishedName(const std::filesystem::path& target) {
  return target.string() + std::string(kMark) + std::to_string(::getpid());
}

UnfinishedFile::UnfinishedFile(std::filesystem::path target)
    : target_(std::move(target)), path_(unfinishedName(target_)) {
  checkTarget(target_);
  clearLeftovers(target_);
  // A process of the same number has been here: it is gone, or is one of another container.
  if (isLocked(path_)) throw RepositoryError(unwritable(target_, "another program is at it"));
  std::error_code ignored;
  std::filesystem::remove(path_, ignored);
  const int file = ::open(path_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
  if (file < 0) throw RepositoryError(unwritable(target_, std::strerror(errno)));
  ::close(file);
}

UnfinishedFile::~UnfinishedFile() {
  std::error_code ignored;
  if (!path_.empty()) std::filesystem::remove(path_, ignored);
}

void UnfinishedFile::takeName(Existing existing) {
  flush(path_, target_);
  const unsigned flags = existing == Existing::Keep ? RENAME_NOREPLACE : 0U;
  int result = ::renameat2(AT_FDCWD, path_.c_str(), AT_FDCWD, target_.c_str(), flags);
  if (result != 0 && (errno == EINVAL || errno == ENOSYS)) {
    // A file system that cannot keep the other file at the very moment of the rename.
    std::error_code ignored;
    if (existing == Existing::Keep && std::filesystem::exists(target_, ignored))
      errno = EEXIST;
    else
      result = ::rename(path_.c_str(), target_.c_str());
  }
  if (result != 0 && errno == EEXIST) throw RepositoryError(target_.string() + ": is there already");
  if (result != 0) throw RepositoryError(unwritable(target_, std::strerror(errno)));
  path_.clear();
}

}  // namespace kestrelix::repository_file
