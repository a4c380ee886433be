#pragma once

#include <filesystem>

namespace kestrelix {

/// Where the stored logins lie: in the program's folder if they can be written there, else in
/// `.local/share/kestrelix` below `home`, which is made for its owner alone. Without a home, or where that
/// folder can't be made either, it is the program's folder, and the store tells of the failure.
std::filesystem::path loginFolder(const std::filesystem::path& programFolder,
                                  const std::filesystem::path& home);

}  // namespace kestrelix
