// The desktop program. It takes no arguments and has no settings.
#include <filesystem>
#include <iostream>

#include "platform/embedded/local_session.h"
#include "platform/odbc/odbc_session.h"
#include "platform/qt/Desktop.h"
#include "platform/qt/desktop_services.h"
#include "sections/SectionList.h"
#include "shell/BackEndChain.h"

namespace {

std::filesystem::path programFolder() {
  return std::filesystem::read_symlink("/proc/self/exe").parent_path();
}

}  // namespace

int main(int argc, char** argv) {
  using namespace kestrelix;
  try {
    QtMessageBoxes boxes;
    QtClipboard clipboard;
    QtHelpViewer help;
    const std::filesystem::path folder = programFolder();
    const auto makeSession = [folder] {
      const BackEnd servers = [](const std::string& name) {
        return odbc::canReach(name) ? odbc::odbcSession() : nullptr;
      };
      return std::make_unique<BackEndChain>(
          std::vector<BackEnd>{localRepositories(folder, embedded::localSession), servers});
    };
    return runDesktop(argc, argv, [&] {
      return DesktopParts{boxes, {clipboard, help, folder, makeSession, sectionList()}, reportOperations};
    });
  } catch (const std::exception& error) {
    std::cerr << "kestrelix: " << error.what() << std::endl;
    return 1;
  }
}
