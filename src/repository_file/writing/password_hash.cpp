#include "repository_file/writing/password_hash.h"

#include <sodium.h>

#include <stdexcept>

namespace kestrelix::repository_file {

namespace {

std::string base64(const unsigned char* bytes, std::size_t size) {
  constexpr int kVariant = sodium_base64_VARIANT_ORIGINAL_NO_PADDING;
  std::string text(sodium_base64_encoded_len(size, kVariant), '\0');
  sodium_bin2base64(text.data(), text.size(), bytes, size, kVariant);
  text.resize(text.size() - 1);  // the closing zero
  return text;
}

}  // namespace

// The text is put together here, since the library's own call for it always takes a random salt, and the same
// seed must give the same demo file.
std::string saltedHash(const std::string& password, const std::optional<PasswordSalt>& salt) {
  if (sodium_init() < 0) throw std::runtime_error("the cryptographic library does not start");
  static_assert(crypto_pwhash_SALTBYTES == std::tuple_size_v<PasswordSalt>);
  static_assert(kHashRounds >= crypto_pwhash_OPSLIMIT_MIN &&
                kHashKilobytes * 1024 >= crypto_pwhash_MEMLIMIT_MIN);
  PasswordSalt used{};
  if (salt)
    used = *salt;
  else
    randombytes_buf(used.data(), used.size());
  std::array<unsigned char, 32> hash{};
  if (crypto_pwhash(hash.data(), hash.size(), password.data(), password.size(), used.data(), kHashRounds,
                    kHashKilobytes * 1024, crypto_pwhash_ALG_ARGON2ID13) != 0)
    throw std::runtime_error("no memory to hash the password");
  return "$argon2id$v=19$m=" + std::to_string(kHashKilobytes) + ",t=" + std::to_string(kHashRounds) +
         ",p=1$" + base64(used.data(), used.size()) + "$" + base64(hash.data(), hash.size());
}

}  // namespace kestrelix::repository_file
