#include "desktop/widgets.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "desktop/ToolbarIcons.h"

namespace kestrelix {
namespace {

constexpr int kButtonTop = 2;
constexpr int kButtonHeight = 24;
constexpr int kIconButtonWidth = 26;
constexpr int kTextButtonWidth = 48;
constexpr int kIcon = 16;
constexpr int kGap = 10;

/// A soft line on a light window and on a dark one.
QColor lineColour(const QPalette& palette) {
  const QColor window = palette.color(QPalette::Window);
  const QColor text = palette.color(QPalette::WindowText);
  const auto between = [](int a, int b) { return (3 * a + b) / 4; };
  return {between(window.red(), text.red()), between(window.green(), text.green()),
          between(window.blue(), text.blue())};
}

/// The buttons behind which a gap sets the next group off.
bool endsGroup(const std::string& key) { return key == "PLAN" || key == "GRAPH_END" || key == "END"; }

}  // namespace

ToolbarView::ToolbarView(Toolbar& toolbar, QWidget* parent) : QWidget(parent), toolbar_(toolbar) {
  named(*this, toolbar);
  int left = 4;
  for (const Toolbar::Button& button : toolbar.buttons()) {
    addButton(button, left);
    left = buttons_.back()->geometry().right() + 1 + (endsGroup(button.key) ? kGap : 0);
  }
  new Mirror(
      toolbar, [this] { refresh(); }, this);
}

void ToolbarView::addButton(const Toolbar::Button& button, int left) {
  auto* widget = new QToolButton(this);
  widget->setObjectName(text(button.key));
  widget->setAccessibleName(text(button.key));
  widget->setToolTip(text(button.toolTip));
  widget->setAutoRaise(true);
  widget->setFocusPolicy(Qt::NoFocus);
  widget->setIconSize({kIcon, kIcon});
  if (button.image.empty()) {
    QFont font = widget->font();
    font.setPixelSize(11);
    widget->setFont(font);
    widget->setText(text(button.key));
  } else {
    widget->setIcon(toolbarIcon(text(button.image)));
  }
  widget->setGeometry(left, kButtonTop, button.image.empty() ? kTextButtonWidth : kIconButtonWidth,
                      kButtonHeight);
  connect(widget, &QToolButton::clicked, this, [this, key = button.key] { toolbar_.press(key); });
  buttons_.push_back(widget);
}

void ToolbarView::refresh() {
  for (qsizetype i = 0; i < buttons_.size(); ++i)
    buttons_[i]->setEnabled(toolbar_.buttons()[static_cast<std::size_t>(i)].enabled);
}

FrameView::FrameView(Frame& frame, const QFont& font, QWidget* parent) : QWidget(parent), frame_(frame) {
  named(*this, frame);
  setFont(font);
  new Mirror(
      frame,
      [this] {
        setVisible(frame_.Visible());
        update();
      },
      this);
}

void FrameView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QFontMetrics metrics(font());
  const QString caption = text(frame_.Caption());
  const int top = metrics.height() / 2;
  painter.setPen(lineColour(palette()));
  painter.drawRoundedRect(QRectF(0.5, top + 0.5, width() - 1, height() - top - 1), 2, 2);
  const QRect place(8, 0, metrics.horizontalAdvance(caption) + 6, metrics.height());
  painter.fillRect(place, palette().color(QPalette::Window));
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(place, Qt::AlignCenter, caption);
}

void FrameView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) frame_.DblClick();
}

LabelView::LabelView(Label& label, const QFont& font, int indent, QWidget* parent) : QLabel(parent) {
  named(*this, label);
  setFont(font);
  setTextFormat(Qt::PlainText);
  setIndent(indent);
  setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  new Mirror(
      label,
      [this, &label] {
        setText(::kestrelix::text(label.Caption()));
        setVisible(label.Visible());
      },
      this);
}

TextBoxView::TextBoxView(TextBox& box, const QFont& font, QWidget* parent) : QLineEdit(parent) {
  named(*this, box);
  setFont(font);
  connect(this, &QLineEdit::textEdited, this,
          [&box](const QString& typed) { box.Text(typed.toStdString()); });
  new Mirror(
      box,
      [this, &box] {
        const QString shown = ::kestrelix::text(box.Text());
        if (text() != shown) setText(shown);
      },
      this);
}

CommandButtonView::CommandButtonView(CommandButton& button, const QFont& font, QWidget* parent)
    : QPushButton(parent) {
  named(*this, button);
  setFont(font);
  connect(this, &QPushButton::clicked, this, [&button] { button.Click(); });
  new Mirror(
      button, [this, &button] { setText(::kestrelix::text(button.Caption())); }, this);
}

/// The enter key presses the button that has the keyboard, as the space bar does.
void CommandButtonView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return click();
  QPushButton::keyPressEvent(event);
}

}  // namespace kestrelix
