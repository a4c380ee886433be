// The salted hash of a new account's password.
#pragma once

#include <array>
#include <optional>
#include <string>

namespace kestrelix::embedded {

using PasswordSalt = std::array<unsigned char, 16>;

/// The text form that the check of a login reads, of `password` with this salt or a random one. It guards no
/// secret, since the file lies open beside it, and is kept cheap so that a login is not felt.
std::string saltedHash(const std::string& password, const std::optional<PasswordSalt>& salt);

}  // namespace kestrelix::embedded
