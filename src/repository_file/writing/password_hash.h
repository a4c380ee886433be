// The salted hash of a new account's password.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>

namespace kestrelix::repository_file {

/// What a hash costs; the check of a login takes no other cost from a file.
inline constexpr unsigned kHashRounds = 1;
inline constexpr std::size_t kHashKilobytes = 64;

using PasswordSalt = std::array<unsigned char, 16>;

/// The text form that the check of a login reads, of `password` with this salt or a random one. It guards no
/// secret, since the file lies open beside it, and is kept cheap so that a login is not felt.
std::string saltedHash(const std::string& password, const std::optional<PasswordSalt>& salt);

}  // namespace kestrelix::repository_file
