#pragma once

#include <string>

namespace kestrelix {

/// The help viewer. `command` 1 shows the table of contents of the help file at `path` (a file that is
/// missing shows nothing); 18 closes every help window.
class HelpViewer {
 public:
  static constexpr int kDisplayContents = 1;
  static constexpr int kCloseAll = 18;

  virtual ~HelpViewer() = default;
  virtual void HtmlHelp(const std::string& path, int command) = 0;
};

}  // namespace kestrelix
