#include "shell/ModuleCommon.h"

#include "platform/failure.h"

namespace kestrelix {
namespace {

constexpr const char* kModule = "ModuleCommon";
constexpr long long kDivisorHundredths = 1448;  // 14.48 twips

}  // namespace

bool OPEN_Conect(Workspace& workspace, const ShellServices& services, const std::string& user,
                 const std::string& password, const std::string& tns) {
  const Failures failures = workspace.repository.open(services.makeSession, tns, user + "/" + password);
  showFailures(workspace.boxes, failures);
  return failures.empty();
}

bool CLOSE_Connect(Workspace& workspace) {
  workspace.repository.close();
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
