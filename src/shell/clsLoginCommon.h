#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/message_box.h"

namespace kestrelix {

/// The logins that worked before, the last new one first: a text file of one line "TNS,USER,PASSWORD" each,
/// in the clear, without quoting. Every action reads the whole file, changes it and writes it back. Members
/// that give false have shown their box.
class clsLoginCommon {
 public:
  clsLoginCommon(MessageBoxes& boxes, const std::filesystem::path& folder) : boxes_(boxes), folder_(folder) {}

  void Initialize();
  /// The login that gLoginDataAdd merges.
  void gSetLoginData(std::string tns, std::string user, std::string password);

  /// Makes an empty file if there is none. One malformed line, a blank one too, fails the whole read.
  bool gLoginDataRead();
  bool gLoginDataWrite();
  /// A known pair of TNS name and user keeps its place and takes the password; a new one goes to the head.
  bool gLoginDataAdd();
  bool gLoginDataDelete(int index);

  int rownum() const { return static_cast<int>(rows_.size()); }
  const std::string& TNS_NAME(int i) const { return row(i).tns; }
  const std::string& USER_NAME(int i) const { return row(i).user; }
  const std::string& PASSWORD(int i) const { return row(i).password; }

 private:
  struct Login {
    std::string tns, user, password;
  };
  const Login& row(int i) const { return rows_.at(static_cast<std::size_t>(i)); }
  static Login parse(const std::string& line);

  MessageBoxes& boxes_;
  std::filesystem::path folder_;
  std::filesystem::path path_;
  Login current_;
  std::vector<Login> rows_;
};

}  // namespace kestrelix
