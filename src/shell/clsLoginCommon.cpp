#include "shell/clsLoginCommon.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <stdexcept>
#include <system_error>

#include "platform/failure.h"

namespace kestrelix {
namespace {

constexpr const char* kClass = "clsLoginCommon";
constexpr mode_t kOwnerOnly = 0600;
constexpr std::size_t kShortestLine = 5;  // three one-letter fields

/// A file opened for writing, made for its owner alone if it isn't there.
class OutputFile {
 public:
  OutputFile(const std::filesystem::path& path, int flags)
      : path_(path), descriptor_(::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | flags, kOwnerOnly)) {
    if (descriptor_ < 0) fail();
  }
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;
  ~OutputFile() {
    if (descriptor_ >= 0) ::close(descriptor_);
  }

  void write(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
      if (written < 0) fail();
      bytes.remove_prefix(static_cast<std::size_t>(written));
    }
  }
  void close() {
    const int result = ::close(descriptor_);
    descriptor_ = -1;
    if (result != 0) fail();
  }

 private:
  [[noreturn]] void fail() const {
    throw std::system_error(errno, std::generic_category(), path_.filename().string());
  }

  std::filesystem::path path_;
  int descriptor_;
};

/// Splits at the first comma; the text behind it stays in `rest`.
std::string takeField(std::string& rest) {
  const auto comma = rest.find(',');
  if (comma == std::string::npos) throw std::invalid_argument("a stored login lacks a comma");
  std::string field = rest.substr(0, comma);
  rest.erase(0, comma + 1);
  return field;
}

}  // namespace

void clsLoginCommon::Initialize() {
  path_ = folder_ / "Login.txt";
  rows_.clear();
}

void clsLoginCommon::gSetLoginData(std::string tns, std::string user, std::string password) {
  current_ = {std::move(tns), std::move(user), std::move(password)};
}

/// A comma in a password isn't escaped: what stands behind it is read back as the password.
clsLoginCommon::Login clsLoginCommon::parse(const std::string& line) {
  if (line.size() < kShortestLine) throw std::invalid_argument("a stored login is too short");
  std::string rest = line;
  Login login;
  login.tns = takeField(rest);
  login.user = takeField(rest);
  const auto comma = rest.find(',');
  login.password = comma == std::string::npos ? rest : rest.substr(comma + 1);
  if (login.tns.empty() || login.user.empty() || login.password.empty())
    throw std::invalid_argument("a stored login has an empty field");
  return login;
}

bool clsLoginCommon::gLoginDataRead() {
  return guarded(boxes_, kClass, "gLoginDataRead", [this] {
    OutputFile(path_, O_APPEND).close();
    std::ifstream file(path_, std::ios::binary);
    if (!file) throw std::runtime_error("the stored logins can't be opened");
    for (std::string line; std::getline(file, line);) {
      if (line.ends_with('\r')) line.pop_back();
      rows_.push_back(parse(line));
    }
    if (file.bad()) throw std::runtime_error("the stored logins can't be read");
  });
}

bool clsLoginCommon::gLoginDataWrite() {
  return guarded(boxes_, kClass, "gLoginDataWrite", [this] {
    std::string lines;
    for (const Login& login : rows_) lines += login.tns + ',' + login.user + ',' + login.password + "\r\n";
    OutputFile file(path_, O_TRUNC);
    file.write(lines);
    file.close();
  });
}

bool clsLoginCommon::gLoginDataAdd() {
  return guarded(boxes_, kClass, "gLoginDataAdd", [this] {
    bool known = false;
    for (Login& login : rows_) {
      if (login.tns != current_.tns || login.user != current_.user) continue;
      login.password = current_.password;
      known = true;
    }
    if (!known) rows_.insert(rows_.begin(), current_);
  });
}

bool clsLoginCommon::gLoginDataDelete(int index) {
  return guarded(boxes_, kClass, "gLoginDataDelete", [&] {
    if (index < 0 || index >= rownum())
      throw std::out_of_range("there is no stored login " + std::to_string(index));
    rows_.erase(rows_.begin() + index);
  });
}

}  // namespace kestrelix
