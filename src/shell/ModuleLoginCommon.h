// The stored logins in the login dialog's grid. Each function reads the file anew. Each that gives false has
// shown its box.
#pragma once

#include <filesystem>
#include <string>

#include "platform/message_box.h"
#include "shell/LoginControls.h"

namespace kestrelix {

struct StoredLogins {
  LoginControls& controls;
  MessageBoxes& boxes;
  std::filesystem::path folder;
};

/// Fills the grid; passwords are never shown in it.
bool gDispLoginGrid_Load(const StoredLogins& stored);
/// Copies the grid's current row into the three text boxes. The heading matches no login and does nothing.
bool gDispLoginGrid_Click(const StoredLogins& stored);
/// The stored fields of the grid's current row.
bool gGet_Connection_Data(const StoredLogins& stored, std::string& tns, std::string& user,
                          std::string& password);
/// Store a login that has just worked.
bool gDispLoginGrid_OK_Click(const StoredLogins& stored, const std::string& tns, const std::string& user,
                             const std::string& password);
bool gDispLoginGrid_Double_Click(const StoredLogins& stored, const std::string& tns, const std::string& user,
                                 const std::string& password);
/// Removes the grid's current row from the file and fills the grid again.
bool gDispLoginGrid_Delete_Click(const StoredLogins& stored);

}  // namespace kestrelix
