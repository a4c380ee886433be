#include "shell/FormLogin.h"

#include "platform/ascii.h"
#include "shell/ModuleCommon.h"
#include "shell/scroll.h"

namespace kestrelix {
namespace {

constexpr int kLeastRowsToScroll = 9;

}  // namespace

FormLogin::FormLogin(Workspace& workspace, const ShellServices& services)
    : workspace_(workspace),
      services_(services),
      stored_{controls, workspace.boxes,
              services.loginFolder.empty() ? services.programFolder : services.loginFolder} {
  controls.Title.Caption("FormLogin");
  controls.LabelUSER.Caption("USER");
  controls.LabelPASS.Caption("PASS");
  controls.LabelTNS.Caption("TNS");
  controls.CommandOK.Caption("OK");
  controls.CommandCANCEL.Caption("CANCEL");
  controls.CommandDELETE.Caption("DELETE");

  const auto when = [this](void (FormLogin::*handler)()) {
    return [this, handler] {
      if (unloaded_) return;
      const Action action(workspace_.progress);
      (this->*handler)();
    };
  };
  controls.CommandOK.Click.connect(when(&FormLogin::CommandOK_Click));
  controls.CommandCANCEL.Click.connect(when(&FormLogin::Unload));
  controls.CommandDELETE.Click.connect(when(&FormLogin::CommandDELETE_Click));
  controls.MSFlexGridLogin.Click.connect(when(&FormLogin::MSFlexGridLogin_Click));
  controls.MSFlexGridLogin.DblClick.connect(when(&FormLogin::MSFlexGridLogin_DblClick));
  m_CWheel.MouseWheel.connect([this](int direction) { m_CWheel_MouseWheel(direction); });
}

std::string FormLogin::user() const { return asciiUpper(controls.TextUSER.Text()); }
std::string FormLogin::tns() const { return asciiUpper(controls.TextTNS.Text()); }

void FormLogin::Load(clsWheelMouse::Handle hWnd) {
  m_CWheel.Initialize(hWnd);
  if (!gDispLoginGrid_Load(stored_)) fail("接続データの取得に失敗しました");
}

void FormLogin::Unload() {
  if (unloaded_) return;
  unloaded_ = true;
  m_CWheel.Terminate();
  Unloaded();
}

void FormLogin::CommandOK_Click() {
  if (!connect(tns(), user(), controls.TextPASS.Text())) return;
  // A box may have stood between: the login that is stored is the one in the boxes now.
  if (!gDispLoginGrid_OK_Click(stored_, tns(), user(), controls.TextPASS.Text()))
    return fail("接続データの更新に失敗しました");
  handOver();
}

/// Logs on with what is stored, whatever stands in the boxes.
void FormLogin::MSFlexGridLogin_DblClick() {
  if (controls.MSFlexGridLogin.Row() == 0) return;
  std::string tns;
  std::string user;
  std::string password;
  if (!gGet_Connection_Data(stored_, tns, user, password)) return fail("接続データの取得に失敗しました");
  tns = asciiUpper(tns);
  user = asciiUpper(user);
  if (!connect(tns, user, password)) return;
  if (!gDispLoginGrid_Double_Click(stored_, tns, user, password))
    return fail("接続データの更新に失敗しました");
  handOver();
}

void FormLogin::MSFlexGridLogin_Click() {
  if (!gDispLoginGrid_Click(stored_)) fail("接続データの取得に失敗しました");
}

void FormLogin::CommandDELETE_Click() {
  if (controls.MSFlexGridLogin.Rows() == 1) return;
  if (!gDispLoginGrid_Delete_Click(stored_)) fail("接続データの削除に失敗しました");
}

bool FormLogin::connect(const std::string& tns, const std::string& user, const std::string& password) {
  if (OPEN_Conect(workspace_, services_, user, password, tns)) return true;
  fail("データベースの接続に失敗しました");
  return false;
}

void FormLogin::handOver() {
  showMain();
  Unload();
}

void FormLogin::fail(const char* text) { workspace_.boxes.show(BoxIcon::Critical, text); }

void FormLogin::m_CWheel_MouseWheel(int direction) {
  Grid& grid = controls.MSFlexGridLogin;
  scrollByWheel(grid, direction, grid.Rows() >= kLeastRowsToScroll);
}

}  // namespace kestrelix
