// Opens a local repository file for reading.
#pragma once

#include <filesystem>

#include "repository_file/sqlite_handle.h"

namespace kestrelix::repository_file {

/// "KSTX": marks the SQLite files that are repositories.
inline constexpr int kApplicationId = 0x4B535458;
/// The layout that this program reads and writes.
inline constexpr int kLayoutVersion = 1;

/// A read-only connection to the repository at `path`. The file is never written, not even by SQLite itself.
/// Throws DatabaseError with a text that names the file when it is missing, unreadable, a directory, no
/// repository, of another layout, or shorter than it says it is.
ConnectionHandle openRepositoryFile(const std::filesystem::path& path);

}  // namespace kestrelix::repository_file
