#include "platform/controls/toolbar.h"

#include <algorithm>
#include <stdexcept>

namespace kestrelix {

void Toolbar::Add(std::string key, std::string toolTip, std::string image) {
  buttons_.push_back({std::move(key), std::move(toolTip), std::move(image)});
  changed();
}

const Toolbar::Button& Toolbar::find(std::string_view key) const {
  const auto found =
      std::find_if(buttons_.begin(), buttons_.end(), [key](const Button& b) { return b.key == key; });
  if (found == buttons_.end()) throw std::out_of_range(name() + ": there is no button " + std::string(key));
  return *found;
}

bool Toolbar::Enabled(std::string_view key) const { return find(key).enabled; }

void Toolbar::Enabled(std::string_view key, bool enabled) {
  Button& button = const_cast<Button&>(find(key));
  if (button.enabled == enabled) return;
  button.enabled = enabled;
  changed();
}

void Toolbar::press(std::string_view key) {
  const Button& button = find(key);
  if (!button.enabled) return;
  const std::string pressed = button.key;
  ButtonClick(pressed);
}

}  // namespace kestrelix
