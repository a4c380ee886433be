// What all adapters between a screenless control and its widget share.
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <functional>

#include "platform/controls.h"

namespace kestrelix {

inline QString text(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// 15 twips to a pixel.
inline int pixels(int twips) { return (twips + 7) / 15; }

/// Gives the widget the control's name, by which it is found from outside.
inline void named(QWidget& widget, const Control& control) {
  widget.setObjectName(text(control.name()));
  widget.setAccessibleName(text(control.name()));
}

/// Calls `refresh` once for all changes of a control within a turn of the event loop, however many: nothing
/// of what a report writes shows half done, and the last change always shows.
class Mirror : public QObject {
 public:
  Mirror(Control& control, std::function<void()> refresh, QObject* parent)
      : QObject(parent), refresh_(std::move(refresh)) {
    control.changed.connect([self = QPointer<Mirror>(this)] {
      if (self) self->mark();
    });
    mark();
  }

  /// Shows now what has changed.
  void flush() {
    if (!pending_) return;
    pending_ = false;
    refresh_();
  }

 private:
  void mark() {
    if (pending_) return;
    pending_ = true;
    QMetaObject::invokeMethod(
        this, [this] { flush(); }, Qt::QueuedConnection);
  }

  std::function<void()> refresh_;
  bool pending_ = false;
};

/// Shows now whatever has changed in the window's controls, as before it is shown itself.
void flushMirrors(QWidget& window);

/// The shift state of the windows: 1 shift, 2 control, 4 alt, 8 any other.
int shiftState(Qt::KeyboardModifiers modifiers);

}  // namespace kestrelix
