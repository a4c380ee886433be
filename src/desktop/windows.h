// The two windows on the screen: the widgets of their controls, laid out, and the events that belong to the
// window as a whole.
#pragma once

#include <QWidget>

#include "shell/FormMain.h"
#include "shell/layout.h"

namespace kestrelix {

/// A window of fixed size and places that hands the wheel to its form.
class FormWindow : public QWidget {
 public:
  clsWheelMouse::Handle handle() const;
  /// Shows the window in the middle of the screen.
  void open();

 protected:
  FormWindow(const WindowLayout& layout, const Label& title);

  /// Puts a widget where the layout has it. Its parent must have been placed before.
  void place(QWidget& widget);
  QFont fontOf(const char* control) const;
  void wheelEvent(QWheelEvent* event) override;

 private:
  const ControlPlace& placeOf(std::string_view control) const;

  const WindowLayout& layout_;
  int turned_ = 0;  // eighths of a degree since the last step
};

class LoginWindow final : public FormWindow {
 public:
  explicit LoginWindow(FormLogin& form);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  FormLogin& form_;
};

class MainWindow final : public FormWindow {
 public:
  MainWindow(FormMain& form, MainControls& controls);

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void addGrid(Grid& grid);

  FormMain& form_;
};

}  // namespace kestrelix
