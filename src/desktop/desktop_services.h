// The desktop behind the interfaces that the windows' behaviour knows.
#pragma once

#include "platform/clipboard.h"
#include "platform/message_box.h"

namespace kestrelix {

/// Message boxes over the active window; the error behind a box goes to standard error.
class QtMessageBoxes final : public MessageBoxes {
 public:
  void show(BoxIcon icon, const std::string& text, const std::string& underlying) override;
};

class QtClipboard final : public Clipboard {
 public:
  void Clear() override;
  void SetText(const std::string& text) override;
};

}  // namespace kestrelix
