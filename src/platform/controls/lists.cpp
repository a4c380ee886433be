#include "platform/controls/lists.h"

#include <stdexcept>

namespace kestrelix {

void ListBox::Clear() {
  items_.clear();
  index_ = -1;
  ++entries_;
  changed();
}

void ListBox::AddItem(std::string text, long itemData) {
  items_.push_back({std::move(text), itemData});
  ++entries_;
  changed();
}

void ListBox::ListIndex(int index) {
  if (index < -1 || index >= ListCount())
    throw std::out_of_range(name() + ": there is no entry " + std::to_string(index));
  index_ = index;
  changed();
  if (index >= 0) Click();
}

}  // namespace kestrelix
