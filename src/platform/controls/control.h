#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "platform/controls/signal.h"

namespace kestrelix {

/// A colour as 0xBBGGRR, or one of the desktop's own colours.
using Colour = std::uint32_t;
inline constexpr Colour kWindowColour = 0x80000005;

/// What all controls have: the name by which it is found from outside, and visibility.
class Control {
 public:
  explicit Control(std::string name) : name_(std::move(name)) {}
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const std::string& name() const { return name_; }
  bool Visible() const { return visible_; }
  void Visible(bool visible) {
    if (visible_ == visible) return;
    visible_ = visible;
    changed();
  }

  /// Something of the control has changed, for whoever mirrors it on a screen.
  Signal<> changed;

 protected:
  ~Control() = default;

 private:
  std::string name_;
  bool visible_ = true;
};

/// A label, a frame's caption or a window's title.
class Label : public Control {
 public:
  using Control::Control;
  const std::string& Caption() const { return caption_; }
  void Caption(std::string caption) {
    caption_ = std::move(caption);
    changed();
  }

 private:
  std::string caption_;
};

/// A frame around other controls; a double click on its own area is an event of the window.
class Frame : public Label {
 public:
  using Label::Label;
  Signal<> DblClick;
};

/// A button with a caption.
class CommandButton : public Label {
 public:
  using Label::Label;
  Signal<> Click;
};

/// A line of text to type into.
class TextBox : public Control {
 public:
  using Control::Control;
  const std::string& Text() const { return text_; }
  void Text(std::string text) {
    if (text_ == text) return;
    text_ = std::move(text);
    changed();
  }

 private:
  std::string text_;
};

}  // namespace kestrelix
