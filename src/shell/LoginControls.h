#pragma once

#include "platform/controls.h"

namespace kestrelix {

/// The controls of the login dialog, by name.
struct LoginControls {
  static constexpr int kGridWidth = 4455;    // twips
  static constexpr int kColumnWidth = 2060;  // twips

  Label Title{"FormLogin"};
  Grid MSFlexGridLogin{"MSFlexGridLogin", kGridWidth};
  Label LabelUSER{"LabelUSER"};
  TextBox TextUSER{"TextUSER"};
  Label LabelPASS{"LabelPASS"};
  TextBox TextPASS{"TextPASS"};
  Label LabelTNS{"LabelTNS"};
  TextBox TextTNS{"TextTNS"};
  CommandButton CommandOK{"CommandOK"};
  CommandButton CommandCANCEL{"CommandCANCEL"};
  CommandButton CommandDELETE{"CommandDELETE"};
};

}  // namespace kestrelix
