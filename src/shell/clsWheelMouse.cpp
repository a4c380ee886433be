#include "shell/clsWheelMouse.h"

#include <algorithm>
#include <vector>

namespace kestrelix {
namespace {

std::vector<clsWheelMouse*>& liveObjects() {
  static std::vector<clsWheelMouse*> objects;
  return objects;
}

clsWheelMouse* find(clsWheelMouse::Handle hWnd) {
  const auto& objects = liveObjects();
  const auto found = std::find_if(objects.begin(), objects.end(), [hWnd](const clsWheelMouse* object) {
    return object->OwnerhWnd() == hWnd;
  });
  return found == objects.end() ? nullptr : *found;
}

bool handlerRuns = false;

struct HandlerRuns {
  HandlerRuns() { handlerRuns = true; }
  ~HandlerRuns() { handlerRuns = false; }
};

}  // namespace

bool clsWheelMouse::Initialize(Handle hWnd) {
  if (active_ || hWnd == 0 || find(hWnd) != nullptr) return false;
  owner_ = hWnd;
  liveObjects().push_back(this);
  active_ = true;
  return true;
}

void clsWheelMouse::Terminate() {
  std::erase(liveObjects(), this);
  active_ = false;
}

void clsWheelMouse::raiseMyEvent(int kind, int direction, int x, int y) {
  if (kind == kWheel) MouseWheel(direction);
  if (kind == kMiddleDown) MiddleButtonDown(x, y);
  if (kind == kMiddleUp) MiddleButtonUp(x, y);
}

void modWheelMouse::wheelTurned(clsWheelMouse::Handle hWnd, int delta) {
  if (handlerRuns) return;
  clsWheelMouse* const object = find(hWnd);
  if (object == nullptr) return;
  const HandlerRuns guard;
  object->raiseMyEvent(clsWheelMouse::kWheel, delta < 0 ? -1 : 1, 0, 0);
}

}  // namespace kestrelix
