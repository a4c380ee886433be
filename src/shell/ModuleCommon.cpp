#include "shell/ModuleCommon.h"

#include <stdexcept>

#include "platform/guarded.h"

namespace kestrelix {
namespace {

constexpr const char* kModule = "ModuleCommon";
constexpr long long kDivisorHundredths = 1448;  // 14.48 twips

}  // namespace

bool OPEN_Conect(Workspace& workspace, const ShellServices& services, const std::string& user,
                 const std::string& password, const std::string& tns) {
  return guarded(workspace.boxes, kModule, "OPEN_Conect", [&] {
    workspace.gOraDatabase.reset();
    workspace.gOraSession = services.makeSession();
    if (!workspace.gOraSession) throw std::runtime_error("the client library gave no session");
    workspace.gOraDatabase =
        workspace.gOraSession->OpenDatabase(tns, user + "/" + password, kDatabaseOptions);
  });
}

bool CLOSE_Connect(Workspace& workspace) {
  workspace.gOraDatabase.reset();
  workspace.gOraSession.reset();
  return true;
}

bool gWidthScrollCheck(const Grid& grid, MessageBoxes& boxes) {
  bool scrolls = false;
  guarded(boxes, kModule, "gWidthScrollCheck", [&] {
    long long columns = 0;
    for (int c = 0; c < grid.Cols(); ++c) columns += grid.ColWidth(c);
    scrolls = grid.Width() < (columns * 100 + kDivisorHundredths / 2) / kDivisorHundredths;
  });
  return scrolls;
}

}  // namespace kestrelix
