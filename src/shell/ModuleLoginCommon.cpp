#include "shell/ModuleLoginCommon.h"

#include "platform/failure.h"
#include "shell/clsLoginCommon.h"

namespace kestrelix {
namespace {

/// Runs the steps of one function on a store that has been read; false from any of them is the function's
/// box.
template <class Steps>
bool onStore(const StoredLogins& stored, const char* member, Steps&& steps) {
  bool done = false;
  const bool ran = guarded(stored.boxes, "ModuleLoginCommon", member, [&] {
    clsLoginCommon logins(stored.boxes, stored.folder);
    logins.Initialize();
    done = logins.gLoginDataRead() && steps(logins);
  });
  if (ran && !done) stored.boxes.show(BoxIcon::Critical, failureText("ModuleLoginCommon", member));
  return ran && done;
}

void fill(Grid& grid, const clsLoginCommon& logins) {
  grid.Visible(false);
  grid.Clear();
  grid.Cols(2);
  grid.Rows(2);
  grid.FixedCols(0);
  grid.FixedRows(1);
  grid.Rows(grid.FixedRows() + logins.rownum());
  for (int c = 0; c < grid.Cols(); ++c) grid.ColWidth(c, LoginControls::kColumnWidth);
  grid.TextArray(0, "TNS NAME");
  grid.TextArray(1, "USER NAME");
  for (int r = 1; r <= logins.rownum(); ++r) {
    grid.TextMatrix(r, 0, logins.TNS_NAME(r - 1));
    grid.TextMatrix(r, 1, logins.USER_NAME(r - 1));
  }
  grid.Visible(true);
  grid.Refresh();
}

/// The login that the grid's current row shows; -1 on the heading.
int currentLogin(const StoredLogins& stored) { return stored.controls.MSFlexGridLogin.Row() - 1; }

bool store(const StoredLogins& stored, const char* member, const std::string& tns, const std::string& user,
           const std::string& password) {
  return onStore(stored, member, [&](clsLoginCommon& logins) {
    logins.gSetLoginData(tns, user, password);
    return logins.gLoginDataAdd() && logins.gLoginDataWrite();
  });
}

}  // namespace

bool gDispLoginGrid_Load(const StoredLogins& stored) {
  return onStore(stored, "gDispLoginGrid_Load", [&](const clsLoginCommon& logins) {
    fill(stored.controls.MSFlexGridLogin, logins);
    return true;
  });
}

bool gDispLoginGrid_Click(const StoredLogins& stored) {
  return onStore(stored, "gDispLoginGrid_Click", [&](const clsLoginCommon& logins) {
    const int i = currentLogin(stored);
    if (i < 0 || i >= logins.rownum()) return true;
    stored.controls.TextUSER.Text(logins.USER_NAME(i));
    stored.controls.TextPASS.Text(logins.PASSWORD(i));
    stored.controls.TextTNS.Text(logins.TNS_NAME(i));
    return true;
  });
}

bool gGet_Connection_Data(const StoredLogins& stored, std::string& tns, std::string& user,
                          std::string& password) {
  return onStore(stored, "gGet_Connection_Data", [&](const clsLoginCommon& logins) {
    const int i = currentLogin(stored);
    tns = logins.TNS_NAME(i);
    user = logins.USER_NAME(i);
    password = logins.PASSWORD(i);
    return true;
  });
}

bool gDispLoginGrid_OK_Click(const StoredLogins& stored, const std::string& tns, const std::string& user,
                             const std::string& password) {
  return store(stored, "gDispLoginGrid_OK_Click", tns, user, password);
}

bool gDispLoginGrid_Double_Click(const StoredLogins& stored, const std::string& tns, const std::string& user,
                                 const std::string& password) {
  return store(stored, "gDispLoginGrid_Double_Click", tns, user, password);
}

bool gDispLoginGrid_Delete_Click(const StoredLogins& stored) {
  return onStore(stored, "gDispLoginGrid_Delete_Click", [&](clsLoginCommon& logins) {
    if (!logins.gLoginDataDelete(currentLogin(stored)) || !logins.gLoginDataWrite()) return false;
    fill(stored.controls.MSFlexGridLogin, logins);
    return true;
  });
}

}  // namespace kestrelix
