#include "desktop/mirror.h"

namespace kestrelix {

void flushMirrors(QWidget& window) {
  for (QObject* object : window.findChildren<QObject*>())
    if (auto* mirror = dynamic_cast<Mirror*>(object)) mirror->flush();
}

int shiftState(Qt::KeyboardModifiers modifiers) {
  return (modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) + (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0) +
         (modifiers.testFlag(Qt::AltModifier) ? 4 : 0) + (modifiers.testFlag(Qt::MetaModifier) ? 8 : 0);
}

}  // namespace kestrelix
