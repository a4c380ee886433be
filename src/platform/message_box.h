// Message boxes, behind an interface that a test answers.
#pragma once

#include <string>

namespace kestrelix {

enum class BoxIcon { Critical, Exclamation };

class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;

  /// Shows one box, titled "Kestrelix", and returns when it has been confirmed. `underlying` is the text of
  /// the error behind it, if any: it goes to standard error, never into the box.
  virtual void show(BoxIcon icon, const std::string& text, const std::string& underlying = {}) = 0;
};

}  // namespace kestrelix
