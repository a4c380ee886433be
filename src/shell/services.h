#pragma once

#include <filesystem>

#include "navigation/repository.h"
#include "platform/clipboard.h"
#include "platform/help.h"
#include "report/reading.h"

namespace kestrelix {

/// What the windows need of the desktop and of the machine.
struct ShellServices {
  Clipboard& clipboard;
  HelpViewer& help;
  /// The folder of the program that runs: the help file and the local repositories lie in it.
  std::filesystem::path programFolder;
  /// Makes the client library's session; may throw.
  Repository::MakeSession makeSession;
  /// The catalogue of Sections.
  SectionList sections;
  /// Where the stored logins lie; empty: in the program's folder.
  std::filesystem::path loginFolder = {};
  /// Who reads the views.
  SectionReader* reader = &directReader();
};

}  // namespace kestrelix
