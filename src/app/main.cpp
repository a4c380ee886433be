// The desktop program. It takes no arguments and has no settings.
#include <cstdlib>
#include <iostream>

#include "app/back_ends.h"
#include "desktop/Desktop.h"
#include "desktop/HelpWindow.h"
#include "desktop/desktop_services.h"
#include "sections/SectionList.h"
#include "shell/login_folder.h"

namespace {

std::filesystem::path home() {
  const char* const folder = std::getenv("HOME");
  return folder == nullptr ? "" : folder;
}

}  // namespace

int main(int argc, char** argv) {
  using namespace kestrelix;
  try {
    QtMessageBoxes boxes;
    QtClipboard clipboard;
    QtHelpViewer help;
    const std::filesystem::path folder = programFolder();
    const auto makeSession = [folder] { return anySession(folder); };
    return runDesktop(argc, argv, [&] {
      return DesktopParts{boxes,
                          {clipboard, help, folder, makeSession, sectionList(), loginFolder(folder, home())},
                          reportOperations};
    });
  } catch (const std::exception& error) {
    std::cerr << "kestrelix: " << error.what() << std::endl;
    return 1;
  }
}
