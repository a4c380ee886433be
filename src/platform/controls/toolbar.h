#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "platform/controls/control.h"

namespace kestrelix {

/// A row of buttons, each found by its key.
class Toolbar : public Control {
 public:
  struct Button {
    std::string key;
    std::string toolTip;
    std::string image;  // empty: the button shows its key
    bool enabled = true;
  };

  using Control::Control;

  void Add(std::string key, std::string toolTip, std::string image);
  const std::vector<Button>& buttons() const { return buttons_; }

  /// Both fail with std::out_of_range for an unknown key.
  bool Enabled(std::string_view key) const;
  void Enabled(std::string_view key, bool enabled);
  void Enabled(std::initializer_list<std::string_view> keys, bool enabled) {
    for (const auto key : keys) Enabled(key, enabled);
  }

  /// A click on an enabled button, by its key.
  Signal<const std::string&> ButtonClick;
  /// The user's click: raises ButtonClick if the button is enabled.
  void press(std::string_view key);

 private:
  const Button& find(std::string_view key) const;
  std::vector<Button> buttons_;
};

}  // namespace kestrelix
