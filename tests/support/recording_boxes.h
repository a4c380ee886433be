#pragma once

#include <string>
#include <vector>

#include "platform/message_box.h"

namespace kestrelix::testing_support {

/// Confirms every box and keeps its text: "[Critical] text". The errors behind them are kept beside.
class RecordingBoxes : public MessageBoxes {
 public:
  void show(BoxIcon icon, const std::string& text, const std::string& underlying) override {
    shown.push_back((icon == BoxIcon::Critical ? "[Critical] " : "[Exclamation] ") + text);
    if (!underlying.empty()) errors.push_back(underlying);
  }

  std::vector<std::string> shown;
  std::vector<std::string> errors;
};

}  // namespace kestrelix::testing_support
