// Where the controls of the two windows lie.
#pragma once

#include <span>
#include <string_view>

namespace kestrelix {

/// A control's place, in twips (1/1440 inch; 15 to a pixel at 96 dpi), counted from its parent.
struct ControlPlace {
  std::string_view name;
  std::string_view parent;  ///< empty: the window
  int left;
  int top;
  int width;
  int height;
  double fontPoints = 0;  ///< 0: the window's
  bool bold = false;
};

struct WindowLayout {
  int width;  ///< of the client area, in twips
  int height;
  double fontPoints;
  /// Parents before children; what lies over another comes behind it.
  std::span<const ControlPlace> places;
};

const WindowLayout& mainLayout();
const WindowLayout& loginLayout();

}  // namespace kestrelix
