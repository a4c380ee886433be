// The widgets of the plain controls: toolbar, frame, label, text box, button.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include "desktop/mirror.h"

namespace kestrelix {

/// The row of buttons. They take no keyboard.
class ToolbarView final : public QWidget {
 public:
  ToolbarView(Toolbar& toolbar, QWidget* parent);

 private:
  void refresh();
  void addButton(const Toolbar::Button& button, int left);

  Toolbar& toolbar_;
  QList<QToolButton*> buttons_;
};

/// A thin frame with its caption in the upper edge.
class FrameView final : public QWidget {
 public:
  FrameView(Frame& frame, const QFont& font, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  Frame& frame_;
};

/// A line of plain text, blanks kept, that begins `indent` pixels in.
class LabelView final : public QLabel {
 public:
  LabelView(Label& label, const QFont& font, int indent, QWidget* parent);
};

class TextBoxView final : public QLineEdit {
 public:
  TextBoxView(TextBox& box, const QFont& font, QWidget* parent);
};

class CommandButtonView final : public QPushButton {
 public:
  CommandButtonView(CommandButton& button, const QFont& font, QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace kestrelix
