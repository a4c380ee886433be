#pragma once

#include <filesystem>
#include <functional>
#include <memory>

#include "platform/clipboard.h"
#include "platform/database.h"
#include "platform/help.h"
#include "report/SectionEntry.h"

namespace kestrelix {

/// What the windows need of the desktop and of the machine.
struct ShellServices {
  Clipboard& clipboard;
  HelpViewer& help;
  /// The folder of the program that runs: the help file and the local repositories lie in it.
  std::filesystem::path programFolder;
  /// Makes the client library's session; may throw.
  std::function<std::unique_ptr<Session>()> makeSession;
  /// The catalogue of Sections.
  SectionList sections;
  /// Where the stored logins lie; empty: in the program's folder.
  std::filesystem::path loginFolder;
};

}  // namespace kestrelix
