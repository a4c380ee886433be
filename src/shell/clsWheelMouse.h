#pragma once

#include <cstdint>

#include "platform/controls/signal.h"

namespace kestrelix {

/// Turns the wheel and middle-button messages of one window into events. A window has one such object.
class clsWheelMouse {
 public:
  using Handle = std::uintptr_t;
  enum Kind { kMiddleDown = 1, kMiddleUp = 2, kWheel = 3 };

  clsWheelMouse() = default;
  clsWheelMouse(const clsWheelMouse&) = delete;
  clsWheelMouse& operator=(const clsWheelMouse&) = delete;
  ~clsWheelMouse() { Terminate(); }

  /// False when it serves a window already, for the handle 0, and when the window has another such object.
  bool Initialize(Handle hWnd);
  void Terminate();
  Handle OwnerhWnd() const { return owner_; }

  /// `direction` is -1 for a turn towards the user and 1 away from it; x and y are twips and belong to the
  /// middle button.
  void raiseMyEvent(int kind, int direction, int x, int y);

  Signal<int> MouseWheel;
  Signal<int, int> MiddleButtonDown;
  Signal<int, int> MiddleButtonUp;

 private:
  Handle owner_ = 0;
  bool active_ = false;
};

namespace modWheelMouse {

/// A turn of the wheel over a window, by its signed size: one event, whatever the size. A turn that comes
/// while a handler runs is passed over.
void wheelTurned(clsWheelMouse::Handle hWnd, int delta);

}  // namespace modWheelMouse
}  // namespace kestrelix
