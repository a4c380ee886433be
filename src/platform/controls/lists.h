#pragma once

#include <string>
#include <vector>

#include "platform/controls/control.h"

namespace kestrelix {

/// A list of texts with one selected entry. Setting ListIndex, from code or by the user, raises Click, also
/// for the entry that is selected already: that is how a report is asked for again.
class ListBox : public Control {
 public:
  using Control::Control;

  void Clear();
  /// Adds an entry at the end, with a number of the program's own.
  void AddItem(std::string text, long itemData = 0);

  int ListCount() const { return static_cast<int>(items_.size()); }
  /// The selected entry from 0, or -1.
  int ListIndex() const { return index_; }
  /// Selects an entry and raises Click. Fails with std::out_of_range outside of -1 .. ListCount() - 1; -1
  /// clears the selection without a click.
  void ListIndex(int index);
  const std::string& List(int index) const { return items_.at(static_cast<std::size_t>(index)).text; }
  long ItemData(int index) const { return items_.at(static_cast<std::size_t>(index)).data; }
  /// The selected text, empty if nothing is selected.
  std::string Text() const { return index_ < 0 ? std::string() : List(index_); }

  /// Grows with every change of the entries, so that a mirror can tell it from a mere move of the selection.
  unsigned long entries() const { return entries_; }

  Signal<> Click;

 private:
  struct Item {
    std::string text;
    long data;
  };
  std::vector<Item> items_;
  int index_ = -1;
  unsigned long entries_ = 0;
};

/// A drop-down list: the same, shown one entry at a time.
class ComboBox : public ListBox {
 public:
  using ListBox::ListBox;
};

}  // namespace kestrelix
